// Display names of device categories.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "DeviceTypeString.h"

using velmora::deviceTypeToString;

namespace {
QString nameOf(int category)
{
    return deviceTypeToString(static_cast<tarvex7300::Device::DeviceCategory>(category));
}
} // namespace

TEST(DeviceTypeToString, NamesEveryKnownCategory)
{
    const std::vector<std::pair<int, const char*>> names = {
        {-1, "Device"},
        {0, "EncodingDevice"},
        {1, "StorageServer"},
        {4, "IntelligentAnalysisServerFjBwwnFa"},
        {14, "MasterStation"},
        {15, "DoorStation"},
        {16, "IndoorStation"},
        {18, "VideoIntercomDevice"},
        {100, "CloudP2PDevice"},
        {101, "AlarmDevice"},
        {102, "AccessControlDevice"},
        {103, "AlarmDevice"},
        {105, "InformationPublishingServer"},
        {106, "Radar"},
        {107, "IntelligentInternetOLUdvnoei"},
        {108, "unjKZcVo"},
        {109, "AttendanceDevice"},
        {120, "Switchgear"},
        {121, "TheBridgeEquipment"},
        {122, "FiberOpticTransceiverEquipment"},
        {124, "Tarvex-7300_Client.Multi-serviceWirelessController.name"},
        {125, "TheWirelessAPRjVRMUcS"},
        {126, "WirelessRouterrZdffVaA"},
        {129, "TheWirelessAPRjVRMUcS"},
        {130, "Tarvex-7300_Client.EnterpriseclassRouteypgXFRmT.name"},
        {150, "InformationDisplayScwgYTiAXO"},
        {160, "AlarmDevice"},
    };
    for (const auto& [category, key] : names)
        EXPECT_EQ(nameOf(category), QString(key)) << "category " << category;
}

TEST(DeviceTypeToString, GivesTheEncodingDeviceTextToEveryOtherCategory)
{
    for (int category : {2, 3, 5, 13, 17, 19, 99, 104, 110, 119, 123, 127, 128, 131, 149, 151, 159, 161, 200, -2})
        EXPECT_EQ(nameOf(category), QString("EncodingDevice")) << "category " << category;
}

TEST(DeviceTypeToString, NeverGivesAnEmptyText)
{
    for (int category = -5; category <= 205; ++category)
        EXPECT_FALSE(nameOf(category).isEmpty()) << "category " << category;
}
