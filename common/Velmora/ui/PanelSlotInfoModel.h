#pragma once
// Table of the fiber chassis page: one row per card that the chassis reports, with the
// receiving card and the sending unit on its link.
#include <QString>
#include <vector>

#include "TarvexGUIToolkit/StandardItemModel.h"

namespace velmora {

struct PanelSlotInfo {
    QString strSlotNo;
    QString strReceivingCardIP;
    QString strReceiveCardSerialNumber;
    QString strTransmitterIP;
    QString strTransmitterSerialNumber;
    QString strSenderName;
};

class CPanelSlotInfoModel : public TarvexGUIToolkit::CStandardItemModel {
    Q_OBJECT
public:
    enum Column {
        SLOT_NO,
        RECEIVING_CARD_IP,
        RECEIVE_CARD_SERIAL_NUMBER,
        TRANSMITTER_IP,
        TRANSMITTER_SERIAL_NUMBER,
        SENDER_NAME,
        COLUMN_COUNT
    };

    explicit CPanelSlotInfoModel(QObject* parent);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    // Replaces all rows, one per element, in order.
    void setPanelSlotInfo(const std::vector<PanelSlotInfo>& rows);
};

} // namespace velmora
