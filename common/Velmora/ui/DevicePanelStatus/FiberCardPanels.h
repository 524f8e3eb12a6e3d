#pragma once
// The fiber devices that stand alone: network management card, receiving card and sending
// unit; their rows are fiberCardLayouts() (PanelLayoutTables.cpp).
#include "ui/DevicePanelStatus/LayoutPanel.h"

namespace velmora {

class CFiberNetMgCardPanelStatus : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CFiberNetMgCardPanelStatus(QWidget* parent);
};

class CFiberReceiveCardPanelStatus : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CFiberReceiveCardPanelStatus(QWidget* parent);
};

class CFiberSendMachinePanelStatus : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CFiberSendMachinePanelStatus(QWidget* parent);
};

} // namespace velmora
