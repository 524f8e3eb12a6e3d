#include "TarvexGUIToolkit/Translations.h"

#include <QFile>

#include "Resources.h"

namespace TarvexGUIToolkit {

QString TranslationFile(const QString& localeName)
{
    details::InitToolkitResources();
    const QString path = QStringLiteral(":/TarvexGUIToolkit/Translations/tarvexguitoolkit_%1.qm").arg(localeName);
    return QFile::exists(path) ? path : QString();
}

} // namespace TarvexGUIToolkit
