#pragma once
// Drawing of the small images: ports, boards, crate cards, icons, and the SVGs of the
// logical panel and the logo strip. Every port image keeps a solid block of its state colour
// in its top-left corner (pixels 1 and 2 across and down), so a painted panel can be checked
// by colour; boards carry theirs in a bar along their left edge.
#include <QImage>
#include <QString>

#include "ui/DevicePanelStatus/PanelLayouts.h"

namespace artgen {

// A raster image of `shape` in `state`, at shapeSize(shape) in device-independent pixels,
// drawn for `ratio` device pixels per such pixel (2 for the "@2x" twin).
QImage drawImage(velmora::layouts::Shape shape, velmora::layouts::PortState state, int ratio = 1);

// The SVG text of `shape` in `state`; `bridgeLook` for the bridge category's set.
QByteArray drawSvg(velmora::layouts::Shape shape, velmora::layouts::PortState state, bool bridgeLook);

} // namespace artgen
