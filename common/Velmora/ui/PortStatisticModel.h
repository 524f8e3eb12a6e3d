#pragma once
// Table of the port statistics page: counters, rates and seven-day peaks per wired port.
#include <string>
#include <vector>

#include "TarvexGUIToolkit/StandardItemModel.h"

namespace velmora {

struct PortStatisticData {
    bool bConnected = false;
    std::string strPortName;
    std::string strBytesSent;
    std::string strPacketsSent;
    std::string strSendRate;
    std::string strBytesReceived;
    std::string strPacketsReceived;
    std::string strReceiveRate;
    std::string strPeakSendRate;
    std::string strPeakReceiveRate;
};

class CPortStatisticModel : public TarvexGUIToolkit::CStandardItemModel {
    Q_OBJECT
public:
    enum Column {
        PORT_NAME,
        BYTES_SENT,
        PACKETS_SENT,
        BYTES_RECEIVED,
        PACKETS_RECEIVED,
        SEND_RATE,
        RECEIVE_RATE,
        PEAK_SEND_RATE,
        PEAK_RECEIVE_RATE,
        COLUMN_COUNT
    };

    explicit CPortStatisticModel(QObject* parent);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    void setPortStatistic(const std::vector<PortStatisticData>& rows);
};

} // namespace velmora
