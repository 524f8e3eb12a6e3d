<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>TarvexGUIToolkit::CBaseDialog</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>TarvexGUIToolkit::CTableView</name>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Export CSV…</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>CSV files (*.csv)</translation>
    </message>
    <message>
        <source>The table could not be saved to %1: %2</source>
        <translation>The table could not be saved to %1: %2</translation>
    </message>
</context>
</TS>
