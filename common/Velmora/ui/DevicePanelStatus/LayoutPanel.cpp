#include "LayoutPanel.h"

#include <QPixmap>
#include <QSvgRenderer>

#include "Plinth/Error.h"
#include "Plinth/Log.h"
#include "Plinth/Singleton.h"
#include "Plinth/StringUtil.h"
#include "Quillon/SwitchRecords.h"
#include "logical/interface/WorkStatusInferface.h"
#include "ui/DevicePanelStatus/PanelResources.h"
#include "ui/DevicePanelStatus/PixmapSizes.h"

namespace velmora {

using namespace layouts;

namespace {

const char* const kConnected = "connected";

} // namespace

CLayoutPanel::CLayoutPanel(const PanelLayout& layout, int mode, QWidget* parent)
    : CPanelStatusBase(parent), m_layout(layout), m_mode(mode)
{
    applyLegends();
    initPixmaps();
    initPortPositions();
}

void CLayoutPanel::applyLegends()
{
    const bool hasOptical = m_layout.images->hasKind(PortKind::Optical);
    if (m_layout.family == Family::FiberCard) {
        // The cards show their optical port under the fiber legend entry.
        hideOpticalLegend(true);
        if (!hasOptical)
            hideFiberOpticalLegend(true);
        return;
    }
    hideFiberOpticalLegend(true);
    // A fixed switch shows the optical entry only when it has an optical port: several share
    // an image set with optical images and have none.
    const bool showsOptical =
        m_layout.family == Family::FixedSwitch ? m_layout.hasPortOfKind(PortKind::Optical) : hasOptical;
    if (!showsOptical)
        hideOpticalLegend(true);
    if (m_layout.hideElectricalLegend)
        hideElectricalLegend(true);
}

void CLayoutPanel::initPixmaps()
{
    // The images are shared with every other panel that draws them (sharedArt).
    pixmaps[0] = new QPixmap(sharedArt(QString::fromStdString(resourcePath(m_layout.framePath(m_mode)))));
    const QSize scaledSize = m_layout.scaledPorts.isEmpty()
                                 ? QSize()
                                 : QSize(m_layout.scaledPorts.width, m_layout.scaledPorts.height);
    for (const Image& image : m_layout.images->images)
        pixmaps[static_cast<unsigned>(image.id)] =
            new QPixmap(sharedArt(QString::fromStdString(resourcePath(image.path)), scaledSize));
    if (m_layout.logo.shown) {
        auto* renderer = new QSvgRenderer(static_cast<QObject*>(nullptr));
        renderer->load(QString::fromStdString(resourcePath(kLogoImage)));
        svgRenderers[0] = renderer;
    }
}

void CLayoutPanel::initPortPositions()
{
    if (m_layout.logo.shown) {
        svgOffsetX = m_layout.logo.offset.x;
        svgOffsetY = m_layout.logo.offset.y;
    }
    bool swapRows = false;
    if (m_layout.orderFromDevice) {
        // The device tells which row port 1 stands in; without an answer there are no ports.
        Quillon::SwitchesWorkState state{std::string()};
        WorkStatusInferface* workState = WorkStatusInferface::getInstance();
        if (!workState || !workState->queryWorkState(state)) {
            m_oddPortsUp = oddPortsUp(m_layout, CPixmapSizes(pixmaps), false);
            return;
        }
        portNoOneFirst = state.portOrder == "portNO1";
        swapRows = portNoOneFirst;
    }
    placePortRows(swapRows);
}

void CLayoutPanel::placePortRows(bool swapRows)
{
    const CPixmapSizes sizes(pixmaps);
    m_oddPortsUp = oddPortsUp(m_layout, sizes, swapRows);
    for (const Placement& placed : placePorts(m_layout, sizes, swapRows)) {
        const unsigned port = static_cast<unsigned>(placed.port);
        portPositions[port] = QPoint(placed.position.x, placed.position.y);
        // A console port has no state: it shows its image for good.
        if (placed.kind == PortKind::Console)
            portPixmaps[port] = pixmapOf(m_layout.images->console);
    }
}

void CLayoutPanel::showPanelStatus()
{
    Quillon::SwitchesWorkState state{std::string()};
    WorkStatusInferface* workState = WorkStatusInferface::getInstance();
    if (!workState || !workState->queryWorkState(state)) {
        if (m_layout.logQueryFailure) {
            const Plinth::Error::ErrorCode error = Plinth::Error::GetLastError();
            Plinth::CSingleton<Plinth::details::CLog>::Instance().Error(
                "",
                Plinth::StringUtil::FormatString("call getSwitchesWorkState failed:Error code is %d-%d.", error.module,
                                                 error.code),
                PLINTH_LOCATION);
        }
        return;
    }
    applyWorkState(state);
}

void CLayoutPanel::applyWorkState(const Quillon::SwitchesWorkState& state)
{
    rememberPortStates(state);
    const bool tracksKinds = m_layout.alarmKinds.empty();
    for (const Quillon::SwitchesWorkStateItem& item : state.portList) {
        const unsigned port = static_cast<unsigned>(item.portId);
        if (alarmPorts.count(port))
            continue;
        PortKind kind = PortKind::Electrical;
        bool forceDown = false;
        const bool known = kindOfReport(item.portType, port, kind, forceDown);
        if (tracksKinds)
            portKinds[port] = !known ? kOtherKind : kind == PortKind::Optical ? kOpticalKind : kElectricalKind;
        if (known) {
            if (const ImageGroup* group = groupFor(kind, port)) {
                const bool up = item.linkState == kConnected && !forceDown;
                portPixmaps[port] = pixmapOf(up ? group->up : group->down);
            }
        }
        // A port that reaches the internet, whatever its type and link state.
        if (m_layout.images->internet >= 0 && item.portRemark == kConnected)
            portPixmaps[port] = pixmapOf(m_layout.images->internet);
    }
    update();
}

void CLayoutPanel::setPortAlarm(unsigned port, bool alarmed)
{
    PortKind kind = PortKind::Electrical;
    bool haveKind = false;
    if (!m_layout.alarmKinds.empty()) {
        haveKind = m_layout.alarmKindOf(port, kind);
    } else {
        const auto it = portKinds.find(port);
        if (it != portKinds.end() && (it->second == kElectricalKind || it->second == kOpticalKind)) {
            kind = it->second == kOpticalKind ? PortKind::Optical : PortKind::Electrical;
            haveKind = true;
        }
    }
    if (haveKind) {
        if (const ImageGroup* group = groupFor(kind, port))
            portPixmaps[port] = pixmapOf(alarmed ? group->alarm : group->up);
    }
    CPanelStatusBase::setPortAlarm(port, alarmed);
    update();
}

QPixmap* CLayoutPanel::pixmapOf(int id) const
{
    const auto it = pixmaps.find(static_cast<unsigned>(id));
    return id < 0 || it == pixmaps.end() ? nullptr : it->second;
}

const ImageGroup* CLayoutPanel::groupFor(PortKind kind, unsigned port) const
{
    const ImageSet& set = *m_layout.images;
    const RowForm form = set.hasTwoForms(kind) ? formOf(static_cast<int>(port % 2u), m_oddPortsUp) : RowForm::Any;
    return set.group(kind, form);
}

bool CLayoutPanel::kindOfReport(const std::string& portType, unsigned port, PortKind& kind, bool& forceDown) const
{
    forceDown = false;
    if (portType == "electrical") {
        kind = PortKind::Electrical;
        return true;
    }
    if (portType == "optical") {
        kind = PortKind::Optical;
        return true;
    }
    if (portType != "multiplex")
        return false;
    switch (m_layout.multiplex) {
    case Multiplex::AsElectrical:
        kind = PortKind::Electrical;
        return true;
    case Multiplex::Ignored:
        return false;
    case Multiplex::ComboPorts: {
        // A combo port shows the link-down image of its own run in either link state.
        const int number = static_cast<int>(port);
        const Run* run = m_layout.runOf(number);
        if (!m_layout.isCombo(number) || !run || run->kind == PortKind::Console)
            return false;
        kind = run->kind;
        forceDown = true;
        return true;
    }
    }
    return false;
}

} // namespace velmora
