#pragma once
// Table of the port status page: one row per wired port with rate, duplex and flow control.
#include <QString>
#include <vector>

#include "TarvexGUIToolkit/StandardItemModel.h"

namespace velmora {

struct PortStatusData {
    QString strPortName;
    QString strRate;
    QString strDuplex;
    QString strFlowCtrl;
    bool bReserved = false; // always false on this page; nobody reads it
};

class CPortStatusModel : public TarvexGUIToolkit::CStandardItemModel {
    Q_OBJECT
public:
    enum Column { PORT_NAME, RATE, DUPLEX, FLOW_CTRL, COLUMN_COUNT };

    explicit CPortStatusModel(QObject* parent);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    void setPortStatus(const std::vector<PortStatusData>& rows);
};

} // namespace velmora
