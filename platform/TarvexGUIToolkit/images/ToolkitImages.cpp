// Draws the toolkit's icons at build time: a 16 x 16 image and its @2x twin for each,
// written as PNG into the folder named by the only argument.
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QString>

#include <cstdio>
#include <functional>

namespace {

constexpr int kIconSize = 16;

// Pen colours: the back arrow sits on the light page, the close cross on the dark title bar.
const QColor kBackArrowColor(0x3c, 0x48, 0x58);
const QColor kCloseCrossColor(0xf2, 0xf4, 0xf7);

void drawPreviousPage(QPainter& painter)
{
    QPen pen(kBackArrowColor, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter.setPen(pen);
    QPainterPath path;
    path.moveTo(7.5, 3.5);
    path.lineTo(3, 8);
    path.lineTo(7.5, 12.5);
    path.moveTo(3.5, 8);
    path.lineTo(13, 8);
    painter.drawPath(path);
}

void drawClose(QPainter& painter)
{
    QPen pen(kCloseCrossColor, 1.5, Qt::SolidLine, Qt::RoundCap);
    painter.setPen(pen);
    painter.drawLine(QPointF(4, 4), QPointF(12, 12));
    painter.drawLine(QPointF(12, 4), QPointF(4, 12));
}

bool writeIcon(const QString& folder, const QString& name, const std::function<void(QPainter&)>& draw)
{
    for (int scale : {1, 2}) {
        QImage image(kIconSize * scale, kIconSize * scale, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        {
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.scale(scale, scale);
            draw(painter);
        }
        const QString file = folder + "/" + name + (scale == 1 ? QString() : QString("@%1x").arg(scale)) + ".png";
        if (!image.save(file, "PNG")) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s <output folder>\n", argv[0]);
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const bool written = writeIcon(folder, "PreviousPage", drawPreviousPage) && writeIcon(folder, "Close", drawClose);
    return written ? 0 : 1;
}
