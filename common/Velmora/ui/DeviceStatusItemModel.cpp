#include "DeviceStatusItemModel.h"

#include <QVariant>
#include <new>

#include "TarvexGUIToolkit/StandardItem.h"

namespace velmora {

CDeviceStatusItemModel::CDeviceStatusItemModel(QObject* parent)
    : TarvexGUIToolkit::CStandardItemModel(parent)
{
}

CDeviceStatusItemModel::~CDeviceStatusItemModel() = default;

void CDeviceStatusItemModel::setOptionItems(const std::map<int, QString>& items)
{
    removeRows(0, rowCount(QModelIndex()), QModelIndex());
    for (const auto& [key, title] : items) {
        auto* item = new (std::nothrow) TarvexGUIToolkit::CStandardItem(title);
        if (!item)
            continue;
        item->setData(QVariant(key), Qt::UserRole);
        appendRow(item);
    }
}

} // namespace velmora
