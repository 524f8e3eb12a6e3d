#pragma once
// The chassis switches, one class per model; slots and boards are the rows of
// chassisLayouts() (PanelLayoutTables.cpp).
#include "ui/DevicePanelStatus/ChassisPanel.h"

namespace velmora {

class CQ145SwitchPanel : public CChassisPanel {
    Q_OBJECT
public:
    explicit CQ145SwitchPanel(QWidget* parent);
};

class CQ146SwitchPanel : public CChassisPanel {
    Q_OBJECT
public:
    explicit CQ146SwitchPanel(QWidget* parent);
};

class CQ147SwitchPanel : public CChassisPanel {
    Q_OBJECT
public:
    explicit CQ147SwitchPanel(QWidget* parent);
};

class CQ148SwitchPanel : public CChassisPanel {
    Q_OBJECT
public:
    explicit CQ148SwitchPanel(QWidget* parent);
};

class CQ102SwitchPanel : public CChassisPanel {
    Q_OBJECT
public:
    explicit CQ102SwitchPanel(QWidget* parent);
};

} // namespace velmora
