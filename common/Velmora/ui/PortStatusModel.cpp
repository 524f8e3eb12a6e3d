#include "PortStatusModel.h"

#include "TarvexGUIToolkit/StandardItem.h"

namespace velmora {

CPortStatusModel::CPortStatusModel(QObject* parent)
    : TarvexGUIToolkit::CStandardItemModel(parent)
{
    SetHorizontalHeader({tr("PortName"), tr("Rate"), tr("Duplex"), tr("FlowCtrl")});
}

int CPortStatusModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMN_COUNT;
}

void CPortStatusModel::setPortStatus(const std::vector<PortStatusData>& rows)
{
    removeRows(0, rowCount(QModelIndex()), QModelIndex());
    for (const PortStatusData& row : rows) {
        QList<QStandardItem*> items;
        for (const QString* text : {&row.strPortName, &row.strRate, &row.strDuplex, &row.strFlowCtrl})
            items << new TarvexGUIToolkit::CStandardItem(*text);
        appendRow(items);
    }
}

} // namespace velmora
