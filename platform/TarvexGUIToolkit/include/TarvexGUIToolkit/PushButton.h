#pragma once
// Push button of the toolkit: a pointing-hand cursor and a comfortable minimum height.

#include <QPushButton>

namespace TarvexGUIToolkit {

class CPushButton : public QPushButton {
    Q_OBJECT
public:
    explicit CPushButton(QWidget* parent = nullptr);
    explicit CPushButton(const QString& text, QWidget* parent = nullptr);
    CPushButton(const QIcon& icon, const QString& text, QWidget* parent = nullptr);
    ~CPushButton() override;

    static constexpr int kMinimumHeight = 28;

private:
    void init();
};

} // namespace TarvexGUIToolkit
