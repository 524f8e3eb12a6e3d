#include "FrameArt.h"

#include <QFont>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>
#include <algorithm>

using namespace velmora::layouts;

namespace artgen {
namespace {

// Room around the ports.
constexpr int kRightMargin = 14;
constexpr int kBottomMargin = 12;
// A plate stands left of the ports when this much room is free there; otherwise in a band
// under them of kPlateBand pixels.
constexpr int kPlateZoneMin = 78;
constexpr int kPlateBand = 24;
constexpr int kPlateHeight = 15;

struct PortRect {
    QRect rect;
    PortKind kind;
};

// The drawn size of a port of `kind` in `layout`.
QSize portSize(const PanelLayout& layout, PortKind kind)
{
    const ArtSizes sizes(layout);
    const ImageSet& set = *layout.images;
    int id = -1;
    if (kind == PortKind::Console) {
        id = set.console;
    } else if (const ImageGroup* g = set.group(kind, RowForm::Upper)) {
        id = g->up;
    }
    const Size s = sizes.sizeOf(id);
    return QSize(s.width, s.height);
}

std::vector<PortRect> portRects(const PanelLayout& layout)
{
    std::vector<PortRect> rects;
    const ArtSizes sizes(layout);
    for (const Placement& p : placePorts(layout, sizes))
        rects.push_back(PortRect{QRect(QPoint(p.position.x, p.position.y), portSize(layout, p.kind)), p.kind});
    return rects;
}

// Groups of ports that stand together: a two-row pair or a single run, as one rectangle.
std::vector<QRect> bays(const PanelLayout& layout)
{
    std::vector<QRect> result;
    const ArtSizes sizes(layout);
    const std::vector<Placement> placed = placePorts(layout, sizes);
    size_t index = 0;
    for (const Run& run : layout.runs) {
        QRect bay;
        for (int port = run.first; port <= run.last; port += run.step, ++index) {
            const Placement& p = placed[index];
            bay |= QRect(QPoint(p.position.x, p.position.y), portSize(layout, p.kind));
        }
        if (run.kind == PortKind::Console || bay.isNull())
            continue;
        // Join the bay of the other row of a pair.
        bool joined = false;
        for (QRect& other : result) {
            if (other.left() == bay.left() && other.width() == bay.width()) {
                other |= bay;
                joined = true;
                break;
            }
        }
        if (!joined)
            result.push_back(bay);
    }
    return result;
}

QString plateText(const PanelLayout& layout)
{
    const QString name = QString::fromLatin1(layout.className);
    const QRegularExpressionMatch q = QRegularExpression(QStringLiteral("^CQ(\\d{3})")).match(name);
    if (q.hasMatch())
        return QStringLiteral("Q") + q.captured(1);
    if (layout.family == Family::FiberCrate)
        return QStringLiteral("FC-21");
    QString stem = name.mid(1);
    for (const char* suffix : {"PanelStatus", "ChassisStatus", "Pannel"})
        if (stem.endsWith(QLatin1String(suffix)))
            stem.chop(int(strlen(suffix)));
    QString acronym;
    for (const QChar c : stem)
        if (c.isUpper() || c.isDigit())
            acronym += c;
    return acronym;
}

QFont plateFont(int pixelSize)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixelSize);
    font.setBold(true);
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

void drawScrew(QPainter& p, QPointF c)
{
    p.setPen(QColor(0x1a, 0x1d, 0x20));
    p.setBrush(QColor(0x8e, 0x96, 0x9e));
    p.drawEllipse(c, 2.5, 2.5);
    p.drawLine(c + QPointF(-1.5, 0), c + QPointF(1.5, 0));
}

void drawPlate(QPainter& p, const QRect& r, const QString& text, const QString& badge)
{
    p.setPen(QColor(0x7d, 0x85, 0x8d));
    p.setBrush(QColor(0xc9, 0xce, 0xd3));
    p.drawRoundedRect(QRectF(r).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    p.setFont(plateFont(std::min(11, r.height() - 4)));
    p.setPen(QColor(0x22, 0x26, 0x2a));
    QRect textRect = r.adjusted(4, 0, -4, 0);
    if (!badge.isEmpty()) {
        const int badgeW = 6 + 6 * badge.size();
        const QRect badgeRect(r.right() - badgeW - 2, r.top() + 2, badgeW, r.height() - 4);
        p.fillRect(badgeRect, QColor(0xf0, 0x8a, 0x24));
        p.setFont(plateFont(std::max(7, r.height() - 7)));
        p.setPen(QColor(0x1a, 0x1a, 0x1a));
        p.drawText(badgeRect, Qt::AlignCenter, badge);
        textRect.setRight(badgeRect.left() - 2);
        p.setFont(plateFont(std::min(11, r.height() - 4)));
        p.setPen(QColor(0x22, 0x26, 0x2a));
    }
    p.drawText(textRect, Qt::AlignVCenter | Qt::AlignLeft, text);
}

// Power, system and fan LEDs with their small marks.
void drawLeds(QPainter& p, QPoint at, int count)
{
    const QColor colors[] = {QColor(0x39, 0xc4, 0x6a), QColor(0x39, 0xc4, 0x6a), QColor(0xf0, 0xa8, 0x30),
                             QColor(0x2f, 0x7f, 0xd0), QColor(0x39, 0xc4, 0x6a)};
    p.setRenderHint(QPainter::Antialiasing, true);
    for (int i = 0; i < count; ++i) {
        const QPointF c(at.x() + 3.5 + i * 10, at.y() + 3.5);
        p.setPen(QColor(0x10, 0x12, 0x14));
        p.setBrush(colors[i % 5]);
        p.drawEllipse(c, 2.5, 2.5);
        p.setPen(QColor(0x70, 0x77, 0x7e));
        p.drawLine(c + QPointF(-2, 5), c + QPointF(2, 5));
    }
    p.setRenderHint(QPainter::Antialiasing, false);
}

void drawVents(QPainter& p, const QRect& r)
{
    p.setPen(QColor(0x14, 0x17, 0x1a));
    for (int x = r.left(); x <= r.right(); x += 4)
        p.drawLine(x, r.top(), x, r.bottom());
}

void drawRecess(QPainter& p, const QRect& r)
{
    p.fillRect(r, QColor(0x16, 0x19, 0x1c));
    p.setPen(QColor(0x0b, 0x0d, 0x0f));
    p.drawLine(r.topLeft(), r.topRight());
    p.drawLine(r.topLeft(), r.bottomLeft());
    p.setPen(QColor(0x4e, 0x55, 0x5c));
    p.drawLine(r.bottomLeft() + QPoint(1, 0), r.bottomRight());
    p.drawLine(r.topRight() + QPoint(0, 1), r.bottomRight());
}

QLinearGradient chassisGradient(const QRect& r, Family family)
{
    QLinearGradient g(r.topLeft(), r.bottomLeft());
    switch (family) {
    case Family::Bridge:
        g.setColorAt(0, QColor(0x52, 0x58, 0x5f));
        g.setColorAt(1, QColor(0x31, 0x36, 0x3b));
        break;
    case Family::AccessPoint:
        g.setColorAt(0, QColor(0x43, 0x48, 0x4e));
        g.setColorAt(1, QColor(0x26, 0x2a, 0x2e));
        break;
    case Family::FiberCard:
    case Family::FiberCrate:
        g.setColorAt(0, QColor(0x3f, 0x46, 0x4d));
        g.setColorAt(1, QColor(0x2a, 0x2f, 0x34));
        break;
    default:
        g.setColorAt(0, QColor(0x3a, 0x3f, 0x44));
        g.setColorAt(1, QColor(0x23, 0x27, 0x2b));
        break;
    }
    return g;
}

qreal cornerRadius(Family family)
{
    switch (family) {
    case Family::Bridge:
        return 10;
    case Family::AccessPoint:
        return 12;
    case Family::FiberCard:
        return 3;
    default:
        return 4;
    }
}

} // namespace

QImage drawFrame(const std::vector<FrameUse>& uses, int ratio)
{
    const PanelLayout& main = *uses.front().layout;
    const Family family = main.family;

    // Everything the frame must hold, over all its uses.
    std::vector<PortRect> ports;
    std::vector<QRect> allBays;
    QRect extent;     // ports and logo strip
    QRect portExtent; // ports alone
    QRect logoRect;
    for (const FrameUse& use : uses) {
        for (const PortRect& pr : portRects(*use.layout)) {
            extent |= pr.rect;
            portExtent |= pr.rect;
            if (use.layout == &main)
                ports.push_back(pr);
        }
        for (const QRect& b : bays(*use.layout))
            allBays.push_back(b);
        if (use.layout->logo.shown) {
            logoRect = QRect(use.layout->logo.offset.x, use.layout->logo.offset.y, 48, 7);
            extent |= logoRect;
        }
    }
    const int minX = ports.empty() ? 0 : portExtent.left();

    int width = extent.isNull() ? 220 : extent.right() + 1 + kRightMargin;
    int height = extent.isNull() ? 64 : extent.bottom() + 1 + kBottomMargin;
    bool plateLeft = minX >= kPlateZoneMin + 12 || ports.empty();
    int plateTop = 0;
    switch (family) {
    case Family::Chassis:
        width = std::max(width - kRightMargin + 5, 600);
        height = extent.bottom() + 1 + 8;
        plateLeft = false;
        break;
    case Family::FiberCrate:
        width = extent.right() + 1 + extent.left();
        height = extent.bottom() + 1 + 8;
        plateLeft = false;
        break;
    case Family::FiberCard:
        height = std::max(height, extent.bottom() + 1 + 6);
        plateLeft = minX >= 60;
        break;
    default:
        height = std::max(height, 60);
        width = std::max(width, 200);
        break;
    }
    if (!plateLeft && family != Family::Chassis && family != Family::FiberCrate) {
        plateTop = height;
        height += kPlateBand;
    }

    QImage img(width * ratio, height * ratio, QImage::Format_ARGB32_Premultiplied);
    img.setDevicePixelRatio(ratio);
    img.fill(Qt::transparent);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, true);
    const QRect all(0, 0, width, height);
    p.setPen(QColor(0x12, 0x14, 0x16));
    p.setBrush(chassisGradient(all, family));
    const qreal radius = cornerRadius(family);
    p.drawRoundedRect(QRectF(all).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    p.setPen(QColor(0x5c, 0x63, 0x6a));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(all).adjusted(1.5, 1.5, -1.5, -1.5), radius - 1, radius - 1);
    p.setRenderHint(QPainter::Antialiasing, false);

