#pragma once
// Pages rendered to PNG files under <build>/snapshots/<area> for people to look at, with a
// check that each file holds a picture and not a blank rectangle.
#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QWidget>
#include <cstdlib>
#include <gtest/gtest.h>

namespace velmora {
namespace test {

inline QString snapshotDir(const QString& area)
{
    const char* build = std::getenv("VELMORA_BUILD_DIR");
    QDir dir(build ? QString::fromLocal8Bit(build) : QDir::currentPath());
    const QString relative = QStringLiteral("snapshots/") + area;
    dir.mkpath(relative);
    return dir.filePath(relative);
}

// Writes what `widget` shows to <area>/<name>.png. With a size, the widget is first resized
// and shown as it would stand in the dialog's stack, then hidden again.
inline void writeSnapshot(QWidget& widget, const QString& area, const QString& name, const QSize& size = QSize())
{
    if (size.isValid()) {
        widget.resize(size);
        widget.show();
    }
    QApplication::processEvents();
    const QPixmap pixmap = widget.grab();
    if (size.isValid())
        widget.hide();
    ASSERT_FALSE(pixmap.isNull());
    const QString path = QDir(snapshotDir(area)).filePath(name + ".png");
    ASSERT_TRUE(pixmap.save(path)) << path.toStdString();
    const QImage image(path);
    ASSERT_FALSE(image.isNull()) << path.toStdString();
    if (size.isValid()) {
        EXPECT_EQ(image.size(), size);
    }
    // Not a blank picture: more than one colour on it.
    const QRgb first = image.pixel(0, 0);
    bool varied = false;
    for (int y = 0; y < image.height() && !varied; y += 5)
        for (int x = 0; x < image.width() && !varied; x += 5)
            varied = image.pixel(x, y) != first;
    EXPECT_TRUE(varied) << name.toStdString();
}

} // namespace test
} // namespace velmora
