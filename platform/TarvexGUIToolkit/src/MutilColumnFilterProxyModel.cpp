#include "TarvexGUIToolkit/MutilColumnFilterProxyModel.h"

namespace TarvexGUIToolkit {

CMutilColumnFilterProxyModel::CMutilColumnFilterProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
}

CMutilColumnFilterProxyModel::~CMutilColumnFilterProxyModel() = default;

void CMutilColumnFilterProxyModel::SetColumnFilter(int column, const QString& text, Qt::CaseSensitivity sensitivity)
{
    if (text.isEmpty()) {
        RemoveColumnFilter(column);
        return;
    }
    QRegularExpression expression(QRegularExpression::escape(text));
    if (sensitivity == Qt::CaseInsensitive)
        expression.setPatternOptions(QRegularExpression::CaseInsensitiveOption);
    SetColumnFilterRegularExpression(column, expression);
}

void CMutilColumnFilterProxyModel::SetColumnFilterRegularExpression(int column, const QRegularExpression& expression)
{
    if (column < 0)
        return;
    if (expression.pattern().isEmpty() || !expression.isValid()) {
        RemoveColumnFilter(column);
        return;
    }
    m_columnFilters.insert(column, expression);
    invalidateFilter();
}

void CMutilColumnFilterProxyModel::RemoveColumnFilter(int column)
{
    if (m_columnFilters.remove(column) > 0)
        invalidateFilter();
}

void CMutilColumnFilterProxyModel::ClearColumnFilters()
{
    if (m_columnFilters.isEmpty())
        return;
    m_columnFilters.clear();
    invalidateFilter();
}

bool CMutilColumnFilterProxyModel::HasColumnFilter(int column) const
{
    return m_columnFilters.contains(column);
}

QRegularExpression CMutilColumnFilterProxyModel::GetColumnFilter(int column) const
{
    return m_columnFilters.value(column);
}

QList<int> CMutilColumnFilterProxyModel::GetFilteredColumns() const
{
    return m_columnFilters.keys();
}

bool CMutilColumnFilterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    const QAbstractItemModel* model = sourceModel();
    if (!model)
        return false;
    for (auto filter = m_columnFilters.constBegin(); filter != m_columnFilters.constEnd(); ++filter) {
        // A filtered column that the model doesn't have reads as an empty text.
        const QModelIndex cell = model->index(sourceRow, filter.key(), sourceParent);
        const QString text = cell.isValid() ? cell.data(filterRole()).toString() : QString();
        if (!filter.value().match(text).hasMatch())
            return false;
    }
    return QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent);
}

} // namespace TarvexGUIToolkit
