#pragma once
// The fixed switches, one class per model family. Their frames, images, port positions,
// jack forms, console ports, logo strips and treatment of "multiplex" are the rows of
// fixedSwitchLayouts() (PanelLayoutTables.cpp); the classes with an `int mode` pick their
// frame with it: 0 without PoE, 1 PoE, 2 super PoE, 3 the sibling family on the same ports.
#include "ui/DevicePanelStatus/LayoutPanel.h"

namespace velmora {

class CQ101SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    CQ101SwitchPanel(int mode, QWidget* parent);
};

class CQ103SerialSwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    CQ103SerialSwitchPanel(int mode, QWidget* parent);
};

class CQ104SerialSwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ104SerialSwitchPanel(QWidget* parent);
};

class CQ105SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ105SwitchPanel(QWidget* parent);
};

class CQ106SerialSwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    CQ106SerialSwitchPanel(int mode, QWidget* parent);
};

class CQ107SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ107SwitchPanel(QWidget* parent);
};

class CQ108SerialSwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    CQ108SerialSwitchPanel(int mode, QWidget* parent);
};

class CQ109SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ109SwitchPanel(QWidget* parent);
};

class CQ110SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ110SwitchPanel(QWidget* parent);
};

class CQ111SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ111SwitchPanel(QWidget* parent);
};

class CQ112SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ112SwitchPanel(QWidget* parent);
};

class CQ113SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ113SwitchPanel(QWidget* parent);
};

class CQ114SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ114SwitchPanel(QWidget* parent);
};

class CQ115SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ115SwitchPanel(QWidget* parent);
};

class CQ116SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ116SwitchPanel(QWidget* parent);
};

class CQ117SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ117SwitchPanel(QWidget* parent);
};

class CQ118SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ118SwitchPanel(QWidget* parent);
};

class CQ119SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    CQ119SwitchPanel(int mode, QWidget* parent);
};

class CQ120SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ120SwitchPanel(QWidget* parent);
};

class CQ121SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    CQ121SwitchPanel(int mode, QWidget* parent);
};

class CQ122SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    CQ122SwitchPanel(int mode, QWidget* parent);
};

class CQ123SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ123SwitchPanel(QWidget* parent);
};

class CQ124SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ124SwitchPanel(QWidget* parent);
};

class CQ125SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ125SwitchPanel(QWidget* parent);
};

class CQ126SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ126SwitchPanel(QWidget* parent);
};

class CQ127SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ127SwitchPanel(QWidget* parent);
};

class CQ128SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ128SwitchPanel(QWidget* parent);
};

class CQ129SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ129SwitchPanel(QWidget* parent);
};

class CQ130SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ130SwitchPanel(QWidget* parent);
};

class CQ131SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ131SwitchPanel(QWidget* parent);
};

class CQ132SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ132SwitchPanel(QWidget* parent);
};

class CQ133SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ133SwitchPanel(QWidget* parent);
};

class CQ134SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ134SwitchPanel(QWidget* parent);
};

class CQ135SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ135SwitchPanel(QWidget* parent);
};

class CQ136SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ136SwitchPanel(QWidget* parent);
};

class CQ137SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ137SwitchPanel(QWidget* parent);
};

class CQ138SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ138SwitchPanel(QWidget* parent);
};

class CQ139SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ139SwitchPanel(QWidget* parent);
};

class CQ140SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ140SwitchPanel(QWidget* parent);
};

class CQ141SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ141SwitchPanel(QWidget* parent);
};

class CQ142SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ142SwitchPanel(QWidget* parent);
};

class CQ143SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ143SwitchPanel(QWidget* parent);
};

class CQ144SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ144SwitchPanel(QWidget* parent);
};

class CQ201SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ201SwitchPanel(QWidget* parent);
};

class CQ202SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ202SwitchPanel(QWidget* parent);
};

class CQ203SwitchPanel : public CLayoutPanel {
    Q_OBJECT
public:
    explicit CQ203SwitchPanel(QWidget* parent);
};

} // namespace velmora
