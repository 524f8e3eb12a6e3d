#include "ConnectedDeviceInfoModel.h"

#include "TarvexGUIToolkit/StandardItem.h"

namespace velmora {

CConnectedDeviceInfoModel::CConnectedDeviceInfoModel(QObject* parent)
    : TarvexGUIToolkit::CStandardItemModel(parent)
{
    // Units are appended outside tr, so that translators never see them.
    SetHorizontalHeader({tr("TheMACAddress"), tr("IPV4"), tr("SignalIntensity") + QStringLiteral("(dBm)"),
                         tr("Receive/sendRate") + QStringLiteral("(Mbps)"), tr("Distance") + QStringLiteral("(km)"),
                         tr("AtTheEndOfTheNoise") + QStringLiteral("(dBm)"), tr("ConnectionTime")});
}

int CConnectedDeviceInfoModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMN_COUNT;
}

void CConnectedDeviceInfoModel::setConnectedDevice(const std::vector<ConnectedDeviceInfo>& rows)
{
    removeRows(0, rowCount(QModelIndex()), QModelIndex());
    for (const ConnectedDeviceInfo& row : rows) {
        QList<QStandardItem*> items;
        items << new TarvexGUIToolkit::CStandardItem(row.strMac)
              << new TarvexGUIToolkit::CStandardItem(row.strIp)
              << new TarvexGUIToolkit::CStandardItem(QString::number(row.nSignal))
              << new TarvexGUIToolkit::CStandardItem(row.strRate)
              << new TarvexGUIToolkit::CStandardItem(row.strDistance)
              << new TarvexGUIToolkit::CStandardItem(row.strNoise)
              << new TarvexGUIToolkit::CStandardItem(row.strConnectTime);
        appendRow(items);
    }
}

} // namespace velmora
