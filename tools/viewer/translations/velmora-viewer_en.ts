<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>UiFleetWindow</name>
    <message>
        <source>Devices</source>
        <translation>Devices</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Name, class, model or address</source>
        <translation>Name, class, model or address</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Device</translation>
    </message>
    <message>
        <source>&amp;Open status dialog</source>
        <translation>&amp;Open status dialog</translation>
    </message>
    <message>
        <source>&amp;Reload registry</source>
        <translation>&amp;Reload registry</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
</context>
<context>
    <name>velmora::viewer::CFleetModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Class</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
</context>
<context>
    <name>velmora::viewer::CFleetWindow</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>中文 (简体)</source>
        <translation>中文 (简体)</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Keys</translation>
    </message>
    <message>
        <source>Show the texts in English</source>
        <translation>Show the texts in English</translation>
    </message>
    <message>
        <source>Show the texts in Simplified Chinese</source>
        <translation>Show the texts in Simplified Chinese</translation>
    </message>
    <message>
        <source>Show the raw translation keys</source>
        <translation>Show the raw translation keys</translation>
    </message>
    <message>
        <source>Status dialogs opened from now on use the new language; open ones keep theirs.</source>
        <translation>Status dialogs opened from now on use the new language; open ones keep theirs.</translation>
    </message>
    <message>
        <source>The device %1 is no longer in the registry; reload it.</source>
        <translation>The device %1 is no longer in the registry; reload it.</translation>
    </message>
    <message>
        <source>The device registry %1 does not exist.</source>
        <translation>The device registry %1 does not exist.</translation>
    </message>
    <message>
        <source>The device registry %1 is empty.</source>
        <translation>The device registry %1 is empty.</translation>
    </message>
    <message>
        <source>The device registry %1 could not be read: %2.</source>
        <translation>The device registry %1 could not be read: %2.</translation>
    </message>
    <message>
        <source>Some entries of the device registry %1 were skipped: %2.</source>
        <translation>Some entries of the device registry %1 were skipped: %2.</translation>
    </message>
    <message>
        <source>The device registry %1 lists no devices.</source>
        <translation>The device registry %1 lists no devices.</translation>
    </message>
    <message>
        <source>%1 of %2 devices</source>
        <translation>%1 of %2 devices</translation>
    </message>
</context>
</TS>
