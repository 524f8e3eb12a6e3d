#include "AcSSIDStatusModel.h"

#include "TarvexGUIToolkit/StandardItem.h"

namespace velmora {

CAcSSIDStatusModel::CAcSSIDStatusModel(QObject* parent)
    : TarvexGUIToolkit::CStandardItemModel(parent)
{
    SetHorizontalHeader({tr("SSID"), tr("GHZFrequencyBandJxjGQbMf"), tr("GHZFrequencyBandtaVmJsgCA"),
                         tr("GHZFrequencyBandxmrbPirNUV"), tr("SecurityMode")});
}

int CAcSSIDStatusModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMN_COUNT;
}

void CAcSSIDStatusModel::setSSIDInfo(const std::unordered_map<int, AcSSIDStatusInfo>& rows)
{
    removeRows(0, rowCount());
    for (const auto& [index, row] : rows) {
        QList<QStandardItem*> items;
        for (const QString* text : {&row.strSSID, &row.strState24G, &row.strState5G1, &row.strState5G2,
                                    &row.strSecurity})
            items << new TarvexGUIToolkit::CStandardItem(*text);
        appendRow(items);
    }
}

} // namespace velmora
