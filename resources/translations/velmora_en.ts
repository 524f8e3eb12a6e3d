<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>AcWirelessStatusWidget</name>
    <message>
        <source>CActiveDeviceDialog</source>
        <translation>Device status</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grp</translation>
    </message>
</context>
<context>
    <name>CApInfoListWidget</name>
    <message>
        <source>CActiveDeviceDialog</source>
        <translation>Device status</translation>
    </message>
</context>
<context>
    <name>CCTab</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>SSID</source>
        <translation>SSID</translation>
    </message>
</context>
<context>
    <name>CPPPoEStatusWidget</name>
    <message>
        <source>CActiveDeviceDialog</source>
        <translation>Device status</translation>
    </message>
    <message>
        <source>WANPortInformationltxodRIP</source>
        <translation>WAN port information</translation>
    </message>
</context>
<context>
    <name>CWirelessStatusTab</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>RadioFrequencyrfStateyHKLESFF</source>
        <translation>Radio status</translation>
    </message>
    <message>
        <source>RfSwitchsUhDVSL</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>NetworkModerDdYSkUn</source>
        <translation>Network mode</translation>
    </message>
    <message>
        <source>ChannelyKNHOqXm</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>TransmissionPowerEGHZexeA</source>
        <translation>Tx power</translation>
    </message>
    <message>
        <source>SSIDStateHKBQMWvM</source>
        <translation>SSID status</translation>
    </message>
</context>
<context>
    <name>CWirelessStatusWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>GHZFrequencyBandJxjGQbMf</source>
        <translation>2.4 GHz</translation>
    </message>
    <message>
        <source>GHZFrequencyBandckTTmKJx</source>
        <translation>5 GHz</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>DeviceStatus</source>
        <translation>Device status</translation>
    </message>
    <message>
        <source>PanelState</source>
        <translation>Panel status</translation>
    </message>
    <message>
        <source>BasicWirelessConfiguration</source>
        <translation>Wireless settings</translation>
    </message>
    <message>
        <source>PortStatus</source>
        <translation>Port status</translation>
    </message>
    <message>
        <source>ThePortStatistical</source>
        <translation>Port statistics</translation>
    </message>
    <message>
        <source>POEPortState</source>
        <translation>PoE status</translation>
    </message>
    <message>
        <source>BasicWirelessStateYrmZymEu</source>
        <translation>Wireless status</translation>
    </message>
    <message>
        <source>ConnectedToTheStateMffDqXn</source>
        <translation>WAN status</translation>
    </message>
    <message>
        <source>StateOfTheWireless</source>
        <translation>Wireless status</translation>
    </message>
    <message>
        <source>ClientListxBJDUZFw</source>
        <translation>Client list</translation>
    </message>
    <message>
        <source>ManagingAPListsAizrsShK</source>
        <translation>Managed APs</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>EncodingDevice</source>
        <translation>Encoding device</translation>
    </message>
    <message>
        <source>StorageServer</source>
        <translation>Storage server</translation>
    </message>
    <message>
        <source>IntelligentAnalysisServerFjBwwnFa</source>
        <translation>Video analytics server</translation>
    </message>
    <message>
        <source>MasterStation</source>
        <translation>Master station</translation>
    </message>
    <message>
        <source>DoorStation</source>
        <translation>Door station</translation>
    </message>
    <message>
        <source>IndoorStation</source>
        <translation>Indoor station</translation>
    </message>
    <message>
        <source>VideoIntercomDevice</source>
        <translation>Video intercom device</translation>
    </message>
    <message>
        <source>CloudP2PDevice</source>
        <translation>Cloud P2P device</translation>
    </message>
    <message>
        <source>AlarmDevice</source>
        <translation>Alarm device</translation>
    </message>
    <message>
        <source>AccessControlDevice</source>
        <translation>Access control device</translation>
    </message>
    <message>
        <source>InformationPublishingServer</source>
        <translation>Information release server</translation>
    </message>
    <message>
        <source>Radar</source>
        <translation>Radar</translation>
    </message>
    <message>
        <source>IntelligentInternetOLUdvnoei</source>
        <translation>Smart IoT device</translation>
    </message>
    <message>
        <source>unjKZcVo</source>
        <translation>Other device</translation>
    </message>
    <message>
        <source>AttendanceDevice</source>
        <translation>Attendance device</translation>
    </message>
    <message>
        <source>Switchgear</source>
        <translation>Switch</translation>
    </message>
    <message>
        <source>TheBridgeEquipment</source>
        <translation>Wireless bridge</translation>
    </message>
    <message>
        <source>FiberOpticTransceiverEquipment</source>
        <translation>Fiber converter</translation>
    </message>
    <message>
        <source>Tarvex-7300_Client.Multi-serviceWirelessController.name</source>
        <translation>Wireless controller</translation>
    </message>
    <message>
        <source>TheWirelessAPRjVRMUcS</source>
        <translation>Wireless AP</translation>
    </message>
    <message>
        <source>WirelessRouterrZdffVaA</source>
        <translation>Wireless router</translation>
    </message>
    <message>
        <source>Tarvex-7300_Client.EnterpriseclassRouteypgXFRmT.name</source>
        <translation>Enterprise router</translation>
    </message>
    <message>
        <source>InformationDisplayScwgYTiAXO</source>
        <translation>Information display</translation>
    </message>
    <message>
        <source>%1s</source>
        <translation>%1s</translation>
    </message>
    <message>
        <source>%1m</source>
        <translation>%1m</translation>
    </message>
    <message>
        <source>%1h</source>
        <translation>%1h</translation>
    </message>
    <message>
        <source>%1Daythdetynday</source>
        <translation>%1d</translation>
    </message>
    <message>
        <source>%1Week</source>
        <translation>%1w</translation>
    </message>
