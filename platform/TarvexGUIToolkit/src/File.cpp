#include "TarvexGUIToolkit/File.h"

#include <QFile>

#include "Plinth/Log.h"
#include "Plinth/Singleton.h"
#include "Plinth/StringUtil.h"

namespace TarvexGUIToolkit {

QString CFile::ReadAll(const QString& path, bool* ok)
{
    QFile file(path);
    const bool opened = file.open(QIODevice::ReadOnly);
    if (ok)
        *ok = opened;
    if (!opened) {
        Plinth::CSingleton<Plinth::details::CLog>::Instance().Warn(
            "",
            Plinth::StringUtil::FormatString("CFile::ReadAll(): cannot read %s: %s.", path.toUtf8().constData(),
                                             file.errorString().toUtf8().constData()),
            PLINTH_LOCATION);
        return QString();
    }
    return QString::fromUtf8(file.readAll());
}

} // namespace TarvexGUIToolkit
