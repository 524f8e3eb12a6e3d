#pragma once
// The wireless bridges, one class per model family; frames and ports are the rows of
// bridgeLayouts() (PanelLayoutTables.cpp).
#include "ui/DevicePanelStatus/LayoutPanel.h"

namespace velmora {

class CSinglePortElevatorBridgePanelStatus : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CSinglePortElevatorBridgePanelStatus(QWidget* parent);
};

class CThreePortElevatorBridgePanelStatus : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CThreePortElevatorBridgePanelStatus(QWidget* parent);
};

class CSiteBridgePanelStatus : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CSiteBridgePanelStatus(QWidget* parent);
};

class CPairedBridgePanelStatus : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CPairedBridgePanelStatus(QWidget* parent);
};

class C5KMGigabitBridgeChassisStatus : public CLayoutPanel {
    Q_OBJECT
public:
    explicit C5KMGigabitBridgeChassisStatus(QWidget* parent);
};

class CACElevatorBridgePanelStatus : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CACElevatorBridgePanelStatus(QWidget* parent);
};

class C2D4G100MElevatorBridgePannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit C2D4G100MElevatorBridgePannel(QWidget* parent);
};

class C2D4G200MElevatorBridgePannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit C2D4G200MElevatorBridgePannel(QWidget* parent);
};

class C2D4G500MElevatorBridgePannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit C2D4G500MElevatorBridgePannel(QWidget* parent);
};

class C2D4G1KMOutDoorBridgePannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit C2D4G1KMOutDoorBridgePannel(QWidget* parent);
};

class C5D8G1KMOutDoorBridgePannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit C5D8G1KMOutDoorBridgePannel(QWidget* parent);
};

class C5D8G3KMOutDoorBridgePannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit C5D8G3KMOutDoorBridgePannel(QWidget* parent);
};

class CLowEnd1KMOutDoorBridgePannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CLowEnd1KMOutDoorBridgePannel(QWidget* parent);
};

class CMutliPortBridgePanelStatus : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CMutliPortBridgePanelStatus(QWidget* parent);
};

} // namespace velmora
