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
#include <QWidget>
#include <map>
#include <memory>
#include <set>

#include "ostrand/IAbstractDevice.h"

class QPixmap;
class QSvgRenderer;

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

    // The device shown; assigned by the page after construction and before the first
    // showPanelStatus(). The panel never sets it.
    std::shared_ptr<tarvex7300::IAbstractDevice> panelDevice;

protected:
    void paintEvent(QPaintEvent* event) override;

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

    friend struct PanelTestAccess;
};

} // namespace velmora
