#pragma once
// Reads the small request bodies the devices accept (search conditions, the region): the
// scalar fields of the record, from XML or JSON, wrapped in a root or bare.
#include <map>
#include <string>

namespace emulator {

enum class BodyFormat { Xml, Json };

// False when the body is neither well-formed XML nor valid JSON; `format` tells which
// reader took it (or, on failure, which one it looked like).
bool readBodyFields(const std::string& body, std::map<std::string, std::string>& fields, BodyFormat& format);

} // namespace emulator
