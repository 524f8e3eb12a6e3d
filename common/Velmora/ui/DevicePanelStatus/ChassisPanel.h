#pragma once
// A chassis switch: the base's "ports" are slots numbered from 0 and a slot's image is the
// board standing in it, inserted or not. The board kinds and the slot positions come from the
// row of the layout tables; each chassis model is a thin named class over this one. There is
// no legend row and no alarm state: setPortAlarm() stays the base's.
#include "ui/DevicePanelStatus/PanelLayouts.h"
#include "ui/DevicePanelStatus/PanelStatusBase.h"

namespace Quillon {
struct SwitchSlotInfolList;
}

namespace velmora {

class CChassisPanel : public CPanelStatusBase {
    Q_OBJECT
public:
    void showPanelStatus() override;
    void initPortPositions() override;
    void initPixmaps() override;

    const layouts::PanelLayout& layout() const { return m_layout; }

protected:
    CChassisPanel(const layouts::PanelLayout& layout, QWidget* parent);

    // Shows the boards of `list`, as showPanelStatus() does after its query.
    void applySlots(const Quillon::SwitchSlotInfolList& list);

private:
    QPixmap* pixmapOf(int id) const;

    const layouts::PanelLayout& m_layout;

    friend struct PanelTestAccess;
};

} // namespace velmora
