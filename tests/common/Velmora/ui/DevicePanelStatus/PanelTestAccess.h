#pragma once
// Shared helpers of the panel tests: access to a panel's tables (the panels name this struct
// as a friend), work state records built in one line, and a render of a panel with the
// sampling of a port's state colour.
#include <QApplication>
#include <QImage>
#include <QLayout>
#include <QPixmap>
#include <QSvgRenderer>
#include <cstdlib>
#include <string>
#include <vector>

#include "Quillon/SwitchRecords.h"
#include "ui/DevicePanelStatus/ChassisPanel.h"
#include "ui/DevicePanelStatus/LayoutPanel.h"
#include "ui/DevicePanelStatus/PanelFactory.h"
#include "ui/DevicePanelStatus/PanelLayouts.h"
#include "ui/DevicePanelStatus/PanelResources.h"
#include "ui/DevicePanelStatus/PanelStatusBase.h"
#include "ui/DevicePanelStatus/PartPixmap.h"
#include "ui/DevicePanelStatus/SwitchLogicalPanel.h"
#include "ui_PanelStatusBase.h"

namespace velmora {

struct PanelTestAccess {
    static std::map<unsigned, QPoint>& positions(CPanelStatusBase* p) { return p->portPositions; }
    static std::map<unsigned, QPixmap*>& portPixmaps(CPanelStatusBase* p) { return p->portPixmaps; }
    static std::map<unsigned, QPixmap*>& pixmaps(CPanelStatusBase* p) { return p->pixmaps; }
    static std::map<int, QSvgRenderer*>& svgRenderers(CPanelStatusBase* p) { return p->svgRenderers; }
    static std::set<unsigned>& alarms(CPanelStatusBase* p) { return p->alarmPorts; }
    static QPoint svgOffset(CPanelStatusBase* p) { return QPoint(p->svgOffsetX, p->svgOffsetY); }
    static void setSvgOffset(CPanelStatusBase* p, QPoint offset)
    {
        p->svgOffsetX = offset.x();
        p->svgOffsetY = offset.y();
    }
    static Ui::UiPanelStatusBase* ui(CPanelStatusBase* p) { return p->ui; }
    static QPoint frameOrigin(CPanelStatusBase* p) { return p->frameOrigin(); }

    static void applyWorkState(CLayoutPanel* p, const Quillon::SwitchesWorkState& s) { p->applyWorkState(s); }
    static void placePortRows(CLayoutPanel* p, bool swapRows)
    {
        p->portPositions.clear();
        p->placePortRows(swapRows);
    }
    static void setPortNoOneFirst(CLayoutPanel* p, bool value) { p->portNoOneFirst = value; }
    static std::map<unsigned, int>& portKinds(CLayoutPanel* p) { return p->portKinds; }
    static bool portNoOneFirst(CLayoutPanel* p) { return p->portNoOneFirst; }

    static void applySlots(CChassisPanel* p, const Quillon::SwitchSlotInfolList& l) { p->applySlots(l); }

    static void setPanel(CSwitchLogicalPanel* p, const Quillon::Panel& panel, int category) { p->setPanel(panel, category); }
    static void applyWorkState(CSwitchLogicalPanel* p, const Quillon::SwitchesWorkState& s) { p->applyWorkState(s); }
    static QPixmap& panelPixmap(CSwitchLogicalPanel* p) { return p->panelPixmap; }
    static std::unordered_map<CSwitchLogicalPanel::PortKey, int, CSwitchLogicalPanel::PortKeyHash>&
    portStates(CSwitchLogicalPanel* p)
    {
        return p->portStates;
    }
    static std::map<int, std::map<int, QPixmap>>& logicalPixmaps(CSwitchLogicalPanel* p) { return p->logicalPixmaps; }
    static std::map<int, std::map<int, int>>& logicalSizes(CSwitchLogicalPanel* p) { return p->logicalSizes; }
    static CPartPixmap* partPixmap(CSwitchLogicalPanel* p) { return p->partPixmap; }
    static bool hovering(CSwitchLogicalPanel* p) { return p->hovering; }
    static void setMouse(CSwitchLogicalPanel* p, int x, int y, bool hovering)
    {
        p->mouseX = x;
        p->mouseY = y;
        p->hovering = hovering;
    }
    static QPoint mouse(CSwitchLogicalPanel* p) { return QPoint(p->mouseX, p->mouseY); }
    static int cellWidth(CSwitchLogicalPanel* p) { return p->cellWidth; }
    static int rowHeight(CSwitchLogicalPanel* p) { return p->rowHeight; }
    static bool directionFromCells(CSwitchLogicalPanel* p) { return p->directionFromCells; }
    static bool oddPortsUp(CSwitchLogicalPanel* p) { return p->oddPortsUp; }
    static QLabel* partLabel(CPartPixmap* p) { return p->m_pLabel; }
};

namespace paneltest {

inline void initArt()
{
    initResources();
}

inline Quillon::SwitchesWorkStateItem item(int port, const std::string& type, const std::string& link,
                                           const std::string& remark = std::string())
{
    Quillon::SwitchesWorkStateItem i;
    i.portId = port;
    i.portType = type;
    i.linkState = link;
    i.portRemark = remark;
    return i;
}

inline Quillon::SwitchesWorkState state(std::vector<Quillon::SwitchesWorkStateItem> items,
                                        const std::string& order = std::string())
{
    Quillon::SwitchesWorkState s;
    s.portList = std::move(items);
    s.portOrder = order;
    return s;
}

inline QColor rgb(std::uint32_t value) { return QColor(QRgb(value)); }

// The panel laid out at a size that holds its frame, rendered with its children.
inline QImage render(CPanelStatusBase* panel)
{
    const QPixmap* frame = PanelTestAccess::pixmaps(panel).count(0) ? PanelTestAccess::pixmaps(panel)[0] : nullptr;
    const int height = std::max(242, (frame ? frame->height() : 0) + 80);
    const int width = std::max(1095, (frame ? frame->width() : 0) + 160);
    panel->resize(width, height);
    panel->layout()->activate();
    QImage image(panel->size(), QImage::Format_ARGB32);
    image.fill(Qt::white);
    panel->render(&image);
    return image;
}

// The state colour a drawn port shows: its image's solid corner block.
inline QColor portColor(CPanelStatusBase* panel, const QImage& image, unsigned port, QPoint sample = QPoint(2, 2))
{
    const QPoint at = PanelTestAccess::frameOrigin(panel) + PanelTestAccess::positions(panel).at(port) + sample;
    return image.pixelColor(at);
}

// Where the tests write their PNG renders: $VELMORA_SNAPSHOT_DIR, else <build>/panel-snapshots.
inline QString snapshotDir()
{
    if (const char* dir = std::getenv("VELMORA_SNAPSHOT_DIR"))
        return QString::fromLocal8Bit(dir);
    if (const char* build = std::getenv("VELMORA_BUILD_DIR"))
        return QString::fromLocal8Bit(build) + QStringLiteral("/panel-snapshots");
    return QStringLiteral("panel-snapshots");
}

} // namespace paneltest
} // namespace velmora
