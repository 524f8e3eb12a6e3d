#pragma once
// The fast reader of XML answers: one pass over the text that fills the record as it goes,
// with no document tree, no copies of names or of text that is only compared, and member
// look-up by a hash table per record.
//
// It reads the plain form that devices write (UTF-8, ASCII names without prefixes, text,
// the five predefined entities and character references, attributes that are skipped) and
// checks that form as strictly as libxml2 does. Anything else, and anything whose result
// depends on the order in which the tree reader looks for members (a member given twice),
// makes it give up without touching the record: the tree reader then reads the answer, so
// what is accepted and refused stays libxml2's decision in every case.
#include <cstddef>
#include <cstdint>
#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace Quillon {
namespace detail {

template <typename R>
struct Fields;
template <typename R>
struct Presence;
template <typename R>
struct SignedMembers;

// An unsigned member that devices may also send as a negative number: read as a signed
// 32-bit value and kept as the same 32 bits, so that code classifying it sees the negative
// value's unsigned form rather than the member's default (QUILLON_SIGNED_ON_WIRE).
struct SignedOnWire {
    uint32_t* value;
};
template <typename T>
bool scalarFromText(std::string_view raw, T& out);

// What reading one element came to: the text left the plain form (the tree reader takes
// over), or the element was read, with or without a value for its member.
enum class XmlStep { GiveUp, NotRead, Read };

// Whether the first and the last sizeof(Word) bytes of `a` and `b` agree (size at least
// sizeof(Word)): two overlapping loads from each end cover sizes up to twice the word.
template <typename Word>
__attribute__((always_inline)) inline bool sameEnds(const char* a, const char* b, std::size_t size)
{
    Word x0, y0, x1, y1;
    std::memcpy(&x0, a, sizeof(Word));
    std::memcpy(&y0, b, sizeof(Word));
    std::memcpy(&x1, a + size - sizeof(Word), sizeof(Word));
    std::memcpy(&y1, b + size - sizeof(Word), sizeof(Word));
    return ((x0 ^ y0) | (x1 ^ y1)) == 0;
}

// Byte equality of two short texts of `size` bytes, without a library call for the names of
// an answer (mostly 4 to 20 bytes).
__attribute__((always_inline)) inline bool sameBytes(const char* a, const char* b, std::size_t size)
{
    if (size >= 8 && size <= 16) {
        return sameEnds<uint64_t>(a, b, size);
    }
    if (size >= 4 && size < 8) {
        return sameEnds<uint32_t>(a, b, size);
    }
    if (size < 4) {
        for (std::size_t i = 0; i < size; ++i) {
            if (a[i] != b[i]) {
                return false;
            }
        }
        return true;
    }
    return std::memcmp(a, b, size) == 0;
}

inline bool sameText(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && sameBytes(a.data(), b.data(), a.size());
}

// The kind of a byte in character data.
enum XmlKind : uint8_t { Plain, Open, Amp, Bracket, High, Bad };

// Per byte: its kind (low bits) and whether it may start or continue a name of the plain form.
constexpr uint8_t kXmlNameStart = 0x10;
constexpr uint8_t kXmlNameChar = 0x20;
struct XmlClasses {
    uint8_t k[256];
    constexpr XmlClasses() : k()
    {
        for (int i = 0; i < 256; ++i) {
            k[i] = i < 0x20 ? Bad : (i >= 0x80 ? High : Plain);
            if ((i >= 'A' && i <= 'Z') || (i >= 'a' && i <= 'z') || i == '_') {
                k[i] |= kXmlNameStart | kXmlNameChar;
            }
            if ((i >= '0' && i <= '9') || i == '-' || i == '.') {
                k[i] |= kXmlNameChar;
            }
        }
        k[static_cast<unsigned char>('\t')] = Plain;
        k[static_cast<unsigned char>('\n')] = Plain;
        k[static_cast<unsigned char>('<')] = Open;
        k[static_cast<unsigned char>('&')] = Amp;
        k[static_cast<unsigned char>(']')] = Bracket;
    }
};
inline constexpr XmlClasses kXmlClasses{};

class XmlScanner {
public:
    // Documents above this size, and deeper or longer names than these, go to the tree
    // reader, which applies libxml2's own limits (10 MB of text, depth 256, long names).
    static constexpr std::size_t kMaxDocument = 8u << 20;
    static constexpr int kMaxDepth = 128;
    static constexpr std::size_t kMaxName = 1000;
    static constexpr int kMaxAttributes = 16;

