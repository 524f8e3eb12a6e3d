#pragma once
// Tab widget of the toolkit: tabs that scroll when they don't fit, and never elide titles.

#include <QTabWidget>

namespace TarvexGUIToolkit {

class CTabWidget : public QTabWidget {
    Q_OBJECT
public:
    explicit CTabWidget(QWidget* parent = nullptr);
    ~CTabWidget() override;
};

} // namespace TarvexGUIToolkit
