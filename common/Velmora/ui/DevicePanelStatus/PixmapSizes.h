#pragma once
// The sizes a layout row's positions read, taken from the images a panel stored.
#include <QPixmap>
#include <map>

#include "ui/DevicePanelStatus/PanelLayouts.h"

namespace velmora {

class CPixmapSizes : public layouts::SizeSource {
public:
    explicit CPixmapSizes(const std::map<unsigned, QPixmap*>& pixmaps) : m_pixmaps(pixmaps) {}

    // A missing or null image measures 0 by 0.
    layouts::Size sizeOf(int id) const override
    {
        const auto it = m_pixmaps.find(static_cast<unsigned>(id));
        if (id < 0 || it == m_pixmaps.end() || !it->second)
            return layouts::Size{};
        // In device-independent pixels, whatever density the image was drawn for.
        const QSize size = it->second->size() / it->second->devicePixelRatio();
        return layouts::Size{size.width(), size.height()};
    }

private:
    const std::map<unsigned, QPixmap*>& m_pixmaps;
};

} // namespace velmora
