// The one-pass XML reader against libxml2's tree reader: for any bytes, every answer record
// filled by Parse must come out exactly as the tree reader fills it, whether the one-pass
// reader reads the text itself or leaves it to the tree. Any difference aborts.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "SwitchFields.h"
#include "WirelessFields.h"

namespace {

template <typename R>
void compare(const std::string& text, const char* type)
{
    R streamed;
    streamed.Parse(text);
    R tree;
    Quillon::detail::parseAnswerTree(tree, text);
    const std::string a = Quillon::detail::toJson(streamed);
    const std::string b = Quillon::detail::toJson(tree);
    if (a != b) {
        std::fprintf(stderr, "%s differs:\n  one pass: %s\n  tree:     %s\n", type, a.c_str(), b.c_str());
        std::abort();
    }
}

void compareAll(const std::string& text)
{
#define QUILLON_FUZZ_COMPARE(Type) compare<Quillon::Type>(text, #Type);
    QUILLON_SWITCH_RECORDS(QUILLON_FUZZ_COMPARE)
    QUILLON_WIRELESS_RECORDS(QUILLON_FUZZ_COMPARE)
#undef QUILLON_FUZZ_COMPARE
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    if (text.find_first_not_of(" \t\r\n") != std::string::npos &&
        text[text.find_first_not_of(" \t\r\n")] == '<') {
        compareAll(text);
    }
    compareAll("<" + text);
    return 0;
}
