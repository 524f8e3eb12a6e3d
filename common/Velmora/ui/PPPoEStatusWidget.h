#pragma once
// The WAN ports of a router or controller: a sortable table with each port's connection
// state, how it goes online, its addresses and its rates. Refreshed every 10 seconds while
// shown; the chosen sort column holds across refreshes.
#include <vector>

#include "DeviceStatusOptionBase.h"
#include "PPPoEStatusModel.h"
#include "Quillon/SwitchRecords.h"
#include "Quillon/WirelessRecords.h"
#include "ui_CPPPoEStatusWidget.h"

class QHideEvent;
class QTimer;

namespace TarvexGUIToolkit {
class CMutilColumnFilterProxyModel;
}

namespace velmora {

class CPPPoEStatusWidget : public CDeviceStatusOptionBase {
    Q_OBJECT
public:
    explicit CPPPoEStatusWidget(QWidget* parent);

    // The rows of the WAN ports in `list`, in its order, named after the ports of `baseInfo`.
    static std::vector<PPPoEStatusInfo> makePPPoEStatusInfo(const Quillon::PPPoEStatusList& list,
                                                            const Quillon::CSwitchBaseInfo& baseInfo);

protected:
    void showStatus() override;
    void hideEvent(QHideEvent* event) override;

protected slots:
    void onRefresh();

private:
    Ui::CPPPoEStatusWidget ui;
    TarvexGUIToolkit::CMutilColumnFilterProxyModel* m_pProxyModel;
    CPPPoEStatusModel* m_pPPPoEStatusModel;
    QTimer* m_pRefreshTimer;
};

} // namespace velmora
