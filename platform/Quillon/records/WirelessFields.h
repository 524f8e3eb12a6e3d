#pragma once
// Member lists of the wireless records, in order; the wire key of each member is its name.
#include "Quillon/WirelessRecords.h"

#include "RecordEngine.h"

QUILLON_FIELDS(rfInfo, band, transmitPower, channel, channelInterference, onlineCount, sendUtilization,
               receiveUtilization)
// A negative interference level is read and kept as its unsigned form, which the radio tab
// classifies with the other values out of the device's range.
QUILLON_SIGNED_ON_WIRE(rfInfo, channelInterference)
QUILLON_FIELDS(ApInfo, deviceName, model, macAddress, ipAddress, serialNumber, softwareVersion, state, runTime,
               cpuUsage, memoryUsage, rfList)
QUILLON_FIELDS(ApInfoList, apList)
QUILLON_FIELDS(ApInfoSearchCond, searchID, maxResults, searchResultPosition)
QUILLON_FIELDS(ApInfoSearchResult, responseStatus, apList, searchID, numOfMatches)

QUILLON_FIELDS(RfParaCfg, band, enabled, wirelessMode, transmitPower, channel)
QUILLON_FIELDS(RfParaCfgList, rfList)
QUILLON_FIELDS(BssParaCfgInfo, macAddress, band, enabled, ssid, securityMode)
QUILLON_FIELDS(BssParaCfg, bssList)
QUILLON_FIELDS(BssParaCfgSearchCond, searchKey)

QUILLON_FIELDS(APGroupInfo, groupId, groupName, apNum, description)
QUILLON_FIELDS(APGroupInfoList, groupList)
QUILLON_FIELDS(APGroupBssParaCfg, ssidIndex, band, enabled, ssid, securityMode)
QUILLON_FIELDS(APGroupBSS, groupName, bssList)
QUILLON_FIELDS(APGroupBSSList, groupList)
QUILLON_FIELDS(APGroupBssSearchCond, searchID, maxResults, searchResultPosition)
QUILLON_FIELDS(APGroupBssSearchResult, responseStatus, groupList, searchID, numOfMatches)
QUILLON_FIELDS(AcCapabilities, isSupportSearchAPGroup, maxAPNum, maxAPGroupNum, maxTerminalNum)

QUILLON_FIELDS(AcTerminalInfo, ipAddress, macAddress, apMacAddress, rssi, receiveRate, sendRate, connectSeconds,
               band, ssid)
QUILLON_FIELDS(AcTerminalInfoList, terminalList)
QUILLON_FIELDS(TerminalInfoSearchCond, searchID, maxResults, searchResultPosition)
QUILLON_FIELDS(TerminalInfoSearchResult, responseStatus, terminalList, searchID, numOfMatches)
QUILLON_FIELDS(TerminalInfo, ipAddress, macAddress, deviceName, connectType, band, onlineSeconds)
QUILLON_FIELDS(TerminalInfoList, terminalList)
QUILLON_FIELDS(BssClient, ipAddress, macAddress, rssi, receiveRate, sendRate, connectSeconds)
QUILLON_FIELDS(BssClientInfo, ssid, band, clientList)
QUILLON_FIELDS(BssClientInfoList, bssList)

QUILLON_FIELDS(Wireless, ssid, securityMode, workScene, wirelessMode, channelWidthMode, channelWidth, channel,
               transmitPower, noise, antennaGainPresent, antennaGain)
// A bridge that knows its antenna's gain sends it; one that doesn't leaves it out. A bridge
// that sends the flag itself is believed, also when it sends a gain beside a false flag.
QUILLON_PRESENCE(Wireless, antennaGain, antennaGainPresent)
QUILLON_FIELDS(Transmission, macAddress, ipAddress, signal, noise, sendRate, receiveRate, distance, connectSeconds)
QUILLON_FIELDS(TransmissionList, transmissionList)

QUILLON_FIELDS(PPPoEStatus, id, ipAddress, subnetMask, gateway, primaryDNS, secondaryDNS, status, addressingType,
               uplinkRate, downlinkRate)
QUILLON_FIELDS(PPPoEStatusList, statusList)

QUILLON_FIELDS(CBridgeRegion, region)
QUILLON_FIELDS(CBridgeRegionCapabilities, regionList)
QUILLON_FIELDS(CBridgeRegionRes, statusCode, statusString, region, needReboot)

// Every wireless record, for code that treats them all alike (X(Type) for each).
#define QUILLON_WIRELESS_RECORDS(X) X(rfInfo) X(ApInfo) X(ApInfoList) X(ApInfoSearchCond) \
    X(ApInfoSearchResult) X(RfParaCfg) X(RfParaCfgList) X(BssParaCfgInfo) X(BssParaCfg) \
    X(BssParaCfgSearchCond) X(APGroupInfo) X(APGroupInfoList) X(APGroupBssParaCfg) X(APGroupBSS) \
    X(APGroupBSSList) X(APGroupBssSearchCond) X(APGroupBssSearchResult) X(AcCapabilities) X(AcTerminalInfo) \
    X(AcTerminalInfoList) X(TerminalInfoSearchCond) X(TerminalInfoSearchResult) X(TerminalInfo) \
    X(TerminalInfoList) X(BssClient) X(BssClientInfo) X(BssClientInfoList) X(Wireless) X(Transmission) \
    X(TransmissionList) X(PPPoEStatus) X(PPPoEStatusList) X(CBridgeRegion) X(CBridgeRegionCapabilities) \
    X(CBridgeRegionRes)
