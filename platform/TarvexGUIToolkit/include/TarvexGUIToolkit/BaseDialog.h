#pragma once
// A dialog that draws its own title bar: a dark strip with the title and a close button,
// by which the frameless window is dragged. Forms are set up on the content widget:
//
//     m_pUi->setupUi(GetSetUpUiWidget());
//     SetTitle(tr("..."));
//
// The size the form gives its top widget becomes the content size the dialog opens with,
// unless the dialog is resized itself.

#include <QDialog>
#include <QPoint>

class QLabel;
class QSizeGrip;
class QToolButton;

namespace TarvexGUIToolkit {

class CBaseDialog : public QDialog {
    Q_OBJECT
public:
    explicit CBaseDialog(QWidget* parent = nullptr);
    ~CBaseDialog() override;

    // The title shown in the title bar; also the window title.
    void SetTitle(const QString& title);
    QString GetTitle() const;

    // The close button rejects the dialog, as the window manager's close button would.
    void SetCloseBtnVisible(bool visible);
    bool IsCloseBtnVisible() const;

    // The widget below the title bar, to hand to a form's setupUi().
    QWidget* GetSetUpUiWidget() const;

    QSize sizeHint() const override;
    void setVisible(bool visible) override;

    // Height of the title bar in pixels.
    static constexpr int kTitleBarHeight = 40;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool handleTitleBarMouse(QEvent* event);
    // The content size a form asked for with resize() before the first show; invalid if none.
    QSize formSize() const;

    QWidget* m_pTitleBar = nullptr;
    QLabel* m_pTitleLabel = nullptr;
    QToolButton* m_pCloseButton = nullptr;
    QWidget* m_pContentWidget = nullptr;
    QSizeGrip* m_pSizeGrip = nullptr;
    bool m_bShownOnce = false;
    QSize m_formSize;
    bool m_bDragging = false;
    QPoint m_dragOffset; // from the window's top left corner to the grabbing point
};

} // namespace TarvexGUIToolkit
