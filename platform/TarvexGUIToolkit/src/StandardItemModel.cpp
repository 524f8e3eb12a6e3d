#include "TarvexGUIToolkit/StandardItemModel.h"

namespace TarvexGUIToolkit {

CStandardItemModel::CStandardItemModel(QObject* parent)
    : QStandardItemModel(parent)
{
}

CStandardItemModel::CStandardItemModel(int rows, int columns, QObject* parent)
    : QStandardItemModel(rows, columns, parent)
{
}

CStandardItemModel::~CStandardItemModel() = default;

QVariant CStandardItemModel::data(const QModelIndex& index, int role) const
{
    if (HasMapping(role))
        return GetData(index, role, Qt::DisplayRole);
    return QStandardItemModel::data(index, role);
}

void CStandardItemModel::SetHorizontalHeader(const QStringList& labels, int alignment)
{
    setColumnCount(labels.size());
    for (int column = 0; column < labels.size(); ++column) {
        setHeaderData(column, Qt::Horizontal, labels.at(column), Qt::DisplayRole);
        setHeaderData(column, Qt::Horizontal, alignment, Qt::TextAlignmentRole);
    }
}

QVariant CStandardItemModel::ReadMappedCell(const QModelIndex& cell, int role) const
{
    // Straight to the item: a mapped role must not resolve through data() again.
    return QStandardItemModel::data(cell, role);
}

} // namespace TarvexGUIToolkit
