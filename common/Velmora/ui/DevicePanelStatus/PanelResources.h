#pragma once
// The module's images and style sheet live in resources compiled into libvelmora. A shared
// library registers them when it is loaded, but code linked statically from the object files
// (and any caller that wants to be sure) must call initResources() once before the first
// QPixmap or style sheet is read from ":/Tarvex7300/Velmora/Images/" or
// ":/ClientCommon/Qss/Qss/Velmora/Velmora.qss". The dialog calls it on construction; calling
// it again does nothing.
//
// Every raster image has a twin drawn at twice the size beside it ("x.png" and "x@2x.png").
// loadArt() picks the twin on a dense screen; the pixmap then carries a device pixel ratio of
// 2, so that its size in device-independent pixels, and every position read from it, is the
// same as the 1x image's.
#include <QPixmap>
#include <QSize>
#include <QString>

namespace velmora {

void initResources();

// The device pixel ratio the art is drawn for: 2 when the application's screens are dense
// (a ratio above 1), else 1.
int artRatio();
// The resource path of the image drawn for `ratio`: "x@2x.png" beside "x.png" at 2; the path
// itself at 1 and for images that are not PNG.
QString artPath(const QString& path, int ratio);
// `path` loaded for artRatio(). An SVG is rendered at the ratio from its natural size; a PNG
// without a twin falls back to the 1x image.
QPixmap loadArt(const QString& path);
QPixmap loadArt(const QString& path, int ratio);
// The module's own art (paths under ":/Tarvex7300/Velmora/Images/"), decoded once per
// process and density and then shared: every panel after the first of its model draws the
// same pixmaps (copies share the data until one is changed) instead of decoding them again.
// The art is compiled into the module and cannot change while it is loaded, so nothing kept
// here goes stale; any other path is loaded anew at every call, as loadArt() does. A density
// change (artRatio()) finds other entries. GUI thread only, like QPixmap itself; the entries
// go when the application object does.
QPixmap sharedArt(const QString& path);
// The same art scaled to `size` in device-independent pixels, keeping its density.
QPixmap sharedArt(const QString& path, const QSize& size);
// How many pixmaps are kept, and dropping them all (the next call decodes again).
int sharedArtCount();
void dropSharedArt();
// A pixmap's size in device-independent pixels.
inline QSize logicalSize(const QPixmap& pixmap)
{
    return pixmap.size() / pixmap.devicePixelRatio();
}

} // namespace velmora
