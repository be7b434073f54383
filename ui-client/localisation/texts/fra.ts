<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell est prêt.</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Initialisation de Driftwell...</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
</context>
</TS>
