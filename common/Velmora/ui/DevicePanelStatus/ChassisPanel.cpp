#include "ChassisPanel.h"

#include <QPixmap>

#include "Quillon/SwitchRecords.h"
#include "logical/interface/ParamInterface.h"
#include "ui/DevicePanelStatus/PanelResources.h"
#include "ui/DevicePanelStatus/PixmapSizes.h"

namespace velmora {

using namespace layouts;

CChassisPanel::CChassisPanel(const PanelLayout& layout, QWidget* parent) : CPanelStatusBase(parent), m_layout(layout)
{
    hideTitleWidget(true);
    initPixmaps();
    initPortPositions();
}

void CChassisPanel::initPixmaps()
{
    pixmaps[0] = new QPixmap(sharedArt(QString::fromStdString(resourcePath(m_layout.framePath(kAnyMode)))));
    for (const Image& image : m_layout.images->images)
        pixmaps[static_cast<unsigned>(image.id)] = new QPixmap(sharedArt(QString::fromStdString(resourcePath(image.path))));
}

void CChassisPanel::initPortPositions()
{
    const CPixmapSizes sizes(pixmaps);
    for (const Placement& placed : placePorts(m_layout, sizes))
        portPositions[static_cast<unsigned>(placed.port)] = QPoint(placed.position.x, placed.position.y);
}

void CChassisPanel::showPanelStatus()
{
    if (!panelDevice)
        return;
    Quillon::SwitchSlotInfolList list{std::string()};
    if (!ParamInterface::getSwitchSlotInfolList(list, panelDevice->getDeviceId()))
        return;
    applySlots(list);
}

void CChassisPanel::applySlots(const Quillon::SwitchSlotInfolList& list)
{
    rememberSlots(list);
    for (const Quillon::SwitchSlotInfo& slot : list.slotList) {
        PortKind kind;
        if (slot.boardType == "mainBoard")
            kind = PortKind::MainBoard;
        else if (slot.boardType == "interfaceBoard")
            kind = PortKind::InterfaceBoard;
        else
            continue;
        // A chassis without main board images has no main board test.
        const ImageGroup* group = m_layout.images->group(kind, RowForm::Any);
        if (!group)
            continue;
        portPixmaps[static_cast<unsigned>(slot.slotId)] = pixmapOf(slot.inserted ? group->up : group->down);
    }
    update();
}

QPixmap* CChassisPanel::pixmapOf(int id) const
{
    const auto it = pixmaps.find(static_cast<unsigned>(id));
    return id < 0 || it == pixmaps.end() ? nullptr : it->second;
}

} // namespace velmora
