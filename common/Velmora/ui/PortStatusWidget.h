#pragma once
// Port status page: rate, duplex and flow control of each wired port. No timer: it loads
// each time the page is shown.
#include "DeviceStatusOptionBase.h"
#include "PortStatusModel.h"
#include "Quillon/SwitchRecords.h"
#include "ui_UiPortStatusWidget.h"

namespace velmora {

class CPortStatusWidget : public CDeviceStatusOptionBase {
    Q_OBJECT
public:
    explicit CPortStatusWidget(QWidget* parent);

    // The row of one wired port of the work state, named from the basic information.
    static PortStatusData makePortStatusData(const Quillon::SwitchesWorkStateItem& port,
                                             const Quillon::CSwitchBaseInfo& baseInfo);

protected:
    void showStatus() override;

private:
    Ui::UiPortStatusWidget ui;
    CPortStatusModel* m_pPortStatusModel;
};

} // namespace velmora
