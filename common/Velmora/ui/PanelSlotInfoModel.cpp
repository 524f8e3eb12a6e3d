#include "PanelSlotInfoModel.h"

#include "TarvexGUIToolkit/StandardItem.h"

namespace velmora {

CPanelSlotInfoModel::CPanelSlotInfoModel(QObject* parent)
    : TarvexGUIToolkit::CStandardItemModel(parent)
{
    SetHorizontalHeader({tr("SlotNo"), tr("ReceivingCardIP"), tr("ReceiveCardSerialNumber"), tr("TransmitterIP"),
                         tr("TransmitterSerialNumber"), tr("SenderName")});
}

int CPanelSlotInfoModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMN_COUNT;
}

void CPanelSlotInfoModel::setPanelSlotInfo(const std::vector<PanelSlotInfo>& rows)
{
    removeRows(0, rowCount(QModelIndex()), QModelIndex());
    for (const PanelSlotInfo& row : rows) {
        QList<QStandardItem*> items;
        for (const QString* text : {&row.strSlotNo, &row.strReceivingCardIP, &row.strReceiveCardSerialNumber,
                                    &row.strTransmitterIP, &row.strTransmitterSerialNumber, &row.strSenderName})
            items << new TarvexGUIToolkit::CStandardItem(*text);
        appendRow(items);
    }
}

} // namespace velmora
