#pragma once
// Lets tests feed the fiber chassis page crates that the emulator never reports (a slot
// number above 21, slot 1 reported) and read where it places the slots.
#include <QPoint>
#include <QPixmap>
#include <map>

#include "FiberPanelStatusWidget.h"
#include "Quillon/SwitchRecords.h"

namespace velmora {

struct CFiberPanelStatusWidgetTestAccess {
    static Quillon::FiberConvertSlotList& slotList(CFiberPanelStatusWidget& page) { return page.m_slotList; }
    static const std::map<int, QPoint>& slotPositions(const CFiberPanelStatusWidget& page)
    {
        return page.m_slotPositions;
    }
    static std::map<unsigned, QPixmap*>& pixmaps(CFiberPanelStatusWidget& page) { return page.m_pixmaps; }
    static void refresh(CFiberPanelStatusWidget& page) { page.onRefreshSlotInformation(); }
};

} // namespace velmora
