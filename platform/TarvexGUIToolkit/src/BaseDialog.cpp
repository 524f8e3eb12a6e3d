#include "TarvexGUIToolkit/BaseDialog.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QSizeGrip>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include "Resources.h"

namespace TarvexGUIToolkit {

namespace {

constexpr int kBorderWidth = 1;
constexpr int kTitleLeftMargin = 16;
constexpr int kCloseButtonWidth = 46;
constexpr int kCloseIconSize = 16;

// The title bar's colour, also the colour of the one-pixel frame around the window.
const char* const kFrameColor = "#1f2937";

// Only the title bar is styled here, by object name, so a form's own style sheet never
// meets these rules and the content keeps the application's look. %1 is kFrameColor.
const char* const kTitleBarStyle =
    "QWidget#TarvexDialogTitleBar { background: %1; }"
    "QLabel#TarvexDialogTitle { color: #f2f4f7; font-size: 14px; font-weight: 600; background: transparent; }"
    "QToolButton#TarvexDialogCloseButton { border: none; background: transparent; }"
    "QToolButton#TarvexDialogCloseButton:hover { background: #e5484d; }"
    "QToolButton#TarvexDialogCloseButton:pressed { background: #c0363b; }";

} // namespace

CBaseDialog::CBaseDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint)
{
    details::InitToolkitResources();

    m_pTitleBar = new QWidget(this);
    m_pTitleBar->setObjectName("TarvexDialogTitleBar");
    m_pTitleBar->setAttribute(Qt::WA_StyledBackground);
    m_pTitleBar->setFixedHeight(kTitleBarHeight);
    m_pTitleBar->setStyleSheet(QString(kTitleBarStyle).arg(kFrameColor));
    m_pTitleBar->installEventFilter(this);

    m_pTitleLabel = new QLabel(m_pTitleBar);
    m_pTitleLabel->setObjectName("TarvexDialogTitle");
    m_pTitleLabel->setTextFormat(Qt::PlainText);
    // Presses on the label move the window like presses on the bar.
    m_pTitleLabel->setAttribute(Qt::WA_TransparentForMouseEvents);

    m_pCloseButton = new QToolButton(m_pTitleBar);
    m_pCloseButton->setObjectName("TarvexDialogCloseButton");
    m_pCloseButton->setIcon(QIcon(details::kCloseIcon));
    m_pCloseButton->setIconSize(QSize(kCloseIconSize, kCloseIconSize));
    m_pCloseButton->setFixedSize(kCloseButtonWidth, kTitleBarHeight);
    m_pCloseButton->setFocusPolicy(Qt::NoFocus);
    m_pCloseButton->setToolTip(tr("Close"));
    connect(m_pCloseButton, &QToolButton::clicked, this, &QDialog::reject);

    auto* titleLayout = new QHBoxLayout(m_pTitleBar);
    titleLayout->setContentsMargins(kTitleLeftMargin, 0, 0, 0);
    titleLayout->setSpacing(0);
    titleLayout->addWidget(m_pTitleLabel, 1);
    titleLayout->addWidget(m_pCloseButton);

    m_pContentWidget = new QWidget(this);
    m_pContentWidget->setObjectName("TarvexDialogContent");

    auto* dialogLayout = new QVBoxLayout(this);
    dialogLayout->setContentsMargins(kBorderWidth, kBorderWidth, kBorderWidth, kBorderWidth);
    dialogLayout->setSpacing(0);
    dialogLayout->addWidget(m_pTitleBar);
    dialogLayout->addWidget(m_pContentWidget, 1);

    // A frameless window has no border to pull; the grip in the corner resizes it.
    m_pSizeGrip = new QSizeGrip(this);
    m_pSizeGrip->resize(m_pSizeGrip->sizeHint());
}

CBaseDialog::~CBaseDialog() = default;

void CBaseDialog::SetTitle(const QString& title)
{
    setWindowTitle(title);
    m_pTitleLabel->setText(title);
}

QString CBaseDialog::GetTitle() const
{
    return m_pTitleLabel->text();
}

void CBaseDialog::SetCloseBtnVisible(bool visible)
{
    m_pCloseButton->setVisible(visible);
}

bool CBaseDialog::IsCloseBtnVisible() const
{
    return !m_pCloseButton->isHidden();
}

QWidget* CBaseDialog::GetSetUpUiWidget() const
{
    return m_pContentWidget;
}

QSize CBaseDialog::formSize() const
{
    if (m_bShownOnce)
        return m_formSize;
    // setupUi() resizes its top widget to the form's size. Until the first show nothing
    // lays the hidden content out, so its size is still the form's.
    return m_pContentWidget->testAttribute(Qt::WA_Resized) ? m_pContentWidget->size() : QSize();
}

QSize CBaseDialog::sizeHint() const
{
    QSize hint = QDialog::sizeHint();
    const QSize form = formSize();
    if (form.isValid())
        hint = hint.expandedTo(QSize(form.width() + 2 * kBorderWidth, form.height() + kTitleBarHeight + 2 * kBorderWidth));
    return hint;
}

void CBaseDialog::setVisible(bool visible)
{
    // Showing lays the content out at the window's provisional size before the window
    // takes its size from sizeHint(); keep the form's size from before that.
    if (visible && !m_bShownOnce) {
        m_formSize = formSize();
        m_bShownOnce = true;
    }
    QDialog::setVisible(visible);
}

bool CBaseDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_pTitleBar && handleTitleBarMouse(event))
        return true;
    return QDialog::eventFilter(watched, event);
}

bool CBaseDialog::handleTitleBarMouse(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() != Qt::LeftButton || !isWindow())
            return false;
        // The window system moves the window where it can (Wayland allows nothing else);
        // elsewhere the window follows the mouse by hand.
        if (QWindow* handle = windowHandle(); handle && handle->startSystemMove())
            return true;
        m_bDragging = true;
        m_dragOffset = mouse->globalPos() - frameGeometry().topLeft();
        return true;
    }
    case QEvent::MouseMove: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (!m_bDragging || !(mouse->buttons() & Qt::LeftButton))
            return false;
        move(mouse->globalPos() - m_dragOffset);
        return true;
    }
    case QEvent::MouseButtonRelease:
        if (!m_bDragging)
            return false;
        m_bDragging = false;
        return true;
    default:
        return false;
    }
}

void CBaseDialog::changeEvent(QEvent* event)
{
    // Keeps the bar right when a caller sets the window title directly.
    if (event->type() == QEvent::WindowTitleChange && m_pTitleLabel)
        m_pTitleLabel->setText(windowTitle());
    QDialog::changeEvent(event);
}

void CBaseDialog::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    QPainter painter(this);
    painter.setPen(QPen(QColor(kFrameColor), kBorderWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -kBorderWidth, -kBorderWidth));
}

void CBaseDialog::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    if (m_pSizeGrip) {
        // Embedded in another window the dialog is sized by its host, not by the user.
        m_pSizeGrip->setVisible(isWindow());
        m_pSizeGrip->move(width() - m_pSizeGrip->width() - kBorderWidth, height() - m_pSizeGrip->height() - kBorderWidth);
        m_pSizeGrip->raise();
    }
}

} // namespace TarvexGUIToolkit
