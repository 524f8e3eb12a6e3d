#include "PanelResources.h"

#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QtCore/qglobal.h>

// Q_INIT_RESOURCE declares the registration function in the scope it is used in, so it must
// stand outside any namespace.
static void registerVelmoraResources()
{
    Q_INIT_RESOURCE(velmora_art);
    Q_INIT_RESOURCE(velmora_style);
}

namespace velmora {

void initResources()
{
    static const bool registered = (registerVelmoraResources(), true);
    (void)registered;
}

int artRatio()
{
    return qGuiApp && qGuiApp->devicePixelRatio() > 1.0 ? 2 : 1;
}

QString artPath(const QString& path, int ratio)
{
    if (ratio < 2 || !path.endsWith(QLatin1String(".png")))
        return path;
    return path.left(path.size() - 4) + QStringLiteral("@2x.png");
}

QPixmap loadArt(const QString& path)
{
    return loadArt(path, artRatio());
}

QPixmap loadArt(const QString& path, int ratio)
{
    if (ratio < 2)
        return QPixmap(path);
    QImageReader reader(artPath(path, ratio));
    if (path.endsWith(QLatin1String(".svg"))) {
        const QSize natural = reader.size();
        if (natural.isValid())
            reader.setScaledSize(natural * ratio);
    } else if (!reader.canRead()) {
        return QPixmap(path);
    }
    QImage image = reader.read();
    if (image.isNull())
        return QPixmap(path);
    image.setDevicePixelRatio(ratio);
    return QPixmap::fromImage(image);
}

} // namespace velmora
