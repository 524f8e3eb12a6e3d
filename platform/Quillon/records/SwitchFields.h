#pragma once
// Member lists of the switch records, in order; the wire key of each member is its name.
#include "Quillon/SwitchRecords.h"

#include "RecordEngine.h"

QUILLON_FIELDS(DeviceCpuInfo, cpuUtilization)
QUILLON_FIELDS(DeviceMemoryInfo, memoryUsage, memoryAvailable)
QUILLON_FIELDS(DevicePoeInfo, poeUsed, poeTotal, poePeak)
QUILLON_FIELDS(DeviceStatus, deviceUpTime, cpuList, memoryList, poeList)

QUILLON_FIELDS(SwitchesWorkStateItem, portId, portEnabled, linkState, rate, flowCtrl, duplex, portType,
               bytesSent, sendRate, packetsSent, sendReserved, bytesReceived, receiveRate, packetsReceived,
               counterReserved, peakSendRate, peakReceiveRate, poePower, portRemark)
QUILLON_FIELDS(SwitchesWorkState, portList, portOrder)
QUILLON_FIELDS(SwitchesWorkStateSearchCond, searchID, maxResults, searchResultPosition)
QUILLON_FIELDS(SwitchesWorkStateSearchRes, responseStatus, portList, searchID, numOfMatches)
QUILLON_FIELDS(SwitchesWorkStateSearchCap, maxResults)

QUILLON_FIELDS(SwitchBasePort, portId, portName)
QUILLON_FIELDS(CSwitchBaseInfo, deviceModel, portList, deviceName, serialNumber, macAddress, firmwareVersion,
               hardwareVersion, portNum)
QUILLON_FIELDS(SwitchesBasicInfo, deviceModel, portList, deviceName, serialNumber, macAddress, firmwareVersion,
               hardwareVersion, portNum)

QUILLON_FIELDS(PortBasic, portId, portName, portEnabled, portType, maxSpeed, duplex, flowCtrl, portDescription)
QUILLON_FIELDS(PortBasicList, portList)
QUILLON_FIELDS(PortRate, portId, rateLimitEnabled, ingressRate, egressRate)
QUILLON_FIELDS(PortRateList, portList)

QUILLON_FIELDS(PortPoeInfo, portId, poeEnable, poeStatus, poePower, poeMaxPower)
QUILLON_FIELDS(PortPoeInfoList, portList)
QUILLON_FIELDS(PortPoeInfoCap, portId, poeEnableOptions)
QUILLON_FIELDS(PortPoeInfoListCap, isSupportPoe, portList)

QUILLON_FIELDS(PanelCell, cellType, portType, portId, label, direction)
QUILLON_FIELDS(Panel, rowCount, cellList, columnCount, portMargin)
QUILLON_FIELDS(PanelStatus, panelList)

QUILLON_FIELDS(SwitchSlotInfo, slotId, boardType, inserted, boardName, portNum)
QUILLON_FIELDS(SwitchSlotInfolList, slotList)
QUILLON_FIELDS(FiberConvertSlot, slotId, receivingCardIP, receiveCardSerialNumber, transmitterIP,
               transmitterSerialNumber, senderName)
QUILLON_FIELDS(FiberConvertSlotList, slotList)

// Every switch record, for code that treats them all alike (X(Type) for each).
#define QUILLON_SWITCH_RECORDS(X) X(DeviceCpuInfo) X(DeviceMemoryInfo) X(DevicePoeInfo) X(DeviceStatus) \
    X(SwitchesWorkStateItem) X(SwitchesWorkState) X(SwitchesWorkStateSearchCond) X(SwitchesWorkStateSearchRes) \
    X(SwitchesWorkStateSearchCap) X(SwitchBasePort) X(CSwitchBaseInfo) X(SwitchesBasicInfo) X(PortBasic) \
    X(PortBasicList) X(PortRate) X(PortRateList) X(PortPoeInfo) X(PortPoeInfoList) X(PortPoeInfoCap) \
    X(PortPoeInfoListCap) X(PanelCell) X(Panel) X(PanelStatus) X(SwitchSlotInfo) X(SwitchSlotInfolList) \
    X(FiberConvertSlot) X(FiberConvertSlotList)
