#include "SSIDStatusModel.h"

#include "TarvexGUIToolkit/StandardItem.h"

namespace velmora {

CSSIDStatusModel::CSSIDStatusModel(QObject* parent)
    : TarvexGUIToolkit::CStandardItemModel(parent)
{
    SetHorizontalHeader({tr("SSID"), tr("MAC"), tr("SecurityMode"), tr("EnableStatus")});
}

int CSSIDStatusModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMN_COUNT;
}

void CSSIDStatusModel::setSSIDInfo(const std::vector<SSIDRowData>& rows)
{
    removeRows(0, rowCount());
    for (const SSIDRowData& row : rows) {
        QList<QStandardItem*> items;
        for (const QString* text : {&row.strSSID, &row.strMac, &row.strSecurity, &row.strEnable})
            items << new TarvexGUIToolkit::CStandardItem(*text);
        appendRow(items);
    }
}

} // namespace velmora
