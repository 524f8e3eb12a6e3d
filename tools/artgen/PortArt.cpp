#include "PortArt.h"

#include <QPainter>
#include <QPainterPath>

using namespace velmora::layouts;

namespace artgen {
namespace {

const QColor kCavity(0x17, 0x19, 0x1c);
const QColor kPin(0xc9, 0xa2, 0x27);
const QColor kMetal(0x9a, 0xa1, 0xa8);

QColor colorOf(PortState state)
{
    return QColor(QRgb(stateColor(state)));
}

QImage blank(Shape shape, int ratio)
{
    const Size s = shapeSize(shape);
    QImage img(s.width * ratio, s.height * ratio, QImage::Format_ARGB32_Premultiplied);
    // Painters on the image then work in device-independent pixels.
    img.setDevicePixelRatio(ratio);
    img.fill(Qt::transparent);
    return img;
}

// A body of the state colour with a darker rim; the inner block at (1..2, 1..2) stays solid.
void body(QPainter& p, const QRect& r, const QColor& c)
{
    p.fillRect(r, c);
    p.setPen(c.darker(190));
    p.setBrush(Qt::NoBrush);
    p.drawRect(r.adjusted(0, 0, -1, -1));
}

// RJ45 jack seen from the front: a cavity with the latch notch below (or above when turned).
void rj45(QPainter& p, const QRect& r, const QColor& c, bool turned)
{
    body(p, r, c);
    const int w = r.width();
    const int h = r.height();
    const int inset = std::max(3, w / 6);
    const int top = std::max(4, h / 4);
    const int cavityH = std::max(3, h / 2);
    QRect cavity(r.left() + inset, r.top() + top, w - 2 * inset, cavityH);
    const int notchW = std::max(2, cavity.width() * 2 / 5);
    const int notchH = std::max(1, h / 8 + 1);
    QRect notch(r.left() + (w - notchW) / 2, cavity.bottom() + 1, notchW, notchH);
    if (turned) {
        cavity.moveTop(r.bottom() + 1 - top - cavityH);
        notch.moveTop(cavity.top() - notchH);
    }
    p.fillRect(cavity, kCavity);
    p.fillRect(notch, kCavity);
    // Contacts along the far edge of the cavity.
    const int pinY = turned ? cavity.bottom() - 1 : cavity.top() + 1;
    for (int x = cavity.left() + 1; x < cavity.right(); x += 2)
        p.fillRect(QRect(x, pinY, 1, 1), kPin);
}

// SFP cage: two fibre openings side by side and the latch bar.
void sfp(QPainter& p, const QRect& r, const QColor& c, bool turned)
{
    body(p, r, c);
    const int w = r.width();
    const int h = r.height();
    const int inset = std::max(3, w / 6);
    const int gap = std::max(2, w / 8);
    const int holeW = (w - 2 * inset - gap) / 2;
    const int holeH = std::max(3, h / 2);
    const int top = turned ? r.bottom() + 1 - inset - holeH + 1 : r.top() + inset;
    p.fillRect(QRect(r.left() + inset, top, holeW, holeH), kCavity);
    p.fillRect(QRect(r.left() + inset + holeW + gap, top, holeW, holeH), kCavity);
    const int barY = turned ? top - 2 : top + holeH + 1;
    if (barY > r.top() + 3 && barY < r.bottom())
        p.fillRect(QRect(r.left() + inset, barY, w - 2 * inset, 1), c.darker(160));
}

// SC socket: one square opening with a ferrule.
void sc(QPainter& p, const QRect& r, const QColor& c)
{
    body(p, r, c);
    const int inset = std::max(3, std::min(r.width(), r.height()) / 5);
    QRect hole = r.adjusted(inset + 1, inset, -inset - 1, -inset);
    p.fillRect(hole, kCavity);
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xe8, 0xe4, 0xd8));
    const int d = std::max(2, std::min(hole.width(), hole.height()) / 2);
    p.drawEllipse(QRectF(hole.center().x() - d / 2.0 + 0.5, hole.center().y() - d / 2.0 + 0.5, d, d));
    p.setRenderHint(QPainter::Antialiasing, false);
}