    XmlScanner(const char* text, std::size_t size) : m_p(text), m_end(text + size) {}

    // Byte order mark, XML declaration and blanks up to the root element's start tag, which
    // is read. False: not the plain form.
    bool prolog(std::string_view& rootName, bool& empty)
    {
        if (m_end - m_p >= 3 && std::memcmp(m_p, "\xEF\xBB\xBF", 3) == 0) {
            m_p += 3;
        }
        if (m_end - m_p >= 5 && std::memcmp(m_p, "<?xml", 5) == 0 && !declaration()) {
            return false;
        }
        skipBlanks();
        if (m_p >= m_end || *m_p != '<') {
            return false;
        }
        return startTag(rootName, empty);
    }

    // Only blanks may follow the root element.
    bool epilog()
    {
        skipBlanks();
        return m_p == m_end;
    }

    // Walks the content of an open element, up to and including its end tag. Character data
    // goes to onText(first, last) in pieces (decoded references from a small buffer); each
    // child element's start tag is read and handed to onChild(name, empty), which consumes
    // the child. False: not the plain form.
    template <typename OnText, typename OnChild>
    bool content(std::string_view name, OnText&& onText, OnChild&& onChild)
    {
        for (;;) {
            const char* start = m_p;
            // Line feeds and indentation eight bytes at a time, then byte by byte.
            while (m_end - m_p >= 8) {
                uint64_t eight;
                std::memcpy(&eight, m_p, 8);
                const uint64_t other = notBlank(eight);
                if (other != 0) {
                    m_p += firstByte(other);
                    break;
                }
                m_p += 8;
            }
            while (m_p < m_end && kind(*m_p) == Plain) {
                ++m_p;
            }
            if (m_p > start) {
                onText(start, m_p);
            }
            if (m_p >= m_end) {
                return false;
            }
            switch (kind(*m_p)) {
            case Open:
                if (m_p + 1 < m_end && m_p[1] == '/') {
                    return endTag(name);
                } else {
                    std::string_view child;
                    bool empty = false;
                    if (!startTag(child, empty) || ++m_depth > kMaxDepth) {
                        return false;
                    }
                    if (!onChild(child, empty)) {
                        return false;
                    }
                    --m_depth;
                }
                break;
            case Amp: {
                char buffer[4];
                std::size_t size = 0;
                if (!reference(buffer, size)) {
                    return false;
                }
                onText(buffer, buffer + size);
                break;
            }
            case Bracket:
                // "]]>" is not allowed in character data.
                if (m_end - m_p >= 3 && m_p[1] == ']' && m_p[2] == '>') {
                    return false;
                }
                onText(m_p, m_p + 1);
                ++m_p;
                break;
            case High: {
                const char* first = m_p;
                if (!utf8Char()) {
                    return false;
                }
                onText(first, m_p);
                break;
            }
            default:
                return false; // control characters and CR (which libxml2 rewrites)
            }
        }
    }

    // The usual value element: plain text and then at once the end tag of `name`, read in one
    // go. False, with nothing read, for anything else (references, child elements, blanks in
    // the end tag, the end of the text); content() then reads the element.
    __attribute__((always_inline)) bool simpleText(std::string_view name, std::string_view& text)
    {
        const char* p = m_p;
        while (p < m_end && kind(*p) == Plain) {
            ++p;
        }
        const std::size_t size = name.size();
        if (static_cast<std::size_t>(m_end - p) < size + 3 || p[0] != '<' || p[1] != '/' || p[2 + size] != '>' ||
            !sameBytes(p + 2, name.data(), size)) {
            return false;
        }
        text = std::string_view(m_p, static_cast<std::size_t>(p - m_p));
        m_p = p + size + 3;
        return true;
    }

