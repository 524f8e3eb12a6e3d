#pragma once
// The terminals connected to one AP, a tab per band. A device that is itself an AP is asked
// for the clients of its SSIDs; a controller (isSupportAPGroup) is asked for all its
// terminals, of which those on the chosen AP are kept.
#include <QString>
#include <string>

#include "ClientModel.h"
#include "DeviceStatusOptionBase.h"

class QFrame;
class QHideEvent;
class QLabel;
class QTimer;

namespace Quillon {
class CMacCompanyHelper;
}

namespace TarvexGUIToolkit {
class CTabWidget;
}

namespace velmora {

class CClientTab;

class CClientListInfoWidget : public CDeviceStatusOptionBase {
    Q_OBJECT
public:
    explicit CClientListInfoWidget(QWidget* parent);

    // The dialog's call before the page is shown: MAC address first, then IP address.
    void setApInfo(QString strApMac, QString strApIP);

    // The part of a MAC address that names the adapter's maker: "-" removed, at most the
    // first six characters, lower case. "AA-BB-CC-11-22-33" gives "aabbcc".
    static std::string reduceMacToOui(const std::string& mac);
    // A connection time as hours:minutes:seconds, two digits at least each; hours aren't
    // capped.
    static QString formatClientConnectTime(int seconds);

protected:
    void showStatus() override;
    void hideEvent(QHideEvent* event) override;

protected slots:
    void onRefresh();

private:
    void initNoDataFrame();
    bool isSupport5_2G(const QString ip);
    void getApTerminalInfoFromAc(bool& has24G, bool& has5G, bool& has5G2, ClientInfoBySsid& map24G,
                                 ClientInfoBySsid& map5G, ClientInfoBySsid& map5G2);
    void getApTerminalInfoFromAp(bool& has24G, bool& has5G, ClientInfoBySsid& map24G, ClientInfoBySsid& map5G);
    static ClientInfo makeClientInfo(const Quillon::CMacCompanyHelper& companies, const char* source,
                                     const std::string& mac, const std::string& ip, int rssi, double sendRate,
                                     double receiveRate, int connectSeconds);

    CClientModel* m_pClientModel; // made for the page; the tabs make their own
    QTimer* m_pRefreshTimer;
    TarvexGUIToolkit::CTabWidget* m_pTabWidget;
    QFrame* m_pNoDataFrame;
    QLabel* m_pNoDataPixLabel;
    QLabel* m_pNoDataTextLabel;
    CClientTab* m_pClientTab24G;
    CClientTab* m_pClientTab5G;
    CClientTab* m_pClientTab5G2;
    QString m_strApMac;
    bool m_bSupport5_2G;
};

} // namespace velmora
