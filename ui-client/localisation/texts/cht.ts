<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell 已準備就緒。</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Driftwell 正在初始化...</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
</context>
</TS>