    // Reads past a child element that no member takes, checking it all the same.
    bool skip(std::string_view name, bool empty)
    {
        if (empty) {
            return true;
        }
        return content(name, [](const char*, const char*) {}, [this](std::string_view child, bool childEmpty) {
            return skip(child, childEmpty);
        });
    }

    // Where decoded text is joined when an element's text comes in several pieces.
    std::string& scratch() { return m_scratch; }

    // The name the next start tag most likely has (a name of the plain form, which the caller
    // vouches for). The next start tag is compared with it before being read byte by byte;
    // either way the tag is the same. Any start tag uses the hint up.
    void expect(std::string_view name) { m_hint = name; }

    // Whether the last start tag read was the hint's name.
    bool hinted() const { return m_hinted; }

    // Whether `text` is a whole name of the plain form.
    static bool plainName(std::string_view text)
    {
        if (text.empty() || text.size() > kMaxName || !isNameStart(text[0])) {
            return false;
        }
        for (char c : text) {
            if (!isNameChar(c)) {
                return false;
            }
        }
        return true;
    }

    // Where the scanner stands, and how much text is left after it.
    const char* position() const { return m_p; }
    std::size_t left() const { return static_cast<std::size_t>(m_end - m_p); }

private:

    static XmlKind kind(char c) { return static_cast<XmlKind>(kXmlClasses.k[static_cast<unsigned char>(c)] & 0x0F); }

    // Eight bytes at a time, in memory order: bit 7 set in each byte equal to `c`, all other
    // bits clear. Exact per byte: no carry crosses from one byte to the next.
    static constexpr uint64_t kLow7 = 0x7F7F7F7F7F7F7F7Full;
    static constexpr uint64_t kOnes = 0x0101010101010101ull;
    static uint64_t bytesEqual(uint64_t x, unsigned char c)
    {
        const uint64_t v = x ^ (kOnes * c);
        return ~(((v & kLow7) + kLow7) | v | kLow7);
    }

    // The bytes that are neither a space nor a line feed.
    static uint64_t notBlank(uint64_t x) { return ~(bytesEqual(x, ' ') | bytesEqual(x, '\n')) & ~kLow7; }

    // The index of the first byte marked in `mask` (not zero), bytes in memory order.
    static std::size_t firstByte(uint64_t mask)
    {
        if constexpr (__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__) {
            return static_cast<std::size_t>(__builtin_ctzll(mask)) / 8;
        } else {
            return static_cast<std::size_t>(__builtin_clzll(mask)) / 8;
        }
    }


    static bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
    static bool isNameStart(char c) { return (kXmlClasses.k[static_cast<unsigned char>(c)] & kXmlNameStart) != 0; }
    static bool isNameChar(char c) { return (kXmlClasses.k[static_cast<unsigned char>(c)] & kXmlNameChar) != 0; }

    void skipBlanks()
    {
        while (m_p < m_end && isBlank(*m_p)) {
            ++m_p;
        }
    }

    bool name(std::string_view& out)
    {
        const char* first = m_p;
        if (m_p >= m_end || !isNameStart(*m_p)) {
            return false; // also names with other letters, which libxml2 checks by table
        }
        ++m_p;
        while (m_p < m_end && isNameChar(*m_p)) {
            ++m_p;
        }
        if (m_p < m_end && (*m_p == ':' || static_cast<unsigned char>(*m_p) >= 0x80)) {
            return false; // prefixed or non-ASCII names
        }
        out = std::string_view(first, static_cast<std::size_t>(m_p - first));
        return out.size() <= kMaxName;
    }

    bool literal(std::string_view text)
    {
        if (static_cast<std::size_t>(m_end - m_p) < text.size() || std::memcmp(m_p, text.data(), text.size()) != 0) {
            return false;
        }
        m_p += text.size();
        return true;
    }

    // S? '=' S?
    bool equals()
    {
        skipBlanks();
        if (m_p >= m_end || *m_p != '=') {
            return false;
        }
        ++m_p;
        skipBlanks();
        return true;
    }

