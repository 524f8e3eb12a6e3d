#pragma once
// Panels by class name, for programs that pick a panel from data: the snapshot run of the
// viewer, the tests and benchmarks. The page picks its panel by model and constructs the class
// directly.
#include <QWidget>
#include <string>
#include <vector>

#include "ui/DevicePanelStatus/PanelStatusBase.h"

namespace velmora {

// A new panel of class `className` (as "CQ110SwitchPanel"), with `mode` for the classes that
// take one; null for an unknown name. The caller owns it (or its parent does).
CPanelStatusBase* createPanel(const std::string& className, int mode, QWidget* parent);

// Every class createPanel() knows, the logical panel last.
std::vector<std::string> panelClassNames();

// True for the classes whose constructor takes a mode.
bool panelTakesMode(const std::string& className);

} // namespace velmora
