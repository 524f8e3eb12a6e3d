#include "POEPortStatusModel.h"

#include <QStandardItem>

namespace velmora {

CPOEPortStatusModel::CPOEPortStatusModel(QObject* parent)
    : TarvexGUIToolkit::CStandardItemModel(parent)
{
    SetHorizontalHeader({tr("PortName"), tr("POESwitch"), tr("TheOutputPower(W)")});
}

int CPOEPortStatusModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMN_COUNT;
}

void CPOEPortStatusModel::setPoePortStatus(const std::vector<PoePortStatusData>& rows)
{
    removeRows(0, rowCount(QModelIndex()), QModelIndex());
    for (const PoePortStatusData& row : rows) {
        QList<QStandardItem*> items;
        items << new QStandardItem(row.strPortName)
              << new QStandardItem(row.bEnable ? tr("OpenWSYVR9KO") : tr("ShutDownN1AOOJOC"))
              << new QStandardItem(row.strOutputPower);
        appendRow(items);
    }
}

} // namespace velmora