</context>
<context>
    <name>RfInfoTab</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>RadioFrequencyrfStateyHKLESFF</source>
        <translation>Radio status</translation>
    </message>
    <message>
        <source>ChannelOX54KMQ8</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>SendThePowernyjbsHqe</source>
        <translation>Power</translation>
    </message>
    <message>
        <source>dBm</source>
        <translation>dBm</translation>
    </message>
    <message>
        <source>TransmissionChannelUCQyiMcrM</source>
        <translation>Tx utilization</translation>
    </message>
    <message>
        <source>ReceivingChannelUtilzZTLbJtC</source>
        <translation>Rx utilization</translation>
    </message>
    <message>
        <source>ChannelStategiObASxASH</source>
        <translation>Channel status</translation>
    </message>
    <message>
        <source>ChannelInterferenceCxNqnewIU</source>
        <translation>Channel interference</translation>
    </message>
</context>
<context>
    <name>UiApStatusWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>EquipmentUsageInformation</source>
        <translation>Device usage</translation>
    </message>
    <message>
        <source>MemoryUsage</source>
        <translation>Memory usage</translation>
    </message>
    <message>
        <source>CPUUsage</source>
        <translation>CPU usage</translation>
    </message>
    <message>
        <source>POEPower</source>
        <translation>PoE power</translation>
    </message>
    <message>
        <source>POEPowerPeak</source>
        <translation>PoE peak</translation>
    </message>
</context>
<context>
    <name>UiBasicWirelessInfoWidget</name>
    <message>
        <source>CActiveDeviceDialog</source>
        <translation>Device status</translation>
    </message>
    <message>
        <source>SSID</source>
        <translation>SSID</translation>
    </message>
    <message>
        <source>WorkScene</source>
        <translation>Scenario</translation>
    </message>
    <message>
        <source>AtTheEndOfTheNoise</source>
        <translation>Noise floor</translation>
    </message>
    <message>
        <source>WirelessMode</source>
        <translation>Wireless mode</translation>
    </message>
    <message>
        <source>SecurityMode</source>
        <translation>Security mode</translation>
    </message>
    <message>
        <source>TheChannelWidth</source>
        <translation>Channel width</translation>
    </message>
    <message>
        <source>ChannelFrequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>AntennaGainibUuWqlaY</source>
        <translation>Antenna gain</translation>
    </message>
    <message>
        <source>TransmissionPower</source>
        <translation>Tx power</translation>
    </message>