// A board in a chassis slot: state bar on the left, ejectors at both ends, ports when inserted.
void board(QPainter& p, const QRect& r, PortState state, bool mainBoard)
{
    const bool inserted = state == PortState::Up;
    const QColor face = inserted ? QColor(0x3b, 0x41, 0x48) : QColor(0x2a, 0x2e, 0x33);
    p.fillRect(r, face);
    p.setPen(face.lighter(150));
    p.drawLine(r.topLeft(), r.topRight());
    p.setPen(face.darker(160));
    p.drawLine(r.bottomLeft(), r.bottomRight());
    // State bar: the block the checks read.
    p.fillRect(QRect(r.left(), r.top(), 6, r.height()), inserted ? colorOf(PortState::Up) : colorOf(PortState::Down));
    // Ejector handles.
    const QColor handle(0x8e, 0x96, 0x9e);
    p.fillRect(QRect(r.left() + 8, r.top() + 3, 8, r.height() - 6), handle);
    p.fillRect(QRect(r.right() - 15, r.top() + 3, 8, r.height() - 6), handle);
    // Screws.
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(Qt::NoPen);
    p.setBrush(kMetal);
    p.drawEllipse(QPointF(r.left() + 22.5, r.center().y() + 0.5), 2.5, 2.5);
    p.drawEllipse(QPointF(r.right() - 21.5, r.center().y() + 0.5), 2.5, 2.5);
    p.setRenderHint(QPainter::Antialiasing, false);
    if (!inserted)
        return;
    // Status LEDs and a row of ports.
    for (int i = 0; i < 3; ++i)
        p.fillRect(QRect(r.left() + 30, r.top() + 6 + i * 6, 4, 3), i == 0 ? QColor(0x39, 0xc4, 0x6a) : QColor(0xf0, 0xa8, 0x30));
    const int portW = mainBoard ? 14 : 12;
    const int portH = mainBoard ? 11 : 10;
    const int rows = r.height() >= 40 ? 2 : 1;
    const int startX = r.left() + 44;
    const int endX = r.right() - 30;
    for (int row = 0; row < rows; ++row) {
        const int y = r.top() + (rows == 2 ? 6 + row * (portH + 4) : (r.height() - portH) / 2);
        for (int x = startX; x + portW < endX; x += portW + 3)
            p.fillRect(QRect(x, y, portW, portH), kCavity);
        if (mainBoard)
            break;
    }
    if (mainBoard) {
        // Console and management jacks, a USB slot.
        const int y = r.bottom() - 14;
        p.fillRect(QRect(startX, y, 14, 10), QColor(0x6f, 0x8f, 0xa8));
        p.fillRect(QRect(startX + 18, y, 14, 10), kCavity);
        p.fillRect(QRect(startX + 36, y + 3, 12, 5), kMetal);
    }
}

void crateCard(QPainter& p, const QRect& r, bool inserted)
{
    const QColor face = inserted ? QColor(0x40, 0x46, 0x4d) : QColor(0x2b, 0x2f, 0x34);
    p.fillRect(r, face);
    p.setPen(face.lighter(140));
    p.drawLine(r.topLeft(), r.bottomLeft());
    p.setPen(face.darker(170));
    p.drawLine(r.topRight(), r.bottomRight());
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(Qt::NoPen);
    p.setBrush(kMetal);
    p.drawEllipse(QPointF(r.center().x() + 0.5, r.top() + 4.5), 2, 2);
    p.drawEllipse(QPointF(r.center().x() + 0.5, r.bottom() - 3.5), 2, 2);
    p.setRenderHint(QPainter::Antialiasing, false);
    if (!inserted)
        return;
    // Run and fault LEDs above the ports; an ejector at the foot.
    p.fillRect(QRect(r.left() + 5, r.top() + 12, 3, 3), QColor(0x39, 0xc4, 0x6a));
    p.fillRect(QRect(r.left() + 11, r.top() + 12, 3, 3), QColor(0x55, 0x2a, 0x2a));
    p.fillRect(QRect(r.left() + 4, r.bottom() - 20, r.width() - 8, 8), QColor(0x8e, 0x96, 0x9e));
}

void legendGlyph(QPainter& p, Shape shape)
{
    const QRect r(2, 4, 16, 12);
    const QColor neutral(0xd3, 0xd7, 0xdb);
    if (shape == Shape::LegendElectrical) {
        rj45(p, r, neutral, false);
    } else if (shape == Shape::LegendOptical) {
        sfp(p, r, neutral, false);
    } else {
        sc(p, QRect(3, 3, 14, 14), neutral);
    }
}

} // namespace

