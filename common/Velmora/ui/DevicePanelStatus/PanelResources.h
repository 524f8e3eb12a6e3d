#pragma once
// The module's images and style sheet live in resources compiled into libvelmora. A shared
// library registers them when it is loaded, but code linked statically from the object files
// (and any caller that wants to be sure) must call initResources() once before the first
// QPixmap or style sheet is read from ":/Tarvex7300/Velmora/Images/" or
// ":/ClientCommon/Qss/Qss/Velmora/Velmora.qss". The dialog calls it on construction; calling
// it again does nothing.
namespace velmora {

void initResources();

} // namespace velmora