</context>
<context>
    <name>UiFiberPanelStatusWidget</name>
    <message>
        <source>CActiveDeviceDialog</source>
        <translation>Device status</translation>
    </message>
    <message>
        <source>PanelState</source>
        <translation>Panel status</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>NotConnected</source>
        <translation>Not connected</translation>
    </message>
    <message>
        <source>ElectricityMouth</source>
        <translation>Electrical port</translation>
    </message>
    <message>
        <source>TheMouthOfLight</source>
        <translation>Optical port</translation>
    </message>
    <message>
        <source>SlotInformation</source>
        <translation>Slot information</translation>
    </message>
</context>
<context>
    <name>UiPOEPortStatusWidget</name>
    <message>
        <source>CActiveDeviceDialog</source>
        <translation>Device status</translation>
    </message>
</context>
<context>
    <name>UiPanelStatusBase</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>ElectricityMouth</source>
        <translation>Electrical port</translation>
    </message>
    <message>
        <source>TheMouthOfLight</source>
        <translation>Optical port</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>ConnectedToTheInternIbeNZUc</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>NotConnected2NGI5XEM</source>
        <translation>Not connected</translation>
    </message>
</context>
<context>
    <name>UiPanelStatusWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>EquipmentUsageInformation</source>
        <translation>Device usage</translation>
    </message>
    <message>
        <source>MemoryUsage</source>
        <translation>Memory usage</translation>
    </message>
    <message>
        <source>CPUUsage</source>
        <translation>CPU usage</translation>
    </message>
    <message>
        <source>POEPower</source>
        <translation>PoE power</translation>
    </message>
    <message>
        <source>POEPowerPeak</source>
        <translation>PoE peak</translation>
    </message>
    <message>
        <source>EquipmentPanelStatus</source>
        <translation>Panel status</translation>
    </message>
    <message>
        <source>PortInformation</source>
        <translation>Port information</translation>
    </message>
</context>
<context>
    <name>UiPortStatisticWidget</name>
    <message>
        <source>CActiveDeviceDialog</source>
        <translation>Device status</translation>
    </message>
    <message>
        <source>RefreshRate</source>
        <translation>Refresh interval</translation>
    </message>
    <message>
        <source>ManuallyRefresh</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
</context>
<context>
    <name>UiPortStatusWidget</name>
    <message>
        <source>CActiveDeviceDialog</source>
        <translation>Device status</translation>
    </message>
</context>
<context>
    <name>UiSwitchDeviceStatusWidget</name>
    <message>
        <source>CDeviceStatusDialog</source>
        <translation>Device status</translation>
    </message>
    <message>
        <source>ReturnD1QNBO6E</source>
        <translation>Back</translation>
    </message>
</context>
<context>
    <name>velmora::CAcSSIDStatusModel</name>
    <message>
        <source>SSID</source>
        <translation>SSID</translation>
    </message>
    <message>
        <source>GHZFrequencyBandJxjGQbMf</source>
        <translation>2.4 GHz</translation>
    </message>
    <message>
        <source>GHZFrequencyBandtaVmJsgCA</source>
        <translation>5 GHz-1</translation>
    </message>
    <message>
        <source>GHZFrequencyBandxmrbPirNUV</source>
        <translation>5 GHz-2</translation>
    </message>
    <message>
        <source>SecurityMode</source>
        <translation>Security</translation>
    </message>
</context>
<context>
    <name>velmora::CAcWirelessStatusWidget</name>
    <message>
        <source>OpenWSYVR9KO</source>
        <translation>On</translation>
    </message>
    <message>
        <source>NotAllow</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
</context>
<context>
    <name>velmora::CApDeviceStatusWidget</name>
    <message>
        <source>GHZFrequencyBandJxjGQbMf</source>
        <translation>2.4 GHz</translation>
    </message>
    <message>
        <source>GHZFrequencyBandtaVmJsgCA</source>
        <translation>5 GHz-1</translation>
    </message>
    <message>
        <source>GHZFrequencyBandckTTmKJx</source>
        <translation>5 GHz</translation>
    </message>
    <message>
        <source>GHZFrequencyBandxmrbPirNUV</source>
        <translation>5 GHz-2</translation>
    </message>
