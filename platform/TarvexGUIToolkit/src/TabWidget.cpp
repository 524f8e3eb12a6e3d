#include "TarvexGUIToolkit/TabWidget.h"

#include <QTabBar>

namespace TarvexGUIToolkit {

CTabWidget::CTabWidget(QWidget* parent)
    : QTabWidget(parent)
{
    setUsesScrollButtons(true);
    setElideMode(Qt::ElideNone);
    tabBar()->setExpanding(false);
}

CTabWidget::~CTabWidget() = default;

} // namespace TarvexGUIToolkit
