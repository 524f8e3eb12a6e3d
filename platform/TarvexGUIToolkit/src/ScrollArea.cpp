#include "TarvexGUIToolkit/ScrollArea.h"

namespace TarvexGUIToolkit {

CScrollArea::CScrollArea(QWidget* parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
}

CScrollArea::~CScrollArea() = default;

} // namespace TarvexGUIToolkit
