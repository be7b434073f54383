<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Driftwell is ready.</source>
        <translation>A Driftwell készen áll.</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>A Driftwell inicializálása folyamatban...</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
</context>
</TS>
