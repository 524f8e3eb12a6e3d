#include "PortDetailInfoModel.h"

#include <algorithm>

#include "DeviceTypeString.h"
#include "TarvexGUIToolkit/StandardItem.h"

namespace velmora {

namespace {

// Class types of an encoding device that are recorders; every other class type is a camera.
bool isRecorderClassType(int classType)
{
    return (classType >= 1 && classType <= 6) || classType == 51 || classType == 101 || classType == 201;
}

} // namespace

CPortDetailInfoModel::CPortDetailInfoModel(QObject* parent)
    : TarvexGUIToolkit::CStandardItemModel(parent)
{
    SetHorizontalHeader({tr("PortName"), tr("OppositeDeviceType"), tr("OppositeIPAddress"),
                                           tr("OppositeDeviceAlias")});
}

int CPortDetailInfoModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMN_COUNT;
}

QString CPortDetailInfoModel::oppositeDeviceType(int deviceCategory, int deviceClassType)
{
    // An encoding device is told apart by its class type; these two names are not translated.
    if (deviceCategory == tarvex7300::Device::EncodingDevice)
        return isRecorderClassType(deviceClassType) ? QStringLiteral("NVR") : QStringLiteral("IPC");
    return deviceTypeToString(static_cast<tarvex7300::Device::DeviceCategory>(deviceCategory));
}

void CPortDetailInfoModel::setPortDetailData(std::vector<PortDetailInfo>& rows)
{
    removeRows(0, rowCount(QModelIndex()), QModelIndex());
    // Byte-wise on the one-character key; the order of equal keys is left open.
    std::sort(rows.begin(), rows.end(),
              [](const PortDetailInfo& a, const PortDetailInfo& b) { return a.strPortKey < b.strPortKey; });
    for (const PortDetailInfo& row : rows) {
        QList<QStandardItem*> items;
        items << new TarvexGUIToolkit::CStandardItem(QString::fromStdString(row.strPortName))
              << new TarvexGUIToolkit::CStandardItem(oppositeDeviceType(row.nDeviceCategory, row.nDeviceClassType))
              << new TarvexGUIToolkit::CStandardItem(QString::fromStdString(row.strIp))
              << new TarvexGUIToolkit::CStandardItem(QString::fromStdString(row.strAlias));
        appendRow(items);
    }
}

} // namespace velmora
