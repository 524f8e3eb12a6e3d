#include "TarvexGUIToolkit/TreeView.h"

namespace TarvexGUIToolkit {

CTreeView::CTreeView(QWidget* parent)
    : QTreeView(parent)
{
    InitItemView(this);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
}

CTreeView::~CTreeView() = default;

} // namespace TarvexGUIToolkit
