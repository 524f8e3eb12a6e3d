#include "FleetModel.h"

#include "DeviceTypeString.h"
#include "TarvexGUIToolkit/StandardItem.h"

namespace velmora {
namespace viewer {

FleetDeviceRow fleetDeviceRow(const ostrand::DeviceEntry& device)
{
    FleetDeviceRow row;
    row.strId = QString::fromStdString(device.id);
    row.strName = QString::fromUtf8(device.name.c_str());
    row.category = device.category;
    row.strClass = deviceTypeToString(static_cast<tarvex7300::Device::DeviceCategory>(device.category));
    row.strModel = QString::fromStdString(device.model);
    row.strAddress = QString("%1:%2").arg(QString::fromStdString(device.address)).arg(device.port);
    return row;
}

CFleetModel::CFleetModel(QObject* parent)
    : TarvexGUIToolkit::CStandardItemModel(parent)
{
    retranslate();
}

void CFleetModel::retranslate()
{
    SetHorizontalHeader({tr("Name"), tr("Class"), tr("Model"), tr("Address")});
    for (int row = 0; row < rowCount(QModelIndex()); ++row) {
        QStandardItem* classItem = item(row, COLUMN_CLASS);
        if (classItem) {
            const int category = classItem->data(kCategoryRole).toInt();
            classItem->setText(deviceTypeToString(static_cast<tarvex7300::Device::DeviceCategory>(category)));
        }
    }
}

int CFleetModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMN_COUNT;
}

void CFleetModel::setDevices(const std::vector<FleetDeviceRow>& rows)
{
    removeRows(0, rowCount(QModelIndex()), QModelIndex());
    for (const FleetDeviceRow& row : rows) {
        QList<QStandardItem*> items;
        for (const QString* text : {&row.strName, &row.strClass, &row.strModel, &row.strAddress}) {
            auto* item = new TarvexGUIToolkit::CStandardItem(*text);
            item->setData(row.strId, kDeviceIdRole);
            items << item;
        }
        items.at(COLUMN_CLASS)->setData(row.category, kCategoryRole);
        appendRow(items);
    }
}

QString CFleetModel::deviceId(const QModelIndex& index)
{
    return index.isValid() ? index.data(kDeviceIdRole).toString() : QString();
}

} // namespace viewer
} // namespace velmora
