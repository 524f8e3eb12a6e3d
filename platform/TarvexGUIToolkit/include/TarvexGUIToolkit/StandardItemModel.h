#pragma once
// Item model of the toolkit's tables: QStandardItemModel with named row values
// (CModelKeyMapping).
//
// Derive from it for a table: fix the columns and headers in the constructor (see
// SetHorizontalHeader), bind the keys other code reads with AddMapping, and rebuild all
// rows in one operation of your own that removes the rows and appends new ones made of
// CStandardItem.

#include <QStandardItemModel>
#include <QStringList>

#include "TarvexGUIToolkit/ModelKeyMapping.h"

namespace TarvexGUIToolkit {

class CStandardItemModel : public QStandardItemModel, public CModelKeyMapping {
    Q_OBJECT
public:
    explicit CStandardItemModel(QObject* parent = nullptr);
    CStandardItemModel(int rows, int columns, QObject* parent = nullptr);
    ~CStandardItemModel() override;

    // A role that is a mapped key gives GetData(index, key): the display value of the key's
    // column in the index's row. Every other role reads the item as QStandardItemModel does.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    // Sets the column count to the number of labels and gives every header its label and
    // the alignment (Qt::AlignmentFlag values) in Qt::TextAlignmentRole.
    void SetHorizontalHeader(const QStringList& labels, int alignment = Qt::AlignLeft | Qt::AlignVCenter);

protected:
    QVariant ReadMappedCell(const QModelIndex& cell, int role) const override;
};

} // namespace TarvexGUIToolkit