    // A quoted value of the declaration, one of `allowed`.
    bool declarationValue(std::initializer_list<std::string_view> allowed)
    {
        if (m_p >= m_end || (*m_p != '"' && *m_p != '\'')) {
            return false;
        }
        const char quote = *m_p++;
        const char* first = m_p;
        while (m_p < m_end && *m_p != quote) {
            ++m_p;
        }
        if (m_p >= m_end) {
            return false;
        }
        const std::string_view value(first, static_cast<std::size_t>(m_p - first));
        ++m_p;
        for (std::string_view candidate : allowed) {
            if (value == candidate) {
                return true;
            }
        }
        return false;
    }

    // <?xml version="1.0" [encoding="UTF-8"] [standalone="yes|no"] ?>, nothing else.
    bool declaration()
    {
        m_p += 5;
        auto blank = [this] {
            const char* before = m_p;
            skipBlanks();
            return m_p > before;
        };
        if (!blank() || !literal("version") || !equals() || !declarationValue({"1.0"})) {
            return false;
        }
        bool spaced = blank();
        if (spaced && literal("encoding")) {
            if (!equals() || !declarationValue({"UTF-8", "utf-8"})) {
                return false;
            }
            spaced = blank();
        }
        if (spaced && literal("standalone")) {
            if (!equals() || !declarationValue({"yes", "no"})) {
                return false;
            }
            blank();
        }
        return literal("?>");
    }

    // One well-formed UTF-8 sequence of an XML character (no surrogates, no U+FFFE, U+FFFF).
    bool utf8Char()
    {
        const auto* u = reinterpret_cast<const unsigned char*>(m_p);
        const std::size_t left = static_cast<std::size_t>(m_end - m_p);
        auto cont = [&](std::size_t i) { return i < left && (u[i] & 0xC0) == 0x80; };
        std::size_t length = 0;
        if (u[0] >= 0xC2 && u[0] <= 0xDF) {
            length = cont(1) ? 2 : 0;
        } else if (u[0] >= 0xE0 && u[0] <= 0xEF) {
            if (cont(1) && cont(2)) {
                const uint32_t c = ((u[0] & 0x0Fu) << 12) | ((u[1] & 0x3Fu) << 6) | (u[2] & 0x3Fu);
                length = (c >= 0x800 && !(c >= 0xD800 && c <= 0xDFFF) && c <= 0xFFFD) ? 3 : 0;
            }
        } else if (u[0] >= 0xF0 && u[0] <= 0xF4) {
            if (cont(1) && cont(2) && cont(3)) {
                const uint32_t c = ((u[0] & 0x07u) << 18) | ((u[1] & 0x3Fu) << 12) | ((u[2] & 0x3Fu) << 6) |
                                   (u[3] & 0x3Fu);
                length = (c >= 0x10000 && c <= 0x10FFFF) ? 4 : 0;
            }
        }
        m_p += length;
        return length != 0;
    }

    static bool isXmlChar(uint32_t c)
    {
        return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF) || (c >= 0xE000 && c <= 0xFFFD) ||
               (c >= 0x10000 && c <= 0x10FFFF);
    }

