#pragma once
// Drawing of the frames: the front of a device, sized to hold every port of the rows that use
// it, with the ports' sockets in place, a model plate and a strip of status LEDs.
#include <QImage>
#include <vector>

#include "ui/DevicePanelStatus/PanelLayouts.h"

namespace artgen {

// One use of a frame image: a row and the frame entry (mode) that names it.
struct FrameUse {
    const velmora::layouts::PanelLayout* layout = nullptr;
    velmora::layouts::Frame frame;
};

// The frame image for all its uses; the first use decides the look and the plate. Drawn for
// `ratio` device pixels per device-independent pixel (2 for the "@2x" twin).
QImage drawFrame(const std::vector<FrameUse>& uses, int ratio = 1);

} // namespace artgen
