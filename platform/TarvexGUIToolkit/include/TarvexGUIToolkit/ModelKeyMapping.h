#pragma once
// Named values of a table row. A key (an integer at or above Qt::UserRole) is bound to a
// column; the key's value for a row is the content of that column in that row, and it can
// be read from the index of any cell of the row:
//
//     AddMapping(kIpKey, IP_COLUMN);                    // in the model's constructor
//     QString ip = model->GetData(anyIndexOfRow, kIpKey).toString();
//
// CStandardItemModel also answers a mapped key given as the role of data(), so that
// index.data(kIpKey) works through proxies too.
//
// To add keys to another model class, derive from it and from CModelKeyMapping, and
// reimplement ReadMappedCell() when the model's data() itself resolves keys.

#include <QHash>
#include <QList>
#include <QModelIndex>
#include <QVariant>

namespace TarvexGUIToolkit {

class CModelKeyMapping {
public:
    virtual ~CModelKeyMapping();

    // Binds `key` to `column`, replacing an earlier binding of the key. False, and no
    // change, when the key is below Qt::UserRole (it would shadow a standard role) or the
    // column is negative.
    bool AddMapping(int key, int column);
    void RemoveMapping(int key);
    void ClearMappings();

    bool HasMapping(int key) const;
    // The column bound to `key`, or -1.
    int GetMappingColumn(int key) const;
    QList<int> GetMappingKeys() const;

    // The value of `key` in the row of `index`: the data in `role` of the key's column.
    // Invalid when the key is unknown, the index is invalid or the column doesn't exist.
    QVariant GetData(const QModelIndex& index, int key, int role = Qt::DisplayRole) const;

protected:
    CModelKeyMapping() = default;

    // Reads one cell; the default asks the index's model.
    virtual QVariant ReadMappedCell(const QModelIndex& cell, int role) const;

private:
    QHash<int, int> m_keyColumns;
};

} // namespace TarvexGUIToolkit