</context>
<context>
    <name>velmora::CApInfoListModel</name>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>WaitingUpgrade</source>
        <translation>Waiting for upgrade</translation>
    </message>
    <message>
        <source>ReceiveTheFirmwarejztLMjAd</source>
        <translation>Receiving firmware</translation>
    </message>
    <message>
        <source>InTheUpgrade</source>
        <translation>Upgrading</translation>
    </message>
    <message>
        <source>UpgradeSuccessQXfimbFV</source>
        <translation>Upgrade succeeded</translation>
    </message>
    <message>
        <source>UpgradeFailedBQBDY5IP</source>
        <translation>Upgrade failed</translation>
    </message>
    <message>
        <source>APModelybyVeEBj</source>
        <translation>AP model</translation>
    </message>
    <message>
        <source>DeviceName</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>SoftwareVersion</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>DeviceSerialNo</source>
        <translation>Serial No.</translation>
    </message>
    <message>
        <source>IPAddress</source>
        <translation>IP address</translation>
    </message>
    <message>
        <source>TheMACAddress</source>
        <translation>MAC</translation>
    </message>
    <message>
        <source>SupportTheSpectrumzvEoouqq</source>
        <translation>Bands</translation>
    </message>
    <message>
        <source>SendThePowernyjbsHqe</source>
        <translation>Tx power</translation>
    </message>
    <message>
        <source>ChannelOX54KMQ8</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>OnlineDevices</source>
        <translation>Clients</translation>
    </message>
    <message>
        <source>State67D76BB9</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>velmora::CApInfoListWidget</name>
    <message>
        <source>NumberOfOnlineAPycQFRVlW</source>
        <translation>Online APs</translation>
    </message>
    <message>
        <source>TotalDeviceNum</source>
        <translation>Total</translation>
    </message>
</context>
<context>
    <name>velmora::CBasicWirelessInfoWidget</name>
    <message>
        <source>Not-Encrypted</source>
        <translation>Not encrypted</translation>
    </message>
    <message>
        <source>EngineRoomSide</source>
        <translation>Equipment room side</translation>
    </message>
    <message>
        <source>TheCamerasEndmTYxgqlwl</source>
        <translation>Camera side</translation>
    </message>
    <message>
        <source>TheCenterForEndkwNQXqnbiw</source>
        <translation>Center side</translation>
    </message>
</context>
<context>
    <name>velmora::CClientListInfoWidget</name>
    <message>
        <source>NoData</source>
        <translation>No data</translation>
    </message>
    <message>
        <source>GHZFrequencyBandJxjGQbMf</source>
        <translation>2.4 GHz</translation>
    </message>
    <message>
        <source>GHZFrequencyBandtaVmJsgCA</source>
        <translation>5 GHz-1</translation>
    </message>
    <message>
        <source>GHZFrequencyBandckTTmKJx</source>
        <translation>5 GHz</translation>
    </message>
    <message>
        <source>GHZFrequencyBandxmrbPirNUV</source>
        <translation>5 GHz-2</translation>
    </message>
</context>
<context>
    <name>velmora::CClientModel</name>
    <message>
        <source>Index</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>TheMACAddress</source>
        <translation>MAC</translation>
    </message>
    <message>
        <source>IPAddress</source>
        <translation>IP address</translation>
    </message>
    <message>
        <source>TerminalType</source>
        <translation>Client type</translation>
    </message>
    <message>
        <source>SendingRate</source>
        <translation>Tx rate</translation>
    </message>
    <message>
        <source>ReceivingRate</source>
        <translation>Rx rate</translation>
    </message>
    <message>
        <source>TheConnectionTime</source>
        <translation>Connected for</translation>
    </message>
    <message>
        <source>A private (randomised) address: it belongs to no vendor.</source>
        <translation>A private (randomised) address: it belongs to no vendor.</translation>
    </message>
