#pragma once
// The crate of a fiber converter chassis: 21 card slots drawn on the page itself, a card in
// each slot that the chassis reports (the management card always stands in slot 1), and the
// reported cards in a table. Ports on the cards are always drawn unconnected: the chassis
// reports no port state here. Refreshed every 10 seconds while shown.
#include <QPoint>
#include <QString>
#include <map>
#include <vector>

#include "DeviceStatusOptionBase.h"
#include "PanelSlotInfoModel.h"
#include "Quillon/SwitchRecords.h"

class QEvent;
class QHideEvent;
class QPainter;
class QPaintEvent;
class QPixmap;
class QTimer;

namespace Ui {
class UiFiberPanelStatusWidget;
}

namespace velmora {

class CFiberPanelStatusWidget : public CDeviceStatusOptionBase {
    Q_OBJECT
public:
    // Image ids of the page.
    enum Image : unsigned {
        FRAME_IMAGE = 0,
        INSERTED_SLOT_IMAGE = 1,
        EMPTY_SLOT_IMAGE = 2,
        ELECTRICAL_PORT_IMAGE = 3,
        OPTICAL_PORT_IMAGE = 4,
    };

    explicit CFiberPanelStatusWidget(QWidget* parent);
    ~CFiberPanelStatusWidget() override;

    // For the host: the same load as a click on the page's row.
    void showStatusPublic() override;

    // The table rows of the cards in `list`, in its order.
    static std::vector<PanelSlotInfo> makePanelSlotInfo(const Quillon::FiberConvertSlotList& list);

protected:
    void showStatus() override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    // Tooltips over the crate: the slot under the mouse and the card it holds.
    bool event(QEvent* event) override;

protected slots:
    void onRefreshSlotInformation();

private:
    void initControl();
    void initPictureInfo();
    void initPaintInfo();
    void showPanelInfoPrivate();
    // Draws image `id` with its top-left corner at `at`; nothing when the image is missing.
    void drawImage(QPainter& painter, unsigned id, const QPoint& at) const;
    // Where the frame image's top-left corner is drawn on the page.
    QPoint crateOrigin() const;
    // The slot whose card or blanking plate is drawn under `pos` (the one drawn last where
    // two overlap), with the drawn rectangle; false over no slot.
    bool slotAt(const QPoint& pos, int& slot, QRect& area) const;
    // The tooltip of `slot`: its number and the card the chassis reports in it.
    QString slotToolTip(int slot) const;

    Ui::UiFiberPanelStatusWidget* ui;
    CPanelSlotInfoModel* m_pSlotModel;
    QTimer* m_pTimer;
    std::map<unsigned, QPixmap*> m_pixmaps;  // by image id; owned
    std::map<int, QPoint> m_slotPositions;   // slot origins from the frame image's corner
    Quillon::FiberConvertSlotList m_slotList; // the last answer

    friend struct CFiberPanelStatusWidgetTestAccess; // tests feed crates the emulator never reports
};

} // namespace velmora
