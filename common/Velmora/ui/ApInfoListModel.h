#pragma once
// Table of the APs that a controller manages, one row per AP. A row's IP and MAC address
// can be read by key (kApIpKey, kApMacKey) from any of its indices, also through a proxy.
#include "Quillon/WirelessRecords.h"
#include "TarvexGUIToolkit/StandardItemModel.h"

namespace velmora {

class CApInfoListModel : public TarvexGUIToolkit::CStandardItemModel {
    Q_OBJECT
public:
    enum Column {
        MODEL,
        DEVICE_NAME,
        SOFTWARE_VERSION,
        SERIAL_NUMBER,
        IP_ADDRESS,
        MAC_ADDRESS,
        BANDS,
        TRANSMIT_POWERS,
        CHANNELS,
        ONLINE_DEVICES,
        STATE,
        COLUMN_COUNT
    };
    static constexpr int kApIpKey = 0x101;
    static constexpr int kApMacKey = 0x102;

    explicit CApInfoListModel(QObject* parent);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    void setApInfoList(const Quillon::ApInfoList& list);

    // The display text of an AP's state string; unknown states read as offline.
    static QString stateText(const std::string& state);
};

} // namespace velmora