</context>
<context>
    <name>velmora::CConnectedDeviceInfoModel</name>
    <message>
        <source>TheMACAddress</source>
        <translation>MAC address</translation>
    </message>
    <message>
        <source>IPV4</source>
        <translation>IPv4</translation>
    </message>
    <message>
        <source>SignalIntensity</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Receive/sendRate</source>
        <translation>Rx/Tx</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>AtTheEndOfTheNoise</source>
        <translation>Noise</translation>
    </message>
    <message>
        <source>ConnectionTime</source>
        <translation>Connected for</translation>
    </message>
</context>
<context>
    <name>velmora::CDeviceStatusWidget</name>
    <message>
        <source>InSevenDays</source>
        <translation>7 days</translation>
    </message>
</context>
<context>
    <name>velmora::CFiberPanelStatusWidget</name>
    <message>
        <source>Slot %1</source>
        <translation>Slot %1</translation>
    </message>
    <message>
        <source>Management card</source>
        <translation>Management card</translation>
    </message>
    <message>
        <source>Empty slot</source>
        <translation>Empty slot</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>velmora::CPOEPortStatusModel</name>
    <message>
        <source>PortName</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>POESwitch</source>
        <translation>PoE</translation>
    </message>
    <message>
        <source>TheOutputPower(W)</source>
        <translation>Output power (W)</translation>
    </message>
    <message>
        <source>OpenWSYVR9KO</source>
        <translation>On</translation>
    </message>
    <message>
        <source>ShutDownN1AOOJOC</source>
        <translation>Off</translation>
    </message>
</context>
<context>
    <name>velmora::CPPPoEStatusModel</name>
    <message>
        <source>DialupInternetAccesssDGdtWIp</source>
        <translation>PPPoE</translation>
    </message>
    <message>
        <source>DynamicIPSaygcUO</source>
        <translation>Dynamic IP</translation>
    </message>
    <message>
        <source>StaticIPdhZgUYfz</source>
        <translation>Static IP</translation>
    </message>
    <message>
        <source>TheBridgeModelVafiDQkH</source>
        <translation>Bridge mode</translation>
    </message>
    <message>
        <source>WANPortNamenxeWnkzx</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>ConnectedToTheStateMffDqXn</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>NetworkingWayNjuIMDOL</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>IPAddress</source>
        <translation>IP address</translation>
    </message>
    <message>
        <source>SubnetMask</source>
        <translation>Netmask</translation>
    </message>
    <message>
        <source>TheGateway</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>PrimaryDNSRnlSdXsd</source>
        <translation>DNS 1</translation>
    </message>
    <message>
        <source>OnceTheDNSikUnppHJ</source>
        <translation>DNS 2</translation>
    </message>
    <message>
        <source>UplinkRate</source>
        <translation>Upstream</translation>
    </message>
    <message>
        <source>DescendingRate</source>
        <translation>Downstream</translation>
    </message>
    <message>
        <source>HasBeenConnectedToThWhTnXBYB</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>NotConnectedToTheIntYbtmNqvC</source>
        <translation>Not connected</translation>
    </message>
</context>
<context>
    <name>velmora::CPanelSlotInfoModel</name>
    <message>
        <source>SlotNo</source>
        <translation>Slot</translation>
    </message>
    <message>
        <source>ReceivingCardIP</source>
        <translation>Receiver IP</translation>
    </message>
    <message>
        <source>ReceiveCardSerialNumber</source>
        <translation>Receiver S/N</translation>
    </message>
    <message>
        <source>TransmitterIP</source>
        <translation>Sender IP</translation>
    </message>
    <message>
        <source>TransmitterSerialNumber</source>
        <translation>Sender S/N</translation>
    </message>
    <message>
        <source>SenderName</source>
        <translation>Sender name</translation>
    </message>
