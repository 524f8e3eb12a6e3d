#pragma once
// Scroll area of the toolkit: frameless, and its widget follows the area's width and height
// (widgetResizable) so that a form's layout fills it.

#include <QScrollArea>

namespace TarvexGUIToolkit {

class CScrollArea : public QScrollArea {
    Q_OBJECT
public:
    explicit CScrollArea(QWidget* parent = nullptr);
    ~CScrollArea() override;
};

} // namespace TarvexGUIToolkit
