// Formatting without a length limit, name cleaning and conversion to the locale's encoding.
#include "Plinth/StringUtil.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <iconv.h>
#include <langinfo.h>
#include <vector>

namespace Plinth {
namespace StringUtil {

std::string FormatString(const char* format, ...)
{
    if (format == nullptr)
        return std::string();

    va_list args;
    va_start(args, format);
    va_list measure;
    va_copy(measure, args);
    // First pass measures, second pass writes: answers of many kilobytes stay whole.
    const int length = std::vsnprintf(nullptr, 0, format, measure);
    va_end(measure);
    if (length <= 0) {
        va_end(args);
        return std::string();
    }
    std::string result(static_cast<size_t>(length) + 1, '\0');
    std::vsnprintf(&result[0], result.size(), format, args);
    va_end(args);
    result.resize(static_cast<size_t>(length));
    return result;
}

std::string StringEraseInvalidChar(const std::string& value)
{
    static const char kInvalidAscii[] = "\\/:*?\"<>|";
    // The typographic quotes U+201C and U+201D in UTF-8.
    static const char kLeftQuote[] = "\xE2\x80\x9C";
    static const char kRightQuote[] = "\xE2\x80\x9D";

    std::string result;
    result.reserve(value.size());
    for (size_t i = 0; i < value.size();) {
        if (value.compare(i, 3, kLeftQuote) == 0 || value.compare(i, 3, kRightQuote) == 0) {
            i += 3;
            continue;
        }
        const char c = value[i];
        if (c != '\0' && std::strchr(kInvalidAscii, c) != nullptr) {
            ++i;
            continue;
        }
        result.push_back(c);
        ++i;
    }
    return result;
}

} // namespace StringUtil

namespace {

bool isUtf8Codeset(const char* codeset)
{
    if (codeset == nullptr)
        return false;
    std::string name;
    for (const char* p = codeset; *p != '\0'; ++p) {
        if (*p == '-' || *p == '_')
            continue;
        name.push_back(static_cast<char>(*p >= 'a' && *p <= 'z' ? *p - 'a' + 'A' : *p));
    }
    return name == "UTF8";
}

} // namespace

std::string UTF8ToLocal(const std::string& utf8)
{
    const char* codeset = nl_langinfo(CODESET);
    if (utf8.empty() || isUtf8Codeset(codeset))
        return utf8;

    iconv_t converter = iconv_open(codeset, "UTF-8");
    if (converter == reinterpret_cast<iconv_t>(-1))
        return utf8;

    std::vector<char> input(utf8.begin(), utf8.end());
    // A narrow encoding never needs more bytes than UTF-8 for the same text, but stateful
    // encodings may add shift sequences; leave generous room and grow if asked to.
    std::vector<char> output(utf8.size() * 2 + 16);
    char* in = input.data();
    size_t inLeft = input.size();
    char* out = output.data();
    size_t outLeft = output.size();
    bool ok = true;
    while (inLeft > 0) {
        if (iconv(converter, &in, &inLeft, &out, &outLeft) != static_cast<size_t>(-1))
            continue;
        if (errno == E2BIG) {
            const size_t used = static_cast<size_t>(out - output.data());
            output.resize(output.size() * 2);
            out = output.data() + used;
            outLeft = output.size() - used;
            continue;
        }
        ok = false;
        break;
    }
    if (ok) {
        // Return to the initial shift state.
        if (iconv(converter, nullptr, nullptr, &out, &outLeft) == static_cast<size_t>(-1))
            ok = false;
    }
    iconv_close(converter);
    if (!ok)
        return utf8;
    return std::string(output.data(), static_cast<size_t>(out - output.data()));
}

} // namespace Plinth
