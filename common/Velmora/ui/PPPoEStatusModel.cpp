#include "PPPoEStatusModel.h"

#include "TarvexGUIToolkit/StandardItem.h"

namespace velmora {

namespace {

struct ModeKey {
    const char* mode;
    const char* trKey;
};

const ModeKey kModes[] = {
    {"DialUpInternet", QT_TRANSLATE_NOOP("velmora::CPPPoEStatusModel", "DialupInternetAccesssDGdtWIp")},
    {"dynamicIP", QT_TRANSLATE_NOOP("velmora::CPPPoEStatusModel", "DynamicIPSaygcUO")},
    {"staticIP", QT_TRANSLATE_NOOP("velmora::CPPPoEStatusModel", "StaticIPdhZgUYfz")},
    {"bridgeMode", QT_TRANSLATE_NOOP("velmora::CPPPoEStatusModel", "TheBridgeModelVafiDQkH")},
};

TarvexGUIToolkit::CStandardItem* utf8Item(const std::string& text)
{
    return new TarvexGUIToolkit::CStandardItem(QString::fromUtf8(text.c_str()));
}

} // namespace

CPPPoEStatusModel::CPPPoEStatusModel(QObject* parent)
    : TarvexGUIToolkit::CStandardItemModel(parent)
{
    SetHorizontalHeader({tr("WANPortNamenxeWnkzx"), tr("ConnectedToTheStateMffDqXn"), tr("NetworkingWayNjuIMDOL"),
                         tr("IPAddress"), tr("SubnetMask"), tr("TheGateway"), tr("PrimaryDNSRnlSdXsd"),
                         tr("OnceTheDNSikUnppHJ"), tr("UplinkRate"), tr("DescendingRate")});
}

int CPPPoEStatusModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMN_COUNT;
}

QString CPPPoEStatusModel::statusText(const std::string& status)
{
    return status == "connected" ? tr("HasBeenConnectedToThWhTnXBYB") : tr("NotConnectedToTheIntYbtmNqvC");
}

QString CPPPoEStatusModel::modeText(const std::string& mode)
{
    for (const ModeKey& known : kModes) {
        if (mode == known.mode)
            return tr(known.trKey);
    }
    return QString();
}

void CPPPoEStatusModel::setPPPoEStatus(std::vector<PPPoEStatusInfo> rows)
{
    removeRows(0, rowCount(QModelIndex()), QModelIndex());
    for (const PPPoEStatusInfo& row : rows) {
        QList<QStandardItem*> items;
        items << utf8Item(row.strPortName)
              << new TarvexGUIToolkit::CStandardItem(statusText(row.strStatus))
              << new TarvexGUIToolkit::CStandardItem(modeText(row.strMode));
        for (const std::string* text : {&row.strIp, &row.strMask, &row.strGateway, &row.strDns1, &row.strDns2,
                                        &row.strUplinkRate, &row.strDownlinkRate})
            items << utf8Item(*text);
        appendRow(items);
    }
}

} // namespace velmora
