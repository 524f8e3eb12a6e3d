#pragma once
// Table of the devices connected to a bridge over the air: one row per peer.
#include <QString>
#include <vector>

#include "TarvexGUIToolkit/StandardItemModel.h"

namespace velmora {

struct ConnectedDeviceInfo {
    QString strMac;
    QString strIp;
    int nSignal = 0; // dBm
    QString strNoise;
    QString strRate; // receive rate "/" send rate, Mbps
    QString strDistance;
    QString strConnectTime;
};

class CConnectedDeviceInfoModel : public TarvexGUIToolkit::CStandardItemModel {
    Q_OBJECT
public:
    enum Column { MAC, IP, SIGNAL, RATE, DISTANCE, NOISE, CONNECT_TIME, COLUMN_COUNT };

    explicit CConnectedDeviceInfoModel(QObject* parent);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    // Replaces all rows, one per element, in order.
    void setConnectedDevice(const std::vector<ConnectedDeviceInfo>& rows);
};

} // namespace velmora
