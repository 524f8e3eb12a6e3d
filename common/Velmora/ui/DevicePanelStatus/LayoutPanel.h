#pragma once
// A panel drawn from one row of the layout tables: the fixed switches, the bridges, the APs
// and routers, and the fiber cards. Each model family is a thin named class that hands its
// row (and its mode, where the family has frame variants) to this class; everything else,
// from the images to the treatment of a "multiplex" port, follows from the row.
//
// State to image:
//  - showPanelStatus() queries the work state. A port in alarm is skipped. "electrical" and
//    "optical" pick the image group of that kind, "multiplex" as the row says; the group's
//    link-up image when linkState is "connected", else its link-down image. On AP and router
//    rows a portRemark of "connected" then shows the internet image, whatever the type.
//  - Where a kind has two jack forms, a port in the upper row's parity takes the upper form.
//  - setPortAlarm() shows the alarm image (alarmed) or the link-up image (cleared) of the
//    kind the row assigns to the port number, or, on rows without such ranges, of the kind
//    last reported for the port.
#include <map>

#include "ui/DevicePanelStatus/PanelLayouts.h"
#include "ui/DevicePanelStatus/PanelStatusBase.h"

namespace Quillon {
struct SwitchesWorkState;
}

namespace velmora {

class CLayoutPanel : public CPanelStatusBase {
    Q_OBJECT
public:
    // Kinds recorded in portKinds.
    enum { kElectricalKind = 0, kOpticalKind = 1, kOtherKind = 2 };

    void showPanelStatus() override;
    void setPortAlarm(unsigned port, bool alarmed) override;
    void initPortPositions() override;
    void initPixmaps() override;

    const layouts::PanelLayout& layout() const { return m_layout; }
    int mode() const { return m_mode; }

protected:
    // `layout` must outlive the panel (the tables are static). `mode` picks the frame.
    CLayoutPanel(const layouts::PanelLayout& layout, int mode, QWidget* parent);

    // Shows the port states of `state`, as showPanelStatus() does after its query.
    void applyWorkState(const Quillon::SwitchesWorkState& state);
    // Places the ports of the table; `swapRows` when port 1 stands in the other row than the
    // table's. Fills portPositions and the console ports' images.
    void placePortRows(bool swapRows);

    std::map<unsigned, int> portKinds; // kind last reported per port, on rows that need it
    bool portNoOneFirst = false;       // the device put port 1 in the upper row ("portNO1")

private:
    QPixmap* pixmapOf(int id) const;
    // The image group a port of `kind` takes, by its parity where the kind has two forms.
    const layouts::ImageGroup* groupFor(layouts::PortKind kind, unsigned port) const;
    // The kind a reported type stands for on this row; false when the port keeps its image.
    bool kindOfReport(const std::string& portType, unsigned port, layouts::PortKind& kind, bool& forceDown) const;
    void applyLegends();

    const layouts::PanelLayout& m_layout;
    const int m_mode;
    bool m_oddPortsUp = true;

    friend struct PanelTestAccess;
};

} // namespace velmora
