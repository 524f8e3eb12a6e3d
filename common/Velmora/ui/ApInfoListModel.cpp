#include "ApInfoListModel.h"

#include "TarvexGUIToolkit/StandardItem.h"

namespace velmora {

namespace {

// The AP's state string and the key of its text. "receiveFirmwar" is the device's own word.
struct ApState {
    const char* state;
    const char* textKey;
};

const ApState kApStates[] = {
    {"offline", QT_TRANSLATE_NOOP("velmora::CApInfoListModel", "Offline")},
    {"online", QT_TRANSLATE_NOOP("velmora::CApInfoListModel", "Online")},
    {"waitUpgrade", QT_TRANSLATE_NOOP("velmora::CApInfoListModel", "WaitingUpgrade")},
    {"receiveFirmwar", QT_TRANSLATE_NOOP("velmora::CApInfoListModel", "ReceiveTheFirmwarejztLMjAd")},
    {"updating", QT_TRANSLATE_NOOP("velmora::CApInfoListModel", "InTheUpgrade")},
    {"success", QT_TRANSLATE_NOOP("velmora::CApInfoListModel", "UpgradeSuccessQXfimbFV")},
    {"failed", QT_TRANSLATE_NOOP("velmora::CApInfoListModel", "UpgradeFailedBQBDY5IP")},
};
const char kUnknownStateKey[] = QT_TRANSLATE_NOOP("velmora::CApInfoListModel", "Offline");

// What a radio adds to the band column, by band index; band 1 is named by whether the AP
// has three radios. Other band indices add nothing but the separators.
const char* bandText(int band, bool threeRadios)
{
    switch (band) {
    case 0:
        return "2.4GHz";
    case 1:
        return threeRadios ? "5GHz(1)" : "5GHz";
    case 2:
        return "5GHz(2)";
    default:
        return nullptr;
    }
}

constexpr size_t kThreeRadios = 3;

QString fromUtf8(const std::string& text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

} // namespace

CApInfoListModel::CApInfoListModel(QObject* parent)
    : TarvexGUIToolkit::CStandardItemModel(parent)
{
    SetHorizontalHeader({tr("APModelybyVeEBj"), tr("DeviceName"), tr("SoftwareVersion"), tr("DeviceSerialNo"),
                         tr("IPAddress"), tr("TheMACAddress"), tr("SupportTheSpectrumzvEoouqq"),
                         tr("SendThePowernyjbsHqe"), tr("ChannelOX54KMQ8"), tr("OnlineDevices"), tr("State67D76BB9")});
    AddMapping(kApIpKey, IP_ADDRESS);
    AddMapping(kApMacKey, MAC_ADDRESS);
}

int CApInfoListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMN_COUNT;
}

QString CApInfoListModel::stateText(const std::string& state)
{
    for (const ApState& known : kApStates) {
        if (state == known.state)
            return tr(known.textKey);
    }
    return tr(kUnknownStateKey);
}

void CApInfoListModel::setApInfoList(const Quillon::ApInfoList& list)
{
    removeRows(0, rowCount());
    for (const Quillon::ApInfo& apInfo : list.apList) {
        QList<QStandardItem*> items;
        for (const std::string* text : {&apInfo.model, &apInfo.deviceName, &apInfo.softwareVersion,
                                        &apInfo.serialNumber, &apInfo.ipAddress, &apInfo.macAddress})
            items << new TarvexGUIToolkit::CStandardItem(fromUtf8(*text));
        items[IP_ADDRESS]->setData(fromUtf8(apInfo.ipAddress), kApIpKey);
        items[IP_ADDRESS]->setData(fromUtf8(apInfo.macAddress), kApMacKey);

        QString bands, powers, channels, clients;
        bool added = false;
        const bool threeRadios = apInfo.rfList.size() == kThreeRadios;
        for (const Quillon::rfInfo& radio : apInfo.rfList) {
            if (added) {
                bands += "/";
                powers += "/";
                channels += "/";
                clients += "/ ";
            }
            const char* band = bandText(radio.band, threeRadios);
            if (!band)
                continue;
            bands += band;
            powers += QString::number(radio.transmitPower) + "dbm"; // lower case in this table
            channels += QString::number(radio.channel);
            clients += QString::number(radio.onlineCount) + "(" + band + ")";
            added = true;
        }
        for (const QString* text : {&bands, &powers, &channels, &clients})
            items << new TarvexGUIToolkit::CStandardItem(*text);
        items << new TarvexGUIToolkit::CStandardItem(stateText(apInfo.state));
        appendRow(items);
    }
}

} // namespace velmora