    const QString plate = plateText(main);
    const QString badge = QString::fromUtf8(uses.front().frame.badge);

    // Rack ears with their screws where the ports leave room.
    if (family == Family::FixedSwitch || family == Family::Chassis || family == Family::FiberCrate) {
        if (minX >= 9 || ports.empty()) {
            p.fillRect(QRect(2, 2, 5, height - 4), QColor(0x2c, 0x30, 0x35));
            p.fillRect(QRect(width - 7, 2, 5, height - 4), QColor(0x2c, 0x30, 0x35));
            p.setRenderHint(QPainter::Antialiasing, true);
            for (int y : {8, height - 9}) {
                drawScrew(p, QPointF(4.5, y));
                drawScrew(p, QPointF(width - 4.5, y));
            }
            p.setRenderHint(QPainter::Antialiasing, false);
        }
    }

    // The ports' bays and sockets.
    for (const QRect& b : allBays)
        drawRecess(p, b.adjusted(-2, -2, 2, 2).intersected(all.adjusted(2, 2, -2, -2)));
    for (const PortRect& pr : ports) {
        if (family == Family::Chassis || family == Family::FiberCrate) {
            drawRecess(p, pr.rect.adjusted(-1, -1, 1, 1));
            continue;
        }
        p.fillRect(pr.rect.adjusted(-1, -1, 1, 1), QColor(0x08, 0x09, 0x0a));
        // Link LED over the socket of the switch ports.
        if (family == Family::FixedSwitch && pr.kind != PortKind::Console && pr.rect.top() >= 5) {
            const QRect led(pr.rect.left() + 1, pr.rect.top() - 4, 3, 2);
            const bool clash = std::any_of(ports.begin(), ports.end(), [&](const PortRect& o) {
                return o.rect.adjusted(-1, -1, 1, 1).intersects(led);
            });
            if (!clash && !logoRect.intersects(led))
                p.fillRect(led, QColor(0x2a, 0x4a, 0x2a));
        }
    }

