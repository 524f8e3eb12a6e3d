#include "TarvexGUIToolkit/PushButton.h"

namespace TarvexGUIToolkit {

CPushButton::CPushButton(QWidget* parent)
    : QPushButton(parent)
{
    init();
}

CPushButton::CPushButton(const QString& text, QWidget* parent)
    : QPushButton(text, parent)
{
    init();
}

CPushButton::CPushButton(const QIcon& icon, const QString& text, QWidget* parent)
    : QPushButton(icon, text, parent)
{
    init();
}

CPushButton::~CPushButton() = default;

void CPushButton::init()
{
    setCursor(Qt::PointingHandCursor);
    setMinimumHeight(kMinimumHeight);
}

} // namespace TarvexGUIToolkit
