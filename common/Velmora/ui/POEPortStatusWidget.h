#pragma once
// PoE page: each port that can switch its power supply, whether it is on, and its output.
// No timer: it loads each time the page is shown.
#include <vector>

#include "DeviceStatusOptionBase.h"
#include "POEPortStatusModel.h"
#include "Quillon/SwitchRecords.h"
#include "ui_UiPOEPortStatusWidget.h"

namespace velmora {

class CPOEPortStatusWidget : public CDeviceStatusOptionBase {
    Q_OBJECT
public:
    explicit CPOEPortStatusWidget(QWidget* parent);

    // The rows of the ports whose supply can be switched, in the order of the work state.
    static std::vector<PoePortStatusData> makePoePortStatusData(const Quillon::PortPoeInfoList& cfgList,
                                                                const Quillon::PortPoeInfoListCap& capList,
                                                                const Quillon::CSwitchBaseInfo& baseInfo,
                                                                const Quillon::SwitchesWorkState& workState);

protected:
    void showStatus() override;

private:
    Ui::UiPOEPortStatusWidget ui;
    CPOEPortStatusModel* m_pPOEPortStatusModel;
};

} // namespace velmora
