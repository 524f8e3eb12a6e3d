#pragma once
// The tooltips of the drawn pictures (panel ports, crate slots): lines of plain text shown
// while the mouse rests on one part of a widget.
#include <QRect>
#include <QString>

class QHelpEvent;
class QWidget;

namespace velmora {

// Answers the tooltip request `help` on `widget`: shows `text`, lines parted by '\n', as
// plain text (a device name is never read as markup) for as long as the mouse stays in
// `area`; an empty text hides the tooltip and leaves the request unanswered. Always true,
// the value a widget's event() returns for a handled request.
bool showPlainToolTip(QHelpEvent* help, QWidget* widget, const QString& text, const QRect& area);

} // namespace velmora
