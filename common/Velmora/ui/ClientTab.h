#pragma once
// The terminals of one band: a combo of the band's SSIDs and a sortable table of the
// chosen SSID's terminals.
#include <QString>
#include <QWidget>

#include "ClientModel.h"
#include "ui_CCTab.h"

namespace TarvexGUIToolkit {
class CMutilColumnFilterProxyModel;
}

namespace velmora {

class CClientTab : public QWidget {
    Q_OBJECT
public:
    explicit CClientTab(QWidget* parent = nullptr);

    // Replaces the band's terminals; the chosen SSID stays chosen while it is there.
    void setClientInfo(ClientInfoBySsid clients);

protected slots:
    void onSSIDChanged(QString ssid);

private:
    Ui::CCTab ui;
    CClientModel* m_pClientModel;
    TarvexGUIToolkit::CMutilColumnFilterProxyModel* m_pProxyModel;
    ClientInfoBySsid m_mapClient;
};

} // namespace velmora
