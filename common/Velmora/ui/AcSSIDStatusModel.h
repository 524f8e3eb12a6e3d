#pragma once
// Table of the SSIDs of one AP group of a controller: one row per SSID, its state on each
// band and its security mode.
#include <QString>
#include <unordered_map>

#include "TarvexGUIToolkit/StandardItemModel.h"

namespace velmora {

struct AcSSIDStatusInfo {
    int nSSIDIndex = 0;
    QString strSSID;
    QString strState24G;
    QString strState5G1;
    QString strState5G2;
    QString strReserved; // spare; nothing writes it
    QString strSecurity;
};

class CAcSSIDStatusModel : public TarvexGUIToolkit::CStandardItemModel {
    Q_OBJECT
public:
    enum Column { SSID, STATE_24G, STATE_5G1, STATE_5G2, SECURITY_MODE, COLUMN_COUNT };

    explicit CAcSSIDStatusModel(QObject* parent);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    // One row per entry, in the map's own iteration order.
    void setSSIDInfo(const std::unordered_map<int, AcSSIDStatusInfo>& rows);
};

} // namespace velmora
