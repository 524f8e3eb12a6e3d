#include "PlainToolTip.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

namespace velmora {

bool showPlainToolTip(QHelpEvent* help, QWidget* widget, const QString& text, const QRect& area)
{
    if (text.isEmpty()) {
        QToolTip::hideText();
        help->ignore();
        return true;
    }
    QToolTip::showText(help->globalPos(),
                       QStringLiteral("<p style='white-space:pre'>%1</p>")
                           .arg(text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br/>"))),
                       widget, area);
    return true;
}

} // namespace velmora