</context>
<context>
    <name>velmora::CPanelStatusBase</name>
    <message>
        <source>Slot %1</source>
        <translation>Slot %1</translation>
    </message>
    <message>
        <source>Port %1</source>
        <translation>Port %1</translation>
    </message>
    <message>
        <source>Board: %1</source>
        <translation>Board: %1</translation>
    </message>
    <message>
        <source>No board</source>
        <translation>No board</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Not connected</translation>
    </message>
    <message>
        <source>Link: %1</source>
        <translation>Link: %1</translation>
    </message>
    <message>
        <source>Full duplex</source>
        <translation>Full duplex</translation>
    </message>
    <message>
        <source>Half duplex</source>
        <translation>Half duplex</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Rate: %1, %2</source>
        <translation>Rate: %1, %2</translation>
    </message>
    <message>
        <source>PoE output power: %1 W</source>
        <translation>PoE output power: %1 W</translation>
    </message>
    <message>
        <source>Alarm: %1</source>
        <translation>Alarm: %1</translation>
    </message>
    <message>
        <source>In alarm</source>
        <translation>In alarm</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Neighbour: %1 (%2), %3</source>
        <translation>Neighbour: %1 (%2), %3</translation>
    </message>
</context>
<context>
    <name>velmora::CPortDetailInfoModel</name>
    <message>
        <source>PortName</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>OppositeDeviceType</source>
        <translation>Peer type</translation>
    </message>
    <message>
        <source>OppositeIPAddress</source>
        <translation>Peer IP</translation>
    </message>
    <message>
        <source>OppositeDeviceAlias</source>
        <translation>Peer name</translation>
    </message>
</context>
<context>
    <name>velmora::CPortStatisticModel</name>
    <message>
        <source>PortName</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>NumberOfBytesSent</source>
        <translation>Tx bytes</translation>
    </message>
    <message>
        <source>NumberOfMessagesSent</source>
        <translation>Tx packets</translation>
    </message>
    <message>
        <source>NumberOfBytesReceived</source>
        <translation>Rx bytes</translation>
    </message>
    <message>
        <source>NumberOfMessagesReceived</source>
        <translation>Rx packets</translation>
    </message>
    <message>
        <source>SendingRate</source>
        <translation>Tx rate</translation>
    </message>
    <message>
        <source>ReceivingRate</source>
        <translation>Rx rate</translation>
    </message>
    <message>
        <source>PeakRateOfTransmission(InSevenDays)</source>
        <translation>Tx peak (7 days)</translation>
    </message>
    <message>
        <source>ReceivingPeakRate(InSevenDays)</source>
        <translation>Rx peak (7 days)</translation>
    </message>
</context>
<context>
    <name>velmora::CPortStatusModel</name>
    <message>
        <source>PortName</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Duplex</translation>
    </message>
    <message>
        <source>FlowCtrl</source>
        <translation>Flow control</translation>
    </message>
</context>
<context>
    <name>velmora::CPortStatusWidget</name>
    <message>
        <source>FullDuplex</source>
        <translation>Full duplex</translation>
    </message>
    <message>
        <source>HalfDuplex</source>
        <translation>Half duplex</translation>
    </message>
    <message>
        <source>SinceTheNegotiation</source>
        <translation>Auto-negotiation</translation>
    </message>
    <message>
        <source>OpenWSYVR9KO</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Off</translation>
    </message>
</context>
<context>
    <name>velmora::CRfInfoTab</name>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>InterferenceULcuQKdYGZ</source>
        <translation>Interference</translation>
    </message>
</context>
<context>
    <name>velmora::CSSIDStatusModel</name>
    <message>
        <source>SSID</source>
        <translation>SSID</translation>
    </message>
    <message>
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message>
        <source>SecurityMode</source>
        <translation>Security</translation>
    </message>
    <message>
        <source>EnableStatus</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>velmora::CSwitchDeviceStatusWidget</name>
    <message>
        <source>DeviceStatus</source>
        <translation>Device status</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>RunTime</source>
        <translation>Uptime</translation>
    </message>
</context>
<context>
    <name>velmora::CWirelessStatusTab</name>
    <message>
        <source>OpenCUMN5SS7</source>
        <translation>On</translation>
    </message>
    <message>
        <source>ShutDown42HTMCDN</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>IsEnabled</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
</context>
</TS>
