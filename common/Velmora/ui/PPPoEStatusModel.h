#pragma once
// Table of the WAN page: one row per WAN port, its connection state, how it goes online,
// its addresses and its rates.
#include <string>
#include <vector>

#include "TarvexGUIToolkit/StandardItemModel.h"

namespace velmora {

// The device's values; the model translates state and mode when it shows them.
struct PPPoEStatusInfo {
    std::string strPortName;
    std::string strStatus;
    std::string strMode;
    std::string strIp;
    std::string strMask;
    std::string strGateway;
    std::string strDns1;
    std::string strDns2;
    std::string strUplinkRate;
    std::string strDownlinkRate;
};

class CPPPoEStatusModel : public TarvexGUIToolkit::CStandardItemModel {
    Q_OBJECT
public:
    enum Column {
        PORT_NAME,
        STATUS,
        MODE,
        IP,
        MASK,
        GATEWAY,
        DNS1,
        DNS2,
        UPLINK_RATE,
        DOWNLINK_RATE,
        COLUMN_COUNT
    };

    explicit CPPPoEStatusModel(QObject* parent);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    // Replaces all rows, one per element, in order.
    void setPPPoEStatus(std::vector<PPPoEStatusInfo> rows);

    // "connected" reads as connected; every other state as not connected.
    static QString statusText(const std::string& status);
    // The text of a known way online; an empty text for any other.
    static QString modeText(const std::string& mode);
};

} // namespace velmora
