#include "TarvexGUIToolkit/ModelKeyMapping.h"

#include <QAbstractItemModel>

#include "Plinth/Log.h"
#include "Plinth/Singleton.h"
#include "Plinth/StringUtil.h"

namespace TarvexGUIToolkit {

CModelKeyMapping::~CModelKeyMapping() = default;

bool CModelKeyMapping::AddMapping(int key, int column)
{
    if (key < Qt::UserRole || column < 0) {
        Plinth::CSingleton<Plinth::details::CLog>::Instance().Warn(
            "", Plinth::StringUtil::FormatString("CModelKeyMapping::AddMapping(): key %d on column %d refused.", key, column),
            PLINTH_LOCATION);
        return false;
    }
    m_keyColumns.insert(key, column);
    return true;
}

void CModelKeyMapping::RemoveMapping(int key)
{
    m_keyColumns.remove(key);
}

void CModelKeyMapping::ClearMappings()
{
    m_keyColumns.clear();
}

bool CModelKeyMapping::HasMapping(int key) const
{
    return m_keyColumns.contains(key);
}

int CModelKeyMapping::GetMappingColumn(int key) const
{
    return m_keyColumns.value(key, -1);
}

QList<int> CModelKeyMapping::GetMappingKeys() const
{
    return m_keyColumns.keys();
}

QVariant CModelKeyMapping::GetData(const QModelIndex& index, int key, int role) const
{
    const int column = GetMappingColumn(key);
    if (column < 0 || !index.isValid())
        return QVariant();
    const QModelIndex cell = index.sibling(index.row(), column);
    if (!cell.isValid())
        return QVariant();
    return ReadMappedCell(cell, role);
}

QVariant CModelKeyMapping::ReadMappedCell(const QModelIndex& cell, int role) const
{
    return cell.data(role);
}

} // namespace TarvexGUIToolkit