    // Plate and LEDs.
    switch (family) {
    case Family::Chassis: {
        const int firstSlotY = extent.top();
        drawPlate(p, QRect(14, 10, 96, 18), plate, badge);
        drawLeds(p, QPoint(16, 36), 5);
        drawVents(p, QRect(width / 2, 10, width / 2 - 20, firstSlotY - 20));
        p.fillRect(QRect(130, 14, 26, 14), QColor(0x17, 0x19, 0x1c));
        p.fillRect(QRect(134, 17, 8, 8), QColor(0xc0, 0x2a, 0x2a));
        break;
    }
    case Family::FiberCrate: {
        // Rails above and below the slots carry the plate and LEDs.
        p.fillRect(QRect(8, 1, width - 16, extent.top() - 1), QColor(0x50, 0x57, 0x5e));
        const int railTop = extent.bottom() + 2;
        p.fillRect(QRect(8, railTop, width - 16, height - railTop - 1), QColor(0x50, 0x57, 0x5e));
        drawLeds(p, QPoint(8, railTop - 1), 2);
        break;
    }
    default:
        if (plateLeft) {
            const int zoneRight = ports.empty() ? width - 12 : minX - 10;
            const int left = family == Family::FixedSwitch ? 12 : 10;
            int top = 10;
            if (!logoRect.isNull() && logoRect.left() < zoneRight)
                top = logoRect.bottom() + 6;
            const int plateW = std::min(zoneRight - left, 96);
            drawPlate(p, QRect(left, top, plateW, kPlateHeight), plate, badge);
            if (top + kPlateHeight + 16 <= height - 4)
                drawLeds(p, QPoint(left + 2, top + kPlateHeight + 6), std::min(5, (plateW - 4) / 10));
            if (family == Family::FixedSwitch && top + kPlateHeight + 30 <= height - 4)
                drawVents(p, QRect(left, top + kPlateHeight + 20, plateW, height - top - kPlateHeight - 26));
        } else {
            const int top = plateTop + (kPlateBand - kPlateHeight) / 2 - 2;
            const int left = family == Family::FixedSwitch ? 12 : 10;
            drawPlate(p, QRect(left, top, 96, kPlateHeight), plate, badge);
            drawLeds(p, QPoint(width - 64, top + 3), 5);
        }
        break;
    }
    p.end();
    return img;
}

} // namespace artgen
