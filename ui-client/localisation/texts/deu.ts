<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell ist bereit.</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Driftwell wird initialisiert...</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
</context>
</TS>
