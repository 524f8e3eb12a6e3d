#pragma once
// The front panel of a device that describes its own layout: a grid of cells (ports, borders,
// spaces) read column by column, painted into an off-screen image. A panel wider than its
// frame is shrunk to fit, and while the mouse is over it a CPartPixmap shows the part under
// the mouse at full size.
#include <QPixmap>
#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>

#include "Quillon/SwitchRecords.h"
#include "ui/DevicePanelStatus/PanelStatusBase.h"

namespace velmora {

class CPartPixmap;

class CSwitchLogicalPanel : public CPanelStatusBase {
    Q_OBJECT
public:
    explicit CSwitchLogicalPanel(QWidget* parent);

    void showPanelStatus() override;
    void setPortAlarm(unsigned port, bool alarmed) override;
    void initPortPositions() override;
    void initPixmaps() override;

    // Key of a reported port: its type text and number.
    struct PortKey {
        std::string portType;
        int32_t portId = 0;
        bool operator==(const PortKey& other) const { return portId == other.portId && portType == other.portType; }
    };
    // FNV-1a over the four bytes of the number in memory order, XOR FNV-1a of the text.
    struct PortKeyHash {
        std::size_t operator()(const PortKey& key) const;
    };
    static uint32_t fnv1a(const void* data, std::size_t size);

    // Port states: 0 link down, 1 link up, 2 alarm, 3 connected to the internet.
    enum PortState { kUnlinked = 0, kLinked = 1, kAlarmed = 2, kInternet = 3 };

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    // The port under `pos` in the drawn (and perhaps shrunk) image: the port the magnifier
    // shows under the mouse.
    bool portAt(const QPoint& pos, unsigned& port, QRect& area) const override;

    // The layout half of showPanelStatus(): sizes, width and a blank image for `panel`.
    void setPanel(const Quillon::Panel& panel, int category);
    // The state half: direction rule, port states, drawing.
    void applyWorkState(const Quillon::SwitchesWorkState& state);
    void renderPanelPixmap();
    // The image of a port cell for its reported state; null for an unexpected entry.
    QPixmap portImage(const Quillon::PanelCell& cell, bool up) const;

    Quillon::Panel panel;
    std::unordered_map<PortKey, int, PortKeyHash> portStates;
    std::map<int, std::map<int, QPixmap>> logicalPixmaps; // category -> image id -> image
    std::map<int, std::map<int, int>> logicalSizes;       // category -> 0 w, 1 h of image 0; 2 w, 3 h of 11
    QPixmap panelPixmap;
    std::map<unsigned, QRect> portCells; // where each port's cell lies in panelPixmap
    int mouseX = 0;
    int mouseY = 0;
    CPartPixmap* partPixmap = nullptr;
    int cellWidth = 0;
    int rowHeight = 0;
    int borderWidth = 0;
    int borderHeight = 0;
    bool hovering = false;
    bool oddPortsUp = false;
    bool directionFromCells = false;
    int category = 0; // of the device, when the panel was read

    friend struct PanelTestAccess;
};

} // namespace velmora
