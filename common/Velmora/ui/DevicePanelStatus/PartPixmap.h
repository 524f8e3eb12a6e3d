#pragma once
// The magnifier of the logical panel: a frameless tool-tip window that shows one piece of the
// panel image at full size above the mouse.
#include <QFrame>

class QLabel;
class QPixmap;

namespace velmora {

class CPartPixmap : public QFrame {
    Q_OBJECT
public:
    explicit CPartPixmap(QWidget* parent);

    // Shows `pixmap` and takes its size.
    void setPixmap(const QPixmap& pixmap);

private:
    QLabel* m_pLabel;

    friend struct PanelTestAccess;
};

} // namespace velmora
