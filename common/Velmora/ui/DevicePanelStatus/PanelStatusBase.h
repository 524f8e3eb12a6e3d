#pragma once
// The drawn front panel of one device: a frame image with one small image per port on top of
// it, a row of legend entries above, and on a few models a logo strip from an SVG.
//
// To derive: fill `pixmaps` in initPixmaps() (id 0 is the frame), then `portPositions` in
// initPortPositions() (offsets from the frame's top-left corner; they may read the image
// sizes), and call both in that order from the constructor after choosing the legend entries.
// showPanelStatus() fetches the port states and sets `portPixmaps` for every port that is not
// in `alarmPorts`; setPortAlarm() picks the port's alarm or normal image, calls this base
// version and update(). The base owns all drawing, the images and the alarm set.
//
// Most families do not derive directly: CLayoutPanel and CChassisPanel do all of this from a
// row of the layout tables (PanelLayouts.h).
#include <QPoint>
#include <QString>
#include <QWidget>
#include <map>
#include <memory>
#include <set>

#include "ostrand/IAbstractDevice.h"

class QPixmap;
class QSvgRenderer;

namespace Quillon {
struct SwitchesWorkState;
struct SwitchSlotInfolList;
} // namespace Quillon

namespace Ui {
class UiPanelStatusBase;
}

namespace velmora {

class CPanelStatusBase : public QWidget {
    Q_OBJECT
public:
    explicit CPanelStatusBase(QWidget* parent);
    ~CPanelStatusBase() override;

    // Fetch the device's port states and show them; ports in alarm keep their alarm image.
    virtual void showPanelStatus() = 0;
    // Mark or clear an alarm on `port`. The base only keeps the alarm set; a family also
    // chooses the port's image and repaints.
    virtual void setPortAlarm(unsigned port, bool alarmed);
    virtual void initPortPositions() = 0;
    virtual void initPixmaps() = 0;

    void hideElectricalLegend(bool hidden);
    void hideFiberOpticalLegend(bool hidden);
    void hideConnectedLegend(bool hidden);
    void hideOpticalLegend(bool hidden);
    void hideTitleWidget(bool hidden);

    // The device at the far end of a port, as the status page's topology query saw it.
    struct PortNeighbour {
        QString portName;    // the port's own name on this device; empty when unknown
        QString name;
        QString deviceClass; // the text of the port table's device type column
        QString address;
    };
    // What the page knows about the ports' neighbours, by port number; replaces the last set.
    void setPortNeighbours(const std::map<unsigned, PortNeighbour>& neighbours);
    // Whether the port tooltips tell the PoE output power (the device reports PoE).
    void setPoePowerShown(bool shown);
    // The tooltip of `port`, one fact per line, from what the panel holds now: its last
    // state answer, its alarm mark and the page's neighbours. Empty for a port it never saw.
    QString portToolTip(unsigned port) const;

    // The device shown; assigned by the page after construction and before the first
    // showPanelStatus(). The panel never sets it.
    std::shared_ptr<tarvex7300::IAbstractDevice> panelDevice;

protected:
    void paintEvent(QPaintEvent* event) override;
    // Shows portToolTip() of the port under the mouse.
    bool event(QEvent* event) override;
    // The port drawn at `pos` (this widget's coordinates) and the area it covers there; false
    // when there is none. The base looks through the port images where paintEvent draws them.
    virtual bool portAt(const QPoint& pos, unsigned& port, QRect& area) const;

    // Keep a state answer for the tooltips; the families call these where they apply one.
    void rememberPortStates(const Quillon::SwitchesWorkState& state);
    void rememberSlots(const Quillon::SwitchSlotInfolList& slotList);
    // A port's label as the device draws it, when it has one (the logical panel's cells).
    void rememberPortLabel(unsigned port, const QString& label);

    // The frame image's top-left corner in this widget: the image centred at its natural size
    // in m_pPanelPanelFrame (an image larger than the frame overflows it on both sides).
    QPoint frameOrigin() const;

    Ui::UiPanelStatusBase* ui;
    std::map<unsigned, QPoint> portPositions;   // offset of each port from the frame's corner
    std::map<unsigned, QPixmap*> portPixmaps;   // the image drawn now per port; not owning
    std::map<unsigned, QPixmap*> pixmaps;       // all images of the panel by id; owning
    std::map<int, QSvgRenderer*> svgRenderers;  // the logo strip under key 0; owning
    std::set<unsigned> alarmPorts;
    int svgOffsetX = 0;                         // the logo strip's offset from the frame's corner
    int svgOffsetY = 0;

    // The last reported facts of each port, for the tooltips.
    struct PortFacts {
        bool isSlot = false;     // a chassis slot: boardName and inserted tell its state
        std::string linkState;
        std::string rate;
        std::string duplex;
        float poePower = 0.0f;
        bool inserted = false;
        std::string boardName;
        QString label;
    };
    std::map<unsigned, PortFacts> portFacts;
    std::map<unsigned, PortNeighbour> portNeighbours;
    bool poePowerShown = false;

    friend struct PanelTestAccess;
};

} // namespace velmora