    // &lt; &gt; &amp; &apos; &quot; &#N; &#xH; decoded into `out` (UTF-8). Other entities
    // would need the document's type declaration.
    bool reference(char (&out)[4], std::size_t& size)
    {
        ++m_p; // '&'
        const char* semicolon = static_cast<const char*>(std::memchr(m_p, ';', std::min<std::size_t>(12, m_end - m_p)));
        if (semicolon == nullptr) {
            return false;
        }
        const std::string_view ref(m_p, static_cast<std::size_t>(semicolon - m_p));
        m_p = semicolon + 1;
        size = 1;
        if (ref == "lt") {
            out[0] = '<';
        } else if (ref == "gt") {
            out[0] = '>';
        } else if (ref == "amp") {
            out[0] = '&';
        } else if (ref == "apos") {
            out[0] = '\'';
        } else if (ref == "quot") {
            out[0] = '"';
        } else if (ref.size() >= 2 && ref[0] == '#') {
            const bool hex = ref[1] == 'x';
            const std::string_view digits = ref.substr(hex ? 2 : 1);
            if (digits.empty() || digits.size() > 7) {
                return false;
            }
            uint32_t c = 0;
            for (char d : digits) {
                uint32_t v;
                if (d >= '0' && d <= '9') {
                    v = static_cast<uint32_t>(d - '0');
                } else if (hex && d >= 'a' && d <= 'f') {
                    v = static_cast<uint32_t>(d - 'a' + 10);
                } else if (hex && d >= 'A' && d <= 'F') {
                    v = static_cast<uint32_t>(d - 'A' + 10);
                } else {
                    return false;
                }
                c = c * (hex ? 16 : 10) + v;
            }
            if (!isXmlChar(c)) {
                return false;
            }
            if (c < 0x80) {
                out[0] = static_cast<char>(c);
            } else if (c < 0x800) {
                out[0] = static_cast<char>(0xC0 | (c >> 6));
                out[1] = static_cast<char>(0x80 | (c & 0x3F));
                size = 2;
            } else if (c < 0x10000) {
                out[0] = static_cast<char>(0xE0 | (c >> 12));
                out[1] = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
                out[2] = static_cast<char>(0x80 | (c & 0x3F));
                size = 3;
            } else {
                out[0] = static_cast<char>(0xF0 | (c >> 18));
                out[1] = static_cast<char>(0x80 | ((c >> 12) & 0x3F));
                out[2] = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
                out[3] = static_cast<char>(0x80 | (c & 0x3F));
                size = 4;
            }
        } else {
            return false;
        }
        return true;
    }

    // A quoted attribute value; the value itself is not kept.
    bool attributeValue()
    {
        if (m_p >= m_end || (*m_p != '"' && *m_p != '\'')) {
            return false;
        }
        const char quote = *m_p++;
        while (m_p < m_end && *m_p != quote) {
            const auto c = static_cast<unsigned char>(*m_p);
            if (c == '<' || (c < 0x20 && c != '\t' && c != '\n' && c != '\r')) {
                return false;
            }
            if (c == '&') {
                char buffer[4];
                std::size_t size = 0;
                if (!reference(buffer, size)) {
                    return false;
                }
            } else if (c >= 0x80) {
                if (!utf8Char()) {
                    return false;
                }
            } else {
                ++m_p;
            }
        }
        if (m_p >= m_end) {
            return false;
        }
        ++m_p;
        return true;
    }

    // At '<': the name, the attributes (checked, skipped) and '>' or '/>'.
    __attribute__((always_inline)) bool startTag(std::string_view& tag, bool& empty)
    {
        ++m_p;
        m_hinted = false;
        if (!m_hint.empty()) {
            const std::size_t size = m_hint.size();
            const bool same = static_cast<std::size_t>(m_end - m_p) > size && m_p[size] == '>' &&
                              sameBytes(m_p, m_hint.data(), size);
            m_hint = std::string_view();
            if (same) { // '>' ends the name: the tag is the hint's name, without attributes
                tag = std::string_view(m_p, size);
                m_p += size + 1;
                empty = false;
                m_hinted = true;
                return true;
            }
        }
        return namedTag(tag, empty);
    }

    // startTag() past '<' when the hint did not match.
    __attribute__((noinline)) bool namedTag(std::string_view& tag, bool& empty)
    {
        if (!name(tag)) {
            return false;
        }
        if (m_p < m_end && *m_p == '>') { // the usual tag, without attributes
            ++m_p;
            empty = false;
            return true;
        }
        const char* attributes[kMaxAttributes]; // names, for the check against repeats
        std::size_t lengths[kMaxAttributes];
        int count = 0;
        for (;;) {
            const char* before = m_p;
            skipBlanks();
            if (m_p >= m_end) {
                return false;
            }
            if (*m_p == '>') {
                ++m_p;
                empty = false;
                return true;
            }
            if (*m_p == '/') {
                if (m_p + 1 >= m_end || m_p[1] != '>') {
                    return false;
                }
                m_p += 2;
                empty = true;
                return true;
            }
            std::string_view attribute;
            if (m_p == before || count == kMaxAttributes || !name(attribute) || !equals() || !attributeValue()) {
                return false;
            }
            for (int i = 0; i < count; ++i) {
                if (std::string_view(attributes[i], lengths[i]) == attribute) {
                    return false;
                }
            }
            attributes[count] = attribute.data();
            lengths[count++] = attribute.size();
        }
    }