QImage drawImage(Shape shape, PortState state, int ratio)
{
    QImage img = blank(shape, ratio);
    QPainter p(&img);
    const Size size = shapeSize(shape);
    const QRect r(0, 0, size.width, size.height);
    const QColor c = colorOf(state);
    switch (shape) {
    case Shape::MidElectrical:
    case Shape::Electrical:
    case Shape::BigElectrical:
    case Shape::BridgePort:
    case Shape::BridgePortUp:
    case Shape::ApPort:
    case Shape::ApPort2:
    case Shape::ApPort3:
    case Shape::ApPort4:
    case Shape::WireRouterPort1:
    case Shape::WireRouterPort2:
    case Shape::WireRouterPort3:
    case Shape::GateRouterPort1:
    case Shape::GateRouterPort3:
    case Shape::FiberSlotElectrical:
        rj45(p, r, c, false);
        break;
    case Shape::ElectricalLower:
        rj45(p, r, c, true);
        break;
    case Shape::MidOptical:
    case Shape::Optical:
        sfp(p, r, c, false);
        break;
    case Shape::OpticalLower:
        sfp(p, r, c, true);
        break;
    case Shape::SmallOptical:
    case Shape::BigOptical:
    case Shape::FiberSlotOptical:
        sc(p, r, c);
        break;
    case Shape::Console:
        rj45(p, r, QColor(0x6f, 0x8f, 0xa8), false);
        break;
    case Shape::MainBoardA:
    case Shape::MainBoardB:
        board(p, r, state, true);
        break;
    case Shape::InterfaceBoard:
        board(p, r, state, false);
        break;
    case Shape::FiberSlotCard:
        crateCard(p, r, true);
        break;
    case Shape::FiberSlotEmpty:
        crateCard(p, r, false);
        break;
    case Shape::LegendElectrical:
    case Shape::LegendOptical:
    case Shape::LegendFiberOptical:
        legendGlyph(p, shape);
        break;
    case Shape::ChannelStatus:
        p.setRenderHint(QPainter::Antialiasing, true);
        p.setPen(c.darker(170));
        p.setBrush(c);
        p.drawEllipse(QRectF(1.5, 1.5, r.width() - 3.0, r.height() - 3.0));
        break;
    case Shape::NoData: {
        // An empty tray with a question of lines above it.
        p.setRenderHint(QPainter::Antialiasing, true);
        QPen pen(QColor(0xb4, 0xb9, 0xbf), 3);
        pen.setJoinStyle(Qt::RoundJoin);
        p.setPen(pen);
        p.setBrush(QColor(0xe9, 0xec, 0xef));
        QPainterPath tray;
        tray.moveTo(12, 58);
        tray.lineTo(28, 30);
        tray.lineTo(72, 30);
        tray.lineTo(88, 58);
        tray.lineTo(88, 84);
        tray.lineTo(12, 84);
        tray.closeSubpath();
        p.drawPath(tray);
        p.drawLine(QPointF(12, 58), QPointF(36, 58));
        p.drawLine(QPointF(64, 58), QPointF(88, 58));
        p.drawArc(QRectF(36, 48, 28, 20), 180 * 16, 180 * 16);
        break;
    }
    case Shape::Frame:
    case Shape::Logo:
    case Shape::LogicalElectricalUp:
    case Shape::LogicalElectricalDown:
    case Shape::LogicalOptical:
    case Shape::LogicalOrderRight:
    case Shape::LogicalOrderLeft:
        break;
    }
    p.end();
    return img;
}

