// Arbitrary bytes into every answer record: each record's Parse (XML or JSON, as the bytes
// begin), and each record's construction from the root element when the bytes are XML.
// Nothing may crash, leak or read out of bounds, whatever the input.
#include <cstddef>
#include <cstdint>
#include <string>

#include <libxml/parser.h>

#include "SwitchFields.h"
#include "WirelessFields.h"

namespace {

// The same bytes as XML and as JSON, whichever way they begin.
void parseAll(const std::string& text)
{
#define QUILLON_FUZZ_PARSE(Type) \
    {                            \
        Quillon::Type record;    \
        record.Parse(text);      \
    }
    QUILLON_SWITCH_RECORDS(QUILLON_FUZZ_PARSE)
    QUILLON_WIRELESS_RECORDS(QUILLON_FUZZ_PARSE)
#undef QUILLON_FUZZ_PARSE
}

void buildAllFromNode(xmlNode* node)
{
#define QUILLON_FUZZ_NODE(Type) \
    {                           \
        Quillon::Type record(node); \
        (void)record;           \
    }
    QUILLON_SWITCH_RECORDS(QUILLON_FUZZ_NODE)
    QUILLON_WIRELESS_RECORDS(QUILLON_FUZZ_NODE)
#undef QUILLON_FUZZ_NODE
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    parseAll(text);
    // Steer the same bytes into the other reader too.
    parseAll("<" + text);
    parseAll("{" + text);

    if (size < (1u << 20)) {
        Quillon::detail::initXml();
        xmlDocPtr doc = xmlReadMemory(text.data(), static_cast<int>(size), nullptr, nullptr,
                                      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
        if (doc != nullptr) {
            buildAllFromNode(xmlDocGetRootElement(doc));
            xmlFreeDoc(doc);
        }
    }
    return 0;
}
