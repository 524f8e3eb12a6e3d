#pragma once
// The wireless APs, wireless routers and gateway routers, one class per model family;
// frames, image sets and ports are the rows of accessPointLayouts() (PanelLayoutTables.cpp).
#include "ui/DevicePanelStatus/LayoutPanel.h"

namespace velmora {

class CQ301APPannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ301APPannel(QWidget* parent);
};

class CQ302APPannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ302APPannel(QWidget* parent);
};

class CQ303APPannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ303APPannel(QWidget* parent);
};

class CQ304APPannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ304APPannel(QWidget* parent);
};

class CQ305APPannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ305APPannel(QWidget* parent);
};

class CQ306APPannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ306APPannel(QWidget* parent);
};

class CQ401Pannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ401Pannel(QWidget* parent);
};

class CQ402Pannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ402Pannel(QWidget* parent);
};

class CQ403Pannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ403Pannel(QWidget* parent);
};

class CQ431Pannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ431Pannel(QWidget* parent);
};

class CQ432Pannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ432Pannel(QWidget* parent);
};

class CQ433Pannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ433Pannel(QWidget* parent);
};

class CQ434Pannel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ434Pannel(QWidget* parent);
};

class CQ501GRouter : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ501GRouter(QWidget* parent);
};

class CQ502GRouter : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ502GRouter(QWidget* parent);
};

class CQ503GRouter : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ503GRouter(QWidget* parent);
};

class CQ504GRouter : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ504GRouter(QWidget* parent);
};

class CQ505GRouter : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ505GRouter(QWidget* parent);
};

class CQ506GRouter : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ506GRouter(QWidget* parent);
};

} // namespace velmora
