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
<context>
    <name>TarvexGUIToolkit::CTableView</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>导出 CSV…</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>CSV 文件 (*.csv)</translation>
    </message>
    <message>
        <source>The table could not be saved to %1: %2</source>
        <translation>无法将表格保存到 %1：%2</translation>
    </message>
</context>
</TS>