    // At "</": the end tag of `open`.
    bool endTag(std::string_view open)
    {
        m_p += 2;
        if (static_cast<std::size_t>(m_end - m_p) < open.size() || !sameBytes(m_p, open.data(), open.size())) {
            return false;
        }
        m_p += open.size();
        skipBlanks();
        if (m_p >= m_end || *m_p != '>') {
            return false;
        }
        ++m_p;
        return true;
    }

    const char* m_p;
    const char* m_end;
    int m_depth = 1;
    std::string m_scratch;
    std::string_view m_hint;
    bool m_hinted = false;
};

// The text of a scalar element, in place when it comes in one piece, else joined.
class XmlText {
public:
    explicit XmlText(std::string& scratch) : m_scratch(scratch) {}
    void add(const char* first, const char* last)
    {
        if (!m_joined) {
            if (m_first == nullptr) {
                m_first = first;
                m_last = last;
                return;
            }
            if (first == m_last) {
                m_last = last;
                return;
            }
            m_scratch.assign(m_first, m_last);
            m_joined = true;
        }
        m_scratch.append(first, last);
    }
    std::string_view view() const
    {
        return m_joined ? std::string_view(m_scratch)
                        : std::string_view(m_first, static_cast<std::size_t>(m_last - m_first));
    }

private:
    std::string& m_scratch;
    const char* m_first = nullptr;
    const char* m_last = nullptr;
    bool m_joined = false;
};

template <typename T>
XmlStep streamXml(T& out, XmlScanner& scanner, std::string_view name, bool empty);

// The members of a record by wire name: their place in the record and their reader. Built
// once per record from its field list.
template <typename R>
class XmlMemberTable {
public:
    struct Member {
        std::string_view key;
        const char* keyText;
        std::size_t offset;
        XmlStep (*read)(void* member, XmlScanner&, std::string_view, bool);
        bool plainName; // a name the scanner reads (ASCII, no prefix), so a usable hint
    };

    static const XmlMemberTable& instance()
    {
        static const XmlMemberTable table;
        return table;
    }

    // The index of the member named `name`, or -1. `expected` is tried first: devices write
    // the members in order, so it is usually the one after the last member read.
    int find(std::string_view name, int expected) const
    {
        if (expected >= 0 && static_cast<std::size_t>(expected) < m_members.size() &&
            sameText(m_members[static_cast<std::size_t>(expected)].key, name)) {
            return expected;
        }
        for (std::size_t slot = hash(name) & kMask;; slot = (slot + 1) & kMask) {
            const int index = m_slots[slot];
            if (index < 0 || sameText(m_members[static_cast<std::size_t>(index)].key, name)) {
                return index;
            }
        }
    }

    const Member& member(int index) const { return m_members[static_cast<std::size_t>(index)]; }

    // Tells the scanner that the next child is most likely the member at `index` (or nothing,
    // when that member's name can't be a hint): after the next start tag, hinted() then says
    // that the tag is that member.
    void expect(XmlScanner& scanner, int index) const
    {
        if (index >= 0 && static_cast<std::size_t>(index) < m_members.size() &&
            m_members[static_cast<std::size_t>(index)].plainName) {
            scanner.expect(m_members[static_cast<std::size_t>(index)].key);
        } else {
            scanner.expect(std::string_view());
        }
    }

private:
    static constexpr std::size_t kSlots = 64; // a power of two, above twice the largest record
    static constexpr std::size_t kMask = kSlots - 1;

    // Length and three letters: enough to tell the members of one record apart, mostly.
    static std::size_t hash(std::string_view name)
    {
        if (name.empty()) {
            return 0;
        }
        const auto at = [&](std::size_t i) { return static_cast<std::size_t>(static_cast<unsigned char>(name[i])); };
        return name.size() * 7 + at(0) * 3 + at(name.size() / 2) * 5 + at(name.size() - 1);
    }

