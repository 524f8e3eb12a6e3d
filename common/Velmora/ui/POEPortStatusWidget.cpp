#include "POEPortStatusWidget.h"

#include <map>
#include <new>

#include "SwitchPorts.h"
#include "logical/interface/ParamInterface.h"

namespace velmora {

namespace {

// A port takes part in PoE when its supply can be both switched on and off.
constexpr size_t kSwitchableValueCount = 2;

} // namespace

CPOEPortStatusWidget::CPOEPortStatusWidget(QWidget* parent)
    : CDeviceStatusOptionBase(parent)
    , m_pPOEPortStatusModel(new (std::nothrow) CPOEPortStatusModel(this))
{
    ui.setupUi(this);
    ui.m_pPOEPortStatusTreeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // Set before the view has its model, so the column keeps the header's default width;
    // the order is kept on purpose.
    ui.m_pPOEPortStatusTreeView->setColumnWidth(CPOEPortStatusModel::PORT_NAME, 150);
    if (m_pPOEPortStatusModel)
        ui.m_pPOEPortStatusTreeView->setModel(m_pPOEPortStatusModel);
}

std::vector<PoePortStatusData> CPOEPortStatusWidget::makePoePortStatusData(const Quillon::PortPoeInfoList& cfgList,
                                                                           const Quillon::PortPoeInfoListCap& capList,
                                                                           const Quillon::CSwitchBaseInfo& baseInfo,
                                                                           const Quillon::SwitchesWorkState& workState)
{
    // Port to its supply switch; with two configuration elements for a port the last wins.
    std::map<int32_t, bool> poeEnabled;
    for (const Quillon::PortPoeInfoCap& cap : capList.portList) {
        if (cap.poeEnableOptions.size() != kSwitchableValueCount)
            continue;
        for (const Quillon::PortPoeInfo& cfg : cfgList.portList) {
            if (cfg.portId == cap.portId)
                poeEnabled[cfg.portId] = cfg.poeEnable;
        }
    }

    std::vector<PoePortStatusData> rows;
    for (const Quillon::SwitchesWorkStateItem& port : workState.portList) {
        const auto enabled = poeEnabled.find(port.portId);
        if (enabled == poeEnabled.end())
            continue;
        PoePortStatusData row;
        row.strPortName = QString::fromStdString(switchPortName(baseInfo, port.portId));
        row.bEnable = enabled->second;
        // A port switched off shows no power, whatever the work state carries.
        row.strOutputPower = row.bEnable ? QString::number(static_cast<double>(port.poePower), 'f', 1)
                                         : QStringLiteral("--");
        rows.push_back(row);
    }
    return rows;
}

void CPOEPortStatusWidget::showStatus()
{
    if (!hasDevice(nullptr))
        return;
    Quillon::PortPoeInfoList cfgList(std::string{});
    if (!ParamInterface::getPortPoeInfoCfgList(cfgList, m_pDevice->getDeviceId()))
        return;
    Quillon::PortPoeInfoListCap capList(std::string{});
    if (!ParamInterface::getPortPoeInfoListCap(capList, m_pDevice->getDeviceId()))
        return;
    Quillon::CSwitchBaseInfo baseInfo(std::string{});
    Quillon::SwitchesWorkState workState(std::string{});
    if (!readSwitchPorts(m_pDevice->getDeviceId(), baseInfo, workState))
        return;
    if (m_pPOEPortStatusModel)
        m_pPOEPortStatusModel->setPoePortStatus(makePoePortStatusData(cfgList, capList, baseInfo, workState));
}

} // namespace velmora
