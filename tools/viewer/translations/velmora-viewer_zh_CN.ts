<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>UiFleetWindow</name>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Name, class, model or address</source>
        <translation>名称、类别、型号或地址</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>设备(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Open status dialog</source>
        <translation>打开状态对话框(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Reload registry</source>
        <translation>重新加载设备注册表(&amp;R)</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
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
        <translation>名称</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
</context>
<context>
    <name>velmora::viewer::CFleetWindow</name>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英语 (English)</translation>
    </message>
    <message>
        <source>中文 (简体)</source>
        <translation>中文 (简体)</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>翻译键</translation>
    </message>
    <message>
        <source>Show the texts in English</source>
        <translation>以英文显示文字</translation>
    </message>
    <message>
        <source>Show the texts in Simplified Chinese</source>
        <translation>以简体中文显示文字</translation>
    </message>
    <message>
        <source>Show the raw translation keys</source>
        <translation>显示原始翻译键</translation>
    </message>
    <message>
        <source>Status dialogs opened from now on use the new language; open ones keep theirs.</source>
        <translation>此后打开的状态对话框使用新语言；已打开的对话框保持原语言。</translation>
    </message>
    <message>
        <source>The device %1 is no longer in the registry; reload it.</source>
        <translation>设备 %1 已不在注册表中，请重新加载。</translation>
    </message>
    <message>
        <source>The device registry %1 does not exist.</source>
        <translation>设备注册表 %1 不存在。</translation>
    </message>
    <message>
        <source>The device registry %1 is empty.</source>
        <translation>设备注册表 %1 为空。</translation>
    </message>
    <message>
        <source>The device registry %1 could not be read: %2.</source>
        <translation>无法读取设备注册表 %1：%2。</translation>
    </message>
    <message>
        <source>Some entries of the device registry %1 were skipped: %2.</source>
        <translation>设备注册表 %1 中的部分条目已被跳过：%2。</translation>
    </message>
    <message>
        <source>The device registry %1 lists no devices.</source>
        <translation>设备注册表 %1 中没有设备。</translation>
    </message>
    <message>
        <source>%1 of %2 devices</source>
        <translation>显示 %1 台，共 %2 台设备</translation>
    </message>
</context>
</TS>
