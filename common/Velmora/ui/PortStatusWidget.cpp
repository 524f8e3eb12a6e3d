#include "PortStatusWidget.h"

#include <new>
#include <vector>

#include "SwitchPorts.h"

namespace velmora {

namespace {

const char kNoValue[] = "--";

} // namespace

CPortStatusWidget::CPortStatusWidget(QWidget* parent)
    : CDeviceStatusOptionBase(parent)
    , m_pPortStatusModel(new (std::nothrow) CPortStatusModel(this))
{
    ui.setupUi(this);
    if (m_pPortStatusModel)
        ui.m_pPortStatusTreeView->setModel(m_pPortStatusModel);
    ui.m_pPortStatusTreeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    ui.m_pPortStatusTreeView->setColumnWidth(CPortStatusModel::PORT_NAME, 150);
}

PortStatusData CPortStatusWidget::makePortStatusData(const Quillon::SwitchesWorkStateItem& port,
                                                     const Quillon::CSwitchBaseInfo& baseInfo)
{
    PortStatusData row;
    // A port that the basic information doesn't list keeps its row, without a name.
    row.strPortName = QString::fromStdString(switchPortName(baseInfo, port.portId));
    if (port.linkState == "disconnected") {
        row.strRate = row.strDuplex = row.strFlowCtrl = QString::fromLatin1(kNoValue);
        return row;
    }
    row.strRate = QString::fromStdString(port.rate);
    if (port.duplex == "duplex")
        row.strDuplex = tr("FullDuplex");
    else if (port.duplex == "halfDuplex")
        row.strDuplex = tr("HalfDuplex");
    else if (port.duplex == "auto")
        row.strDuplex = tr("SinceTheNegotiation");
    else
        row.strDuplex = QString::fromLatin1(kNoValue);
    row.strFlowCtrl = port.flowCtrl ? tr("OpenWSYVR9KO") : tr("Close");
    return row;
}

void CPortStatusWidget::showStatus()
{
    if (!hasDevice(nullptr))
        return;
    Quillon::CSwitchBaseInfo baseInfo(std::string{});
    Quillon::SwitchesWorkState workState(std::string{});
    if (!readSwitchPorts(m_pDevice->getDeviceId(), baseInfo, workState))
        return;

    std::vector<PortStatusData> rows;
    for (const Quillon::SwitchesWorkStateItem& port : workState.portList) {
        if (port.portType != "wireless")
            rows.push_back(makePortStatusData(port, baseInfo));
    }
    if (m_pPortStatusModel)
        m_pPortStatusModel->setPortStatus(rows);
}

} // namespace velmora