QByteArray drawSvg(Shape shape, PortState state, bool bridgeLook)
{
    const Size s = shapeSize(shape);
    QString body;
    const QString color = QColor(QRgb(stateColor(state))).name();
    const QString rim = QColor(QRgb(stateColor(state))).darker(190).name();
    const QString radius = bridgeLook ? QStringLiteral("3") : QStringLiteral("0");
    // The port cells are drawn on a 24-unit grid and scaled to their size by the view box.
    Size view = s;
    switch (shape) {
    case Shape::LogicalElectricalUp:
    case Shape::LogicalElectricalDown: {
        const bool up = shape == Shape::LogicalElectricalUp;
        view = Size{24, 24};
        body += QStringLiteral("<rect x=\"0\" y=\"0\" width=\"24\" height=\"24\" rx=\"%1\" fill=\"%2\"/>")
                    .arg(radius, color);
        body += QStringLiteral("<rect x=\"0.5\" y=\"0.5\" width=\"23\" height=\"23\" rx=\"%1\" fill=\"none\" "
                               "stroke=\"%2\" stroke-width=\"1\"/>")
                    .arg(radius, rim);
        // Cavity, latch notch towards the port's direction, contacts on the far side.
        body += up ? QStringLiteral("<path d=\"M5 9 H9 V6 H15 V9 H19 V19 H5 Z\" fill=\"#17191c\"/>")
                   : QStringLiteral("<path d=\"M5 5 H19 V15 H15 V18 H9 V15 H5 Z\" fill=\"#17191c\"/>");
        const int pinY = up ? 17 : 6;
        for (int x = 7; x <= 17; x += 2)
            body += QStringLiteral("<rect x=\"%1\" y=\"%2\" width=\"1\" height=\"1\" fill=\"#c9a227\"/>").arg(x).arg(pinY);
        if (bridgeLook)
            body += QStringLiteral("<rect x=\"3\" y=\"3\" width=\"18\" height=\"18\" rx=\"2\" fill=\"none\" "
                                   "stroke=\"%1\" stroke-width=\"0.8\" stroke-opacity=\"0.6\"/>")
                        .arg(rim);
        break;
    }
    case Shape::LogicalOptical:
        view = Size{24, 24};
        body += QStringLiteral("<rect x=\"0\" y=\"0\" width=\"24\" height=\"24\" rx=\"%1\" fill=\"%2\"/>")
                    .arg(radius, color);
        body += QStringLiteral("<rect x=\"0.5\" y=\"0.5\" width=\"23\" height=\"23\" rx=\"%1\" fill=\"none\" "
                               "stroke=\"%2\" stroke-width=\"1\"/>")
                    .arg(radius, rim);
        body += QStringLiteral("<rect x=\"5\" y=\"7\" width=\"6\" height=\"10\" fill=\"#17191c\"/>");
        body += QStringLiteral("<rect x=\"13\" y=\"7\" width=\"6\" height=\"10\" fill=\"#17191c\"/>");
        body += QStringLiteral("<circle cx=\"8\" cy=\"12\" r=\"1.6\" fill=\"#e8e4d8\"/>");
        body += QStringLiteral("<circle cx=\"16\" cy=\"12\" r=\"1.6\" fill=\"#e8e4d8\"/>");
        break;
    case Shape::LogicalOrderRight:
    case Shape::LogicalOrderLeft: {
        const QString fill = bridgeLook ? QStringLiteral("#b9c3cc") : QStringLiteral("#d0d3d6");
        // A chevron in the middle of a column as wide as a port cell, one row high.
        body += shape == Shape::LogicalOrderRight
                    ? QStringLiteral("<path d=\"M6 2 L10 6 L6 10\" fill=\"none\" stroke=\"%1\" stroke-width=\"1.6\" "
                                     "stroke-linecap=\"round\" stroke-linejoin=\"round\"/>")
                          .arg(fill)
                    : QStringLiteral("<path d=\"M10 2 L6 6 L10 10\" fill=\"none\" stroke=\"%1\" stroke-width=\"1.6\" "
                                     "stroke-linecap=\"round\" stroke-linejoin=\"round\"/>")
                          .arg(fill);
        break;
    }
    case Shape::Logo:
        // A word mark of bars and a wedge, no font needed.
        body += QStringLiteral("<rect x=\"0\" y=\"0\" width=\"48\" height=\"7\" rx=\"1\" fill=\"#1f2327\"/>");
        body += QStringLiteral("<path d=\"M2 1 L5 6 L8 1\" fill=\"none\" stroke=\"#4a90e2\" stroke-width=\"1.3\"/>");
        for (int i = 0; i < 6; ++i)
            body += QStringLiteral("<rect x=\"%1\" y=\"%2\" width=\"5\" height=\"%3\" fill=\"#d9dde1\"/>")
                        .arg(11 + i * 6)
                        .arg(i % 2 ? 2 : 1)
                        .arg(i % 2 ? 4 : 5);
        break;
    default:
        break;
    }
    const QString svg = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                       "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" height=\"%2\" "
                                       "viewBox=\"0 0 %3 %4\">%5</svg>\n")
                            .arg(s.width)
                            .arg(s.height)
                            .arg(view.width)
                            .arg(view.height)
                            .arg(body);
    return svg.toUtf8();
}

} // namespace artgen
