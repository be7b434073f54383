<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell の準備ができました。</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Driftwell を初期化しています...</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
</context>
</TS>
