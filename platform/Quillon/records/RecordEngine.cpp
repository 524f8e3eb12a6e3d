#include "RecordEngine.h"

#include <mutex>

#include <libxml/parser.h>

namespace Quillon {
namespace detail {

void initXml()
{
    static std::once_flag once;
    std::call_once(once, [] { xmlInitParser(); });
}

xmlDocPtr readXmlDocument(const char* text, std::size_t size)
{
    if (size > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        return nullptr;
    }
    initXml();
    // Compact text nodes and no blank ones between elements: fewer nodes to build and free
    // for the long, indented lists of a device.
    return xmlReadMemory(text, static_cast<int>(size), nullptr, nullptr,
                         XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NOCDATA |
                             XML_PARSE_COMPACT | XML_PARSE_NOBLANKS);
}

} // namespace detail
} // namespace Quillon