    XmlMemberTable()
    {
        for (int& slot : m_slots) {
            slot = -1;
        }
        R probe;
        const char* base = reinterpret_cast<const char*>(&probe);
        Fields<R>::visit(probe, [&](const char* key, auto& member) {
            using M = std::decay_t<decltype(member)>;
            const std::size_t offset = static_cast<std::size_t>(reinterpret_cast<const char*>(&member) - base);
            auto read = [](void* m, XmlScanner& s, std::string_view n, bool e) {
                return streamXml(*static_cast<M*>(m), s, n, e);
            };
            XmlStep (*reader)(void*, XmlScanner&, std::string_view, bool) = read;
            if constexpr (std::is_same_v<M, uint32_t>) {
                if (SignedMembers<R>::has(key)) {
                    reader = [](void* m, XmlScanner& s, std::string_view n, bool e) {
                        SignedOnWire wide{static_cast<uint32_t*>(m)};
                        return streamXml(wide, s, n, e);
                    };
                }
            }
            m_members.push_back({std::string_view(key), key, offset, reader, XmlScanner::plainName(key)});
        });
        static_assert(kSlots >= 64, "table too small");
        for (std::size_t i = 0; i < m_members.size(); ++i) {
            std::size_t slot = hash(m_members[i].key) & kMask;
            while (m_slots[slot] >= 0) {
                slot = (slot + 1) & kMask;
            }
            m_slots[slot] = static_cast<int>(i);
        }
    }

    std::vector<Member> m_members;
    int m_slots[kSlots];
};

template <typename R>
XmlStep streamRecordXml(R& record, XmlScanner& scanner, std::string_view name, bool empty)
{
    typename Presence<R>::State presence;
    if (!empty) {
        const XmlMemberTable<R>& table = XmlMemberTable<R>::instance();
        uint64_t seen = 0;
        int expected = 0;
        table.expect(scanner, expected);
        const bool plain = scanner.content(
            name, [](const char*, const char*) {},
            [&](std::string_view child, bool childEmpty) __attribute__((always_inline)) {
                const int index = scanner.hinted() ? expected : table.find(child, expected);
                if (index < 0) {
                    const bool skipped = scanner.skip(child, childEmpty);
                    table.expect(scanner, expected);
                    return skipped;
                }
                const uint64_t bit = uint64_t{1} << index;
                if ((seen & bit) != 0) {
                    return false; // a member given twice: the tree reader's order decides
                }
                seen |= bit;
                expected = index + 1;
                const auto& member = table.member(index);
                const XmlStep step =
                    member.read(reinterpret_cast<char*>(&record) + member.offset, scanner, child, childEmpty);
                if (step == XmlStep::Read) {
                    presence.note(member.keyText);
                }
                table.expect(scanner, expected);
                return step != XmlStep::GiveUp;
            });
        if (!plain) {
            return XmlStep::GiveUp;
        }
    }
    presence.settle(record);
    return XmlStep::Read;
}

template <typename T>
struct IsStdVector : std::false_type {};
template <typename T, typename A>
struct IsStdVector<std::vector<T, A>> : std::true_type {};
template <typename T>
struct IsStdArray : std::false_type {};
template <typename T, std::size_t N>
struct IsStdArray<std::array<T, N>> : std::true_type {};
template <typename T, typename = void>
struct HasFields : std::false_type {};
template <typename T>
struct HasFields<T, std::void_t<decltype(Fields<T>::name())>> : std::true_type {};

// After the first item of a list, room for as many more as the rest of the text could hold
// if they were the size of the first: a page of like items then fills one block instead of
// being moved on every doubling. The guess is bounded, so that a small first item in a
// large answer cannot set aside much; past the guess the list grows as usual.
template <typename Item>
void reserveLikeFirst(std::vector<Item>& items, std::string_view name, std::ptrdiff_t contentBytes,
                      std::size_t left)
{
    constexpr std::size_t kMaxItems = 4096;
    constexpr std::size_t kMaxBytes = std::size_t{2} << 20;
    // The item's start tag and the blank before the next one were not counted: the guess
    // comes out a little high, which is the side to err on.
    const std::size_t itemBytes = static_cast<std::size_t>(contentBytes) + name.size() + 2;
    std::size_t guess = 1 + left / itemBytes;
    guess = std::min({guess, kMaxItems, std::max<std::size_t>(1, kMaxBytes / sizeof(Item))});
    if (guess > items.capacity()) {
        items.reserve(guess);
    }
}

