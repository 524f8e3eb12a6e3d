#pragma once
// A flat (auto-raised) button with an icon and its text beside it, as used for "back" and
// similar actions inside a page. Icon and text are drawn close together and centred, so
// that a short text fits a small fixed-size button; only a text that still doesn't fit
// is elided.

#include <QToolButton>

namespace TarvexGUIToolkit {

class CToolPushButton : public QToolButton {
    Q_OBJECT
public:
    explicit CToolPushButton(QWidget* parent = nullptr);
    CToolPushButton(const QIcon& icon, const QString& text, QWidget* parent = nullptr);
    ~CToolPushButton() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // Pixels between the edge and the content, and between icon and text.
    static constexpr int kPadding = 2;
    static constexpr int kIconTextSpacing = 3;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // Width of icon, spacing and the full text.
    int contentWidth() const;
};

} // namespace TarvexGUIToolkit
