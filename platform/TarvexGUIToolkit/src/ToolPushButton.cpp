#include "TarvexGUIToolkit/ToolPushButton.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

#include <algorithm>

#include "Resources.h"

namespace TarvexGUIToolkit {

namespace {

constexpr int kVerticalPadding = 4;
constexpr qreal kFontStep = 0.5;           // points
constexpr qreal kSmallestFontScale = 0.7;  // of the button's font

} // namespace

CToolPushButton::CToolPushButton(QWidget* parent)
    : QToolButton(parent)
{
    // The icons a caller sets usually come from the toolkit's own resources.
    details::InitToolkitResources();
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setAutoRaise(true);
    setCursor(Qt::PointingHandCursor);
}

CToolPushButton::CToolPushButton(const QIcon& icon, const QString& text, QWidget* parent)
    : CToolPushButton(parent)
{
    setIcon(icon);
    setText(text);
}

CToolPushButton::~CToolPushButton() = default;

int CToolPushButton::contentWidth() const
{
    const int iconWidth = icon().isNull() ? 0 : iconSize().width();
    const int textWidth = text().isEmpty() ? 0 : fontMetrics().horizontalAdvance(text());
    const int spacing = (iconWidth > 0 && textWidth > 0) ? kIconTextSpacing : 0;
    return iconWidth + spacing + textWidth;
}

QSize CToolPushButton::sizeHint() const
{
    const int iconHeight = icon().isNull() ? 0 : iconSize().height();
    const int height = std::max(iconHeight, fontMetrics().height()) + 2 * kVerticalPadding;
    return QSize(contentWidth() + 2 * kPadding, height);
}

QSize CToolPushButton::minimumSizeHint() const
{
    return sizeHint();
}

void CToolPushButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);

    // The panel only shows under the mouse or pressed, as for any auto-raised tool button.
    const bool raised = option.state & (QStyle::State_MouseOver | QStyle::State_Sunken | QStyle::State_On);
    if (isEnabled() && raised)
        painter.drawPrimitive(QStyle::PE_PanelButtonTool, option);

    const QRect area = rect().adjusted(kPadding, 0, -kPadding, 0);
    const QSize iconArea = icon().isNull() ? QSize(0, 0) : iconSize();
    const int spacing = (iconArea.width() > 0 && !text().isEmpty()) ? kIconTextSpacing : 0;
    const int textRoom = std::max(0, area.width() - iconArea.width() - spacing);

    // A text a little too wide for a fixed-size button is drawn a little smaller rather
    // than cut; only beyond that it is elided. A font sized in pixels (as style sheets size
    // them) steps by one pixel, else by half points. Widths are compared unrounded, as
    // elidedText() measures them: a text whose rounded width just matches the room would
    // otherwise lose its last letter.
    QFont textFont = font();
    const bool inPixels = textFont.pixelSize() > 0;
    const qreal step = inPixels ? 1.0 : kFontStep;
    auto fontSize = [&textFont, inPixels]() {
        return inPixels ? static_cast<qreal>(textFont.pixelSize()) : textFont.pointSizeF();
    };
    const qreal fullSize = fontSize();
    while (fullSize > 0 && QFontMetricsF(textFont).horizontalAdvance(text()) > textRoom &&
           fontSize() - step >= fullSize * kSmallestFontScale) {
        if (inPixels)
            textFont.setPixelSize(textFont.pixelSize() - 1);
        else
            textFont.setPointSizeF(textFont.pointSizeF() - step);
    }
    painter.setFont(textFont);
    const QFontMetrics metrics(textFont);
    const QString shownText = metrics.elidedText(text(), Qt::ElideRight, textRoom);
    const int textWidth = shownText.isEmpty() ? 0 : metrics.horizontalAdvance(shownText);
    const int width = iconArea.width() + (shownText.isEmpty() ? 0 : spacing) + textWidth;
    int x = area.left() + std::max(0, (area.width() - width) / 2);

    if (iconArea.width() > 0) {
        const QRect iconRect(QPoint(x, (height() - iconArea.height()) / 2), iconArea);
        icon().paint(&painter, iconRect, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
        x += iconArea.width() + spacing;
    }
    if (!shownText.isEmpty()) {
        painter.drawItemText(QRect(x, 0, textWidth, height()), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                             shownText, QPalette::ButtonText);
    }
}

} // namespace TarvexGUIToolkit
