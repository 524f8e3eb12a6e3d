#pragma once
#include <string>

namespace Plinth {
namespace GuidUtil {

// A fresh random (version 4) GUID in the form "8-4-4-4-12" hex digits, upper case.
std::string CreateGuid();

} // namespace GuidUtil
} // namespace Plinth