template <typename T>
XmlStep streamXml(T& out, XmlScanner& scanner, std::string_view name, bool empty)
{
    if constexpr (HasFields<T>::value) {
        return streamRecordXml(out, scanner, name, empty);
    } else if constexpr (IsStdVector<T>::value) {
        using Item = typename T::value_type;
        T items;
        if (!empty) {
            const bool plain = scanner.content(name, [](const char*, const char*) {},
                                               [&](std::string_view child, bool childEmpty) {
                                                   if constexpr (std::is_same_v<Item, bool>) {
                                                       bool item = false;
                                                       const XmlStep step = streamXml(item, scanner, child, childEmpty);
                                                       if (step == XmlStep::Read) {
                                                           items.push_back(item);
                                                       }
                                                       return step != XmlStep::GiveUp;
                                                   } else {
                                                       // Read in place; an item without a value is taken back.
                                                       const char* itemStart = scanner.position();
                                                       items.emplace_back();
                                                       const XmlStep step =
                                                           streamXml(items.back(), scanner, child, childEmpty);
                                                       if (step != XmlStep::Read) {
                                                           items.pop_back();
                                                       } else if (items.size() == 1) {
                                                           reserveLikeFirst(items, child,
                                                                            scanner.position() - itemStart,
                                                                            scanner.left());
                                                       }
                                                       scanner.expect(child); // items share a name
                                                       return step != XmlStep::GiveUp;
                                                   }
                                               });
            if (!plain) {
                return XmlStep::GiveUp;
            }
        }
        out = std::move(items);
        return XmlStep::Read;
    } else if constexpr (IsStdArray<T>::value) {
        std::size_t index = 0;
        if (!empty) {
            const bool plain = scanner.content(name, [](const char*, const char*) {},
                                               [&](std::string_view child, bool childEmpty) {
                                                   if (index >= out.size()) {
                                                       return scanner.skip(child, childEmpty);
                                                   }
                                                   typename T::value_type value{};
                                                   const XmlStep step = streamXml(value, scanner, child, childEmpty);
                                                   if (step == XmlStep::Read) {
                                                       out[index++] = value;
                                                   }
                                                   scanner.expect(child); // items share a name
                                                   return step != XmlStep::GiveUp;
                                               });
            if (!plain) {
                return XmlStep::GiveUp;
            }
        }
        return XmlStep::Read;
    } else {
        // A value: the element's text, read only when it holds no element.
        std::string_view simple;
        if (!empty && scanner.simpleText(name, simple)) {
            return scalarFromText(simple, out) ? XmlStep::Read : XmlStep::NotRead;
        }
        XmlText text(scanner.scratch());
        bool hasElement = false;
        if (!empty) {
            const bool plain = scanner.content(
                name, [&](const char* first, const char* last) { text.add(first, last); },
                [&](std::string_view child, bool childEmpty) {
                    hasElement = true;
                    return scanner.skip(child, childEmpty);
                });
            if (!plain) {
                return XmlStep::GiveUp;
            }
        }
        if (hasElement) {
            return XmlStep::NotRead;
        }
        return scalarFromText(text.view(), out) ? XmlStep::Read : XmlStep::NotRead;
    }
}

// Reads a whole XML answer into `record` in one pass. False, with `record` untouched, when
// the answer isn't in the plain form; the tree reader then decides.
template <typename R>
bool streamAnswerXml(R& record, const std::string& text)
{
    if (text.size() > XmlScanner::kMaxDocument) {
        return false;
    }
    XmlScanner scanner(text.data(), text.size());
    std::string_view root;
    bool empty = false;
    if (!scanner.prolog(root, empty)) {
        return false;
    }
    R read = record;
    if (streamRecordXml(read, scanner, root, empty) == XmlStep::GiveUp || !scanner.epilog()) {
        return false;
    }
    record = std::move(read);
    return true;
}

} // namespace detail
} // namespace Quillon
