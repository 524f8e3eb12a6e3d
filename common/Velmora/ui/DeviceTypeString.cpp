#include "DeviceTypeString.h"

#include <QObject>
#include <QtGlobal>

namespace velmora {

namespace {

struct CategoryName {
    int category;
    const char* key;
};

// Translation keys of the client, odd suffixes included; they are looked up as they stand.
// 125 and 129 share a name, and so do 101, 103 and 160.
const CategoryName kCategoryNames[] = {
    {-1, QT_TRANSLATE_NOOP("QObject", "Device")},
    {0, QT_TRANSLATE_NOOP("QObject", "EncodingDevice")},
    {1, QT_TRANSLATE_NOOP("QObject", "StorageServer")},
    {4, QT_TRANSLATE_NOOP("QObject", "IntelligentAnalysisServerFjBwwnFa")},
    {14, QT_TRANSLATE_NOOP("QObject", "MasterStation")},
    {15, QT_TRANSLATE_NOOP("QObject", "DoorStation")},
    {16, QT_TRANSLATE_NOOP("QObject", "IndoorStation")},
    {18, QT_TRANSLATE_NOOP("QObject", "VideoIntercomDevice")},
    {100, QT_TRANSLATE_NOOP("QObject", "CloudP2PDevice")},
    {101, QT_TRANSLATE_NOOP("QObject", "AlarmDevice")},
    {102, QT_TRANSLATE_NOOP("QObject", "AccessControlDevice")},
    {103, QT_TRANSLATE_NOOP("QObject", "AlarmDevice")},
    {105, QT_TRANSLATE_NOOP("QObject", "InformationPublishingServer")},
    {106, QT_TRANSLATE_NOOP("QObject", "Radar")},
    {107, QT_TRANSLATE_NOOP("QObject", "IntelligentInternetOLUdvnoei")},
    {108, QT_TRANSLATE_NOOP("QObject", "unjKZcVo")},
    {109, QT_TRANSLATE_NOOP("QObject", "AttendanceDevice")},
    {120, QT_TRANSLATE_NOOP("QObject", "Switchgear")},
    {121, QT_TRANSLATE_NOOP("QObject", "TheBridgeEquipment")},
    {122, QT_TRANSLATE_NOOP("QObject", "FiberOpticTransceiverEquipment")},
    {124, QT_TRANSLATE_NOOP("QObject", "Tarvex-7300_Client.Multi-serviceWirelessController.name")},
    {125, QT_TRANSLATE_NOOP("QObject", "TheWirelessAPRjVRMUcS")},
    {126, QT_TRANSLATE_NOOP("QObject", "WirelessRouterrZdffVaA")},
    {129, QT_TRANSLATE_NOOP("QObject", "TheWirelessAPRjVRMUcS")},
    {130, QT_TRANSLATE_NOOP("QObject", "Tarvex-7300_Client.EnterpriseclassRouteypgXFRmT.name")},
    {150, QT_TRANSLATE_NOOP("QObject", "InformationDisplayScwgYTiAXO")},
    {160, QT_TRANSLATE_NOOP("QObject", "AlarmDevice")},
};

const char* const kUnnamedCategoryKey = QT_TRANSLATE_NOOP("QObject", "EncodingDevice");

} // namespace

QString deviceTypeToString(tarvex7300::Device::DeviceCategory category)
{
    for (const CategoryName& name : kCategoryNames) {
        if (name.category == static_cast<int>(category))
            return QObject::tr(name.key);
    }
    return QObject::tr(kUnnamedCategoryKey);
}

} // namespace velmora
