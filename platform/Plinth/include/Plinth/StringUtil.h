#pragma once
#include <string>

namespace Plinth {
namespace StringUtil {

// printf-style formatting with no length limit: device answers of many kilobytes are logged whole.
std::string FormatString(const char* format, ...) __attribute__((format(printf, 1, 2)));

// `value` without the characters that a name may not hold: \ / : * ? " < > | and the
// typographic quotes “ ”.
std::string StringEraseInvalidChar(const std::string& value);

} // namespace StringUtil

// UTF-8 text in the locale's narrow encoding (unchanged when the locale is UTF-8).
std::string UTF8ToLocal(const std::string& utf8);

} // namespace Plinth
