#include "PanelResources.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QHash>
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

namespace {

const QLatin1String kArtRoot(":/Tarvex7300/Velmora/Images/");

QHash<QString, QPixmap>& artCache()
{
    static QHash<QString, QPixmap> cache;
    return cache;
}

bool releaseRegistered = false;

// Pixmaps must not outlive the application object: the kept ones go with it.
void releaseArtWithApplication()
{
    releaseRegistered = false;
    artCache().clear();
}

// The key of one image at one density, scaled or at its natural size.
QString artKey(const QString& path, int ratio, const QSize& size)
{
    QString key = path;
    key += QLatin1Char('@') + QString::number(ratio);
    if (size.isValid())
        key += QLatin1Char(':') + QString::number(size.width()) + QLatin1Char('x') + QString::number(size.height());
    return key;
}

QPixmap scaledArt(const QString& path, int ratio, const QSize& size)
{
    QPixmap pixmap = loadArt(path, ratio);
    if (!size.isValid())
        return pixmap;
    // The size is in device-independent pixels; a dense image keeps its density.
    const qreal density = pixmap.devicePixelRatio();
    QPixmap scaled = pixmap.scaled(size * density, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    scaled.setDevicePixelRatio(density);
    return scaled;
}

QPixmap cachedArt(const QString& path, const QSize& size)
{
    const int ratio = artRatio();
    if (!path.startsWith(kArtRoot) || !qGuiApp)
        return scaledArt(path, ratio, size);
    QHash<QString, QPixmap>& cache = artCache();
    const QString key = artKey(path, ratio, size);
    const auto found = cache.constFind(key);
    if (found != cache.constEnd())
        return found.value();
    const QPixmap pixmap = scaledArt(path, ratio, size);
    // A failed load is not kept: the next panel tries again.
    if (pixmap.isNull())
        return pixmap;
    if (!releaseRegistered) {
        releaseRegistered = true;
        qAddPostRoutine(releaseArtWithApplication);
    }
    cache.insert(key, pixmap);
    return pixmap;
}

} // namespace

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

QPixmap sharedArt(const QString& path)
{
    return cachedArt(path, QSize());
}

QPixmap sharedArt(const QString& path, const QSize& size)
{
    return cachedArt(path, size);
}

int sharedArtCount()
{
    return artCache().size();
}

void dropSharedArt()
{
    artCache().clear();
}

} // namespace velmora
