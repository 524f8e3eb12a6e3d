#include "TarvexGUIToolkit/StringConvert.h"

#include <QTextCodec>

#include <cstring>

#include "Plinth/Log.h"
#include "Plinth/Singleton.h"
#include "Plinth/StringUtil.h"

namespace TarvexGUIToolkit {

namespace {

QString decode(const char* text, int length, const char* codecName)
{
    if (!text || length <= 0)
        return QString();
    if (codecName) {
        if (QTextCodec* codec = QTextCodec::codecForName(codecName))
            return codec->toUnicode(text, length);
        Plinth::CSingleton<Plinth::details::CLog>::Instance().Warn(
            "", Plinth::StringUtil::FormatString("ConvertToUnicode(): unknown codec %s, text read as UTF-8.", codecName),
            PLINTH_LOCATION);
    }
    return QString::fromUtf8(text, length);
}

} // namespace

QString ConvertToUnicode(const std::string& text, const char* codecName)
{
    return decode(text.data(), static_cast<int>(text.size()), codecName);
}

QString ConvertToUnicode(const char* text, const char* codecName)
{
    return decode(text, text ? static_cast<int>(std::strlen(text)) : 0, codecName);
}

} // namespace TarvexGUIToolkit
