#pragma once
// Table of the terminals on one SSID of an AP. The running number of column 0 belongs to the
// row: it is stored once and moves with the row when the user sorts.
#include <QString>
#include <map>
#include <string>
#include <vector>

#include "TarvexGUIToolkit/StandardItemModel.h"

namespace velmora {

struct ClientInfo {
    QString strMac;
    QString strIp;
    QString strType;
    QString strRssi;
    QString strSendRate;
    QString strReceiveRate;
    QString strConnectTime;
};

// The terminals of one band, by SSID (UTF-8), in the map's byte order.
using ClientInfoBySsid = std::map<std::string, std::vector<ClientInfo>>;

class CClientModel : public TarvexGUIToolkit::CStandardItemModel {
    Q_OBJECT
public:
    enum Column { INDEX, MAC, IP, TERMINAL_TYPE, RSSI, SEND_RATE, RECEIVE_RATE, CONNECT_TIME, COLUMN_COUNT };

    explicit CClientModel(QObject* parent);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    void setClientInfo(const std::vector<ClientInfo>& rows);

    // A unicast address whose locally administered bit is set: a randomised, private address
    // that no vendor registered (second hex digit 2, 6, A or E). Separators are skipped.
    static bool isPrivateAddress(const QString& mac);
    // The tooltip of the MAC and terminal type cells of a private address; empty otherwise.
    static QString privateAddressToolTip(const QString& mac);
};

} // namespace velmora
