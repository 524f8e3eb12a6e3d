<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>TarvexGUIToolkit::CBaseDialog</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
</TS>
