#pragma once
// Narrow device and library texts to QString.

#include <QString>
#include <string>

namespace TarvexGUIToolkit {

// `text` decoded from the encoding named `codecName`; null means UTF-8, the encoding of
// every text that comes from a device. A null `text` gives an empty string. An unknown
// codec name falls back to UTF-8, with a warning in the log.
QString ConvertToUnicode(const std::string& text, const char* codecName = nullptr);
QString ConvertToUnicode(const char* text, const char* codecName = nullptr);

} // namespace TarvexGUIToolkit
