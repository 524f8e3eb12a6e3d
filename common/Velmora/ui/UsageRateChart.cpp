#include "UsageRateChart.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "Plinth/Log.h"
#include "Plinth/Singleton.h"
#include "Plinth/StringUtil.h"

namespace velmora {

namespace {

constexpr int kTopAngle = 90; // degrees; the used arc starts at the top and grows clockwise
constexpr double kUsedThickness = 0.37;
constexpr double kFreeRadius = 0.9;
constexpr double kFreeThickness = 0.22;
constexpr QRgb kUsedColour = 0xFF007AFE;
constexpr QRgb kFreeColour = 0xFFAECEFE;
constexpr QRgb kTextColour = 0xFFE6E6E6;
constexpr int kCentred = Qt::AlignHCenter | Qt::AlignVCenter; // 132

} // namespace

CUsageRateChart::CUsageRateChart(QWidget* parent)
    : QLabel(parent)
{
    setStyleSheet(QStringLiteral("QLabel {background-color: transparent;}"));
    setAlignment(Qt::Alignment(kCentred));
}

void CUsageRateChart::setUsageRate(double rate)
{
    // Not a number: nothing to show, and no angle can be made of it. The chart keeps its value.
    if (std::isnan(rate)) {
        if (!m_bNanLogged) {
            m_bNanLogged = true;
            Plinth::CSingleton<Plinth::details::CLog>::Instance().Warn(
                "", Plinth::StringUtil::FormatString("Usage rate is not a number; the chart keeps %f.", m_dUsageRate),
                PLINTH_LOCATION);
        }
        return;
    }
    if (rate < 0.0)
        rate = 0.0;
    if (rate > 100.0)
        rate = 100.0;
    m_dUsageRate = rate;
    // The label keeps two decimals; the painted text uses the shortest form.
    setText(QString::number(rate, 'f', 2) + QStringLiteral("%"));
    update();
}

void CUsageRateChart::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, true);
    const int r = qMin(width(), height()) >> 1;
    painter.translate(r, r);

    const int sweep = static_cast<int>(m_dUsageRate * 0.01 * 360.0);
    drawRing(painter, r, kTopAngle - sweep, sweep, static_cast<int>(r * kUsedThickness), kUsedColour);
    drawRing(painter, static_cast<int>(r * kFreeRadius), kTopAngle, 360 - sweep,
             static_cast<int>(r * kFreeThickness), kFreeColour);

    painter.setPen(QColor::fromRgba(kTextColour));
    painter.drawText(QRect(-r, -r, 2 * r, 2 * r), kCentred, QString::number(m_dUsageRate, 'g', 6) + QStringLiteral("%"));
}

void CUsageRateChart::drawRing(QPainter& painter, int radius, int start, int span, int thickness, QRgb colour)
{
    const QRectF rect(-radius, -radius, 2 * radius, 2 * radius);
    painter.setBrush(QColor::fromRgba(colour));
    // arcTo from an empty path starts at the origin, so this is a sector; the ellipse
    // cut out of its middle leaves the ring segment.
    QPainterPath sector;
    sector.arcTo(rect, start, span);
    QPainterPath hole;
    hole.addEllipse(rect.adjusted(thickness, thickness, -thickness, -thickness));
    painter.setPen(Qt::NoPen);
    painter.drawPath(sector.subtracted(hole));
}

} // namespace velmora
