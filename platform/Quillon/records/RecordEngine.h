#pragma once
// The one reader and writer of every Quillon record.
//
// A record lists its members once, in order, with QUILLON_FIELDS(Type, member, ...); the
// wire key of a member is its name. From that list this engine reads the record from an
// XML element (libxml2) or a JSON object (cJSON) and writes it back in either form. The
// kind of a member (integer, float, bool, text, list of records, list of plain values,
// fixed array) comes from its C++ type.
//
// Reading never fails: a missing key, a value of the wrong type or out of range, or a
// document that doesn't parse leaves the member (or the whole record) as it was.
#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>
#include <system_error>
#include <type_traits>
#include <vector>

#include <cjson/cJSON.h>
#include <libxml/tree.h>

#include "RecordMacros.h"
#include "XmlStream.h"

namespace Quillon {
namespace detail {

// Specialised once per record by QUILLON_FIELDS: the record's wire name and its members.
template <typename R>
struct Fields;

// A member flag that follows whether another member was read from an answer
// (QUILLON_PRESENCE). The readers note each member read into a State and settle it once
// the record is read.
template <typename R>
struct Presence {
    struct State {
        void note(const char*) {}
        void settle(R&) {}
    };
};

template <typename T, typename = void>
struct IsRecord : std::false_type {};
template <typename T>
struct IsRecord<T, std::void_t<decltype(Fields<T>::name())>> : std::true_type {};

template <typename T>
struct IsVector : std::false_type {};
template <typename T, typename A>
struct IsVector<std::vector<T, A>> : std::true_type {};

template <typename T>
struct IsArray : std::false_type {};
template <typename T, std::size_t N>
struct IsArray<std::array<T, N>> : std::true_type {};

// Members that are signed on the wire (QUILLON_SIGNED_ON_WIRE); see SignedOnWire.
template <typename R>
struct SignedMembers {
    static bool has(const char*) { return false; }
};

// Calls read(member), or read(SignedOnWire) for a member that is signed on the wire.
template <typename R, typename M, typename F>
bool readAsDeclared(const char* key, M& member, F&& read)
{
    if constexpr (std::is_same_v<M, uint32_t>) {
        if (SignedMembers<R>::has(key)) {
            SignedOnWire wide{&member};
            return read(wide);
        }
    }
    return read(member);
}

// The wire name of a record: its library name, a leading C dropped before a capital.
inline const char* wireName(const char* typeName)
{
    return (typeName[0] == 'C' && typeName[1] >= 'A' && typeName[1] <= 'Z') ? typeName + 1 : typeName;
}

// Makes libxml2 ready for use from several threads (its initialisation itself isn't).
void initXml();

// The parsed document of an XML answer, or null when the text is not well-formed XML. No
// network access, no entity substitution, no messages; blank text between elements is
// dropped. The caller frees the document with xmlFreeDoc.
xmlDocPtr readXmlDocument(const char* text, std::size_t size);

// ---------------------------------------------------------------------------------------------
// Scalars from text (XML content). Surrounding blanks are ignored; the rest must be the value.

inline bool isBlankByte(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

inline std::string_view trimmed(std::string_view text)
{
    std::size_t first = 0;
    std::size_t last = text.size();
    while (first < last && isBlankByte(text[first])) {
        ++first;
    }
    while (last > first && isBlankByte(text[last - 1])) {
        --last;
    }
    return text.substr(first, last - first);
}

template <typename T>
bool scalarFromText(std::string_view raw, T& out)
{
    if constexpr (std::is_same_v<T, std::string>) {
        out.assign(raw.data(), raw.size());
        return true;
    } else if constexpr (std::is_same_v<T, SignedOnWire>) {
        int64_t value = 0;
        if (!scalarFromText(raw, value) || value < std::numeric_limits<int32_t>::min() ||
            value > std::numeric_limits<uint32_t>::max()) {
            return false;
        }
        *out.value = static_cast<uint32_t>(value);
        return true;
    } else if constexpr (std::is_same_v<T, bool>) {
        const std::string_view text = trimmed(raw);
        if (text == "true") {
            out = true;
            return true;
        }
        if (text == "false") {
            out = false;
            return true;
        }
        return false;
    } else {
        static_assert(std::is_arithmetic_v<T>, "unsupported member kind");
        const std::string_view text = trimmed(raw);
        if (text.empty()) {
            return false;
        }
        const char* first = text.data();
        const char* last = first + text.size();
        if (*first == '+') {
            ++first;
        }
        T value{};
        const std::from_chars_result result = std::from_chars(first, last, value);
        if (result.ec != std::errc() || result.ptr != last) {
            return false;
        }
        out = value;
        return true;
    }
}

// Scalars from JSON values: the JSON kind must match the member's kind.
template <typename T>
bool scalarFromJson(const cJSON* item, T& out)
{
    if constexpr (std::is_same_v<T, std::string>) {
        if (!cJSON_IsString(item) || item->valuestring == nullptr) {
            return false;
        }
        out = item->valuestring;
        return true;
    } else if constexpr (std::is_same_v<T, SignedOnWire>) {
        int64_t value = 0;
        if (!scalarFromJson(item, value) || value < std::numeric_limits<int32_t>::min() ||
            value > std::numeric_limits<uint32_t>::max()) {
            return false;
        }
        *out.value = static_cast<uint32_t>(value);
        return true;
    } else if constexpr (std::is_same_v<T, bool>) {
        if (!cJSON_IsBool(item)) {
            return false;
        }
        out = cJSON_IsTrue(item) != 0;
        return true;
    } else if constexpr (std::is_floating_point_v<T>) {
        if (!cJSON_IsNumber(item)) {
            return false;
        }
        out = static_cast<T>(item->valuedouble);
        return true;
    } else {
        static_assert(std::is_integral_v<T>, "unsupported member kind");
        if (!cJSON_IsNumber(item)) {
            return false;
        }
        double value = item->valuedouble;
        // Whole numbers in the member's range only; the comparisons are false for NaN.
        if (!(value >= static_cast<double>(std::numeric_limits<T>::min()) &&
              value <= static_cast<double>(std::numeric_limits<T>::max())) ||
            static_cast<double>(static_cast<int64_t>(value)) != value) {
            return false;
        }
        out = static_cast<T>(static_cast<int64_t>(value));
        return true;
    }
}

// ---------------------------------------------------------------------------------------------
// Reading XML

inline bool isElement(const xmlNode* node) { return node != nullptr && node->type == XML_ELEMENT_NODE; }

// The text of an element that holds only text (false when it holds elements). A single text
// node is looked at in place; several are joined in `buffer`.
inline bool elementText(const xmlNode* element, std::string& buffer, std::string_view& text)
{
    text = std::string_view();
    int pieces = 0;
    for (const xmlNode* child = element->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) {
            return false;
        }
        if ((child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE) && child->content != nullptr) {
            const std::string_view piece(reinterpret_cast<const char*>(child->content));
            if (pieces++ == 0) {
                text = piece;
            } else {
                if (pieces == 2) {
                    buffer.assign(text.data(), text.size());
                }
                buffer.append(piece.data(), piece.size());
                text = buffer;
            }
        }
    }
    return true;
}

// Finds the child element `key`, looking first after `hint` (members usually come in order).
inline xmlNode* findChild(xmlNode* parent, const char* key, xmlNode*& hint)
{
    const xmlChar* name = reinterpret_cast<const xmlChar*>(key);
    xmlNode* start = hint != nullptr ? hint->next : parent->children;
    for (xmlNode* child = start; child != nullptr; child = child->next) {
        if (isElement(child) && xmlStrcmp(child->name, name) == 0) {
            hint = child;
            return child;
        }
    }
    for (xmlNode* child = parent->children; child != start; child = child->next) {
        if (isElement(child) && xmlStrcmp(child->name, name) == 0) {
            hint = child;
            return child;
        }
    }
    return nullptr;
}

template <typename R>
void readRecordXml(R& record, xmlNode* element);

template <typename T>
bool readXml(T& out, xmlNode* element)
{
    if constexpr (IsRecord<T>::value) {
        readRecordXml(out, element);
        return true;
    } else if constexpr (IsVector<T>::value) {
        using Item = typename T::value_type;
        T items;
        for (xmlNode* child = element->children; child != nullptr; child = child->next) {
            if (!isElement(child)) {
                continue;
            }
            Item item{};
            if (readXml(item, child)) {
                items.push_back(std::move(item));
            }
        }
        out = std::move(items);
        return true;
    } else if constexpr (IsArray<T>::value) {
        std::size_t index = 0;
        for (xmlNode* child = element->children; child != nullptr && index < out.size(); child = child->next) {
            if (isElement(child)) {
                typename T::value_type value{};
                if (readXml(value, child)) {
                    out[index++] = value;
                }
            }
        }
        return true;
    } else {
        std::string buffer;
        std::string_view text;
        return elementText(element, buffer, text) && scalarFromText(text, out);
    }
}

template <typename R>
void readRecordXml(R& record, xmlNode* element)
{
    if (!isElement(element)) {
        return;
    }
    xmlNode* hint = nullptr;
    typename Presence<R>::State presence;
    Fields<R>::visit(record, [&](const char* key, auto& member) {
        xmlNode* child = findChild(element, key, hint);
        if (child != nullptr && readAsDeclared<R>(key, member, [&](auto& m) { return readXml(m, child); })) {
            presence.note(key);
        }
    });
    presence.settle(record);
}

// ---------------------------------------------------------------------------------------------
// Reading JSON

inline cJSON* findMember(cJSON* object, const char* key, cJSON*& hint)
{
    cJSON* start = hint != nullptr ? hint->next : object->child;
    for (cJSON* child = start; child != nullptr; child = child->next) {
        if (child->string != nullptr && std::strcmp(child->string, key) == 0) {
            hint = child;
            return child;
        }
    }
    for (cJSON* child = object->child; child != start; child = child->next) {
        if (child->string != nullptr && std::strcmp(child->string, key) == 0) {
            hint = child;
            return child;
        }
    }
    return nullptr;
}

template <typename R>
void readRecordJson(R& record, cJSON* object);

template <typename T>
bool readJson(T& out, cJSON* value)
{
    if constexpr (IsRecord<T>::value) {
        if (!cJSON_IsObject(value)) {
            return false;
        }
        readRecordJson(out, value);
        return true;
    } else if constexpr (IsVector<T>::value) {
        if (!cJSON_IsArray(value)) {
            return false;
        }
        using Item = typename T::value_type;
        T items;
        for (cJSON* element = value->child; element != nullptr; element = element->next) {
            Item item{};
            if (readJson(item, element)) {
                items.push_back(std::move(item));
            }
        }
        out = std::move(items);
        return true;
    } else if constexpr (IsArray<T>::value) {
        if (!cJSON_IsArray(value)) {
            return false;
        }
        std::size_t index = 0;
        for (cJSON* element = value->child; element != nullptr && index < out.size(); element = element->next) {
            typename T::value_type item{};
            if (readJson(item, element)) {
                out[index++] = item;
            }
        }
        return true;
    } else {
        return scalarFromJson(value, out);
    }
}

template <typename R>
void readRecordJson(R& record, cJSON* object)
{
    if (!cJSON_IsObject(object)) {
        return;
    }
    cJSON* hint = nullptr;
    typename Presence<R>::State presence;
    Fields<R>::visit(record, [&](const char* key, auto& member) {
        cJSON* value = findMember(object, key, hint);
        if (value != nullptr && readAsDeclared<R>(key, member, [&](auto& m) { return readJson(m, value); })) {
            presence.note(key);
        }
    });
    presence.settle(record);
}

template <typename R>
bool isMemberName(const char* key)
{
    bool found = false;
    R probe;
    Fields<R>::visit(probe, [&](const char* name, auto&) { found = found || std::strcmp(name, key) == 0; });
    return found;
}

// The record object of a JSON answer: the value of the one key that wraps it, or the object
// itself when it isn't wrapped.
template <typename R>
cJSON* unwrapJson(cJSON* root)
{
    if (!cJSON_IsObject(root)) {
        return nullptr;
    }
    cJSON* only = root->child;
    if (only != nullptr && only->next == nullptr && cJSON_IsObject(only) && only->string != nullptr &&
        (std::strcmp(only->string, Fields<R>::name()) == 0 || !isMemberName<R>(only->string))) {
        return only;
    }
    return root;
}

// ---------------------------------------------------------------------------------------------
// Parsing a whole answer

// An XML answer read through libxml2's document tree: the reader of every answer that the
// one-pass reader (XmlStream.h) leaves alone, and the rule that both follow.
template <typename R>
void parseAnswerTree(R& record, const std::string& text)
{
    xmlDocPtr doc = readXmlDocument(text.data(), text.size());
    if (doc == nullptr) {
        return;
    }
    readRecordXml(record, xmlDocGetRootElement(doc));
    xmlFreeDoc(doc);
}

// Fills `record` from a device answer: XML when it starts with '<', JSON when with '{'.
template <typename R>
void parseAnswer(R& record, const std::string& text)
{
    std::size_t first = 0;
    if (text.compare(0, 3, "\xEF\xBB\xBF") == 0) {
        first = 3; // UTF-8 byte order mark
    }
    first = text.find_first_not_of(" \t\r\n", first);
    if (first == std::string::npos) {
        return;
    }
    if (text[first] == '<') {
        if (!streamAnswerXml(record, text)) {
            parseAnswerTree(record, text);
        }
    } else if (text[first] == '{') {
        cJSON* root = cJSON_ParseWithLength(text.data() + first, text.size() - first);
        if (root == nullptr) {
            return;
        }
        readRecordJson(record, unwrapJson<R>(root));
        cJSON_Delete(root);
    }
}

// ---------------------------------------------------------------------------------------------
// Writing

template <typename T>
std::string scalarText(const T& value)
{
    if constexpr (std::is_same_v<T, std::string>) {
        return value;
    } else if constexpr (std::is_same_v<T, bool>) {
        return value ? "true" : "false";
    } else if constexpr (std::is_floating_point_v<T>) {
        char buffer[400];
        std::to_chars_result result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed);
        std::string text(buffer, result.ec == std::errc() ? result.ptr : buffer);
        if (text.find_first_not_of("-0123456789") == std::string::npos) {
            text += ".0"; // floats always carry a point
        }
        return text;
    } else {
        return std::to_string(value);
    }
}

template <typename R>
void writeRecordXml(const R& record, xmlNode* element);

template <typename T>
void writeXml(const T& value, xmlNode* parent, const char* key)
{
    const xmlChar* name = reinterpret_cast<const xmlChar*>(key);
    if constexpr (IsRecord<T>::value) {
        writeRecordXml(value, xmlNewChild(parent, nullptr, name, nullptr));
    } else if constexpr (IsVector<T>::value || IsArray<T>::value) {
        using Item = typename T::value_type;
        xmlNode* list = xmlNewChild(parent, nullptr, name, nullptr);
        for (const auto& item : value) {
            if constexpr (IsRecord<Item>::value) {
                writeXml(static_cast<const Item&>(item), list, Fields<Item>::name());
            } else {
                writeXml(static_cast<Item>(item), list, "item");
            }
        }
    } else {
        std::string text = scalarText(value);
        xmlNewTextChild(parent, nullptr, name, reinterpret_cast<const xmlChar*>(text.c_str()));
    }
}

template <typename R>
void writeRecordXml(const R& record, xmlNode* element)
{
    Fields<R>::visit(const_cast<R&>(record), [&](const char* key, const auto& member) { writeXml(member, element, key); });
}

template <typename R>
std::string toXml(const R& record)
{
    initXml();
    xmlDocPtr doc = xmlNewDoc(reinterpret_cast<const xmlChar*>("1.0"));
    xmlNode* root = xmlNewNode(nullptr, reinterpret_cast<const xmlChar*>(Fields<R>::name()));
    xmlDocSetRootElement(doc, root);
    writeRecordXml(record, root);
    xmlChar* memory = nullptr;
    int size = 0;
    xmlDocDumpFormatMemoryEnc(doc, &memory, &size, "UTF-8", 0);
    std::string text = memory != nullptr ? std::string(reinterpret_cast<const char*>(memory), static_cast<std::size_t>(size)) : std::string();
    xmlFree(memory);
    xmlFreeDoc(doc);
    return text;
}

template <typename R>
cJSON* recordToJson(const R& record);

template <typename T>
cJSON* toJsonValue(const T& value)
{
    if constexpr (IsRecord<T>::value) {
        return recordToJson(value);
    } else if constexpr (IsVector<T>::value || IsArray<T>::value) {
        using Item = typename T::value_type;
        cJSON* array = cJSON_CreateArray();
        for (const auto& item : value) {
            cJSON_AddItemToArray(array, toJsonValue(static_cast<const Item&>(item)));
        }
        return array;
    } else if constexpr (std::is_same_v<T, std::string>) {
        return cJSON_CreateString(value.c_str());
    } else if constexpr (std::is_same_v<T, bool>) {
        return cJSON_CreateBool(value ? 1 : 0);
    } else {
        return cJSON_CreateNumber(static_cast<double>(value));
    }
}

template <typename R>
cJSON* recordToJson(const R& record)
{
    cJSON* object = cJSON_CreateObject();
    Fields<R>::visit(const_cast<R&>(record),
                     [&](const char* key, const auto& member) { cJSON_AddItemToObject(object, key, toJsonValue(member)); });
    return object;
}

// {"<record name>": {members}}, unformatted.
template <typename R>
std::string toJson(const R& record)
{
    cJSON* root = cJSON_CreateObject();
    cJSON_AddItemToObject(root, Fields<R>::name(), recordToJson(record));
    char* printed = cJSON_PrintUnformatted(root);
    std::string text = printed != nullptr ? printed : "";
    cJSON_free(printed);
    cJSON_Delete(root);
    return text;
}

} // namespace detail
} // namespace Quillon

// The member list of a record, in order; each member's wire key is its name.
#define QUILLON_FIELD_VISIT_(member) visitor(#member, record.member);
#define QUILLON_FIELDS(Type, ...)                                                   \
    namespace Quillon {                                                             \
    namespace detail {                                                              \
    template <>                                                                     \
    struct Fields<Type> {                                                           \
        static const char* name() { return wireName(#Type); }                       \
        template <typename V>                                                       \
        static void visit(Type& record, V&& visitor)                                \
        {                                                                           \
            QUILLON_FOR_EACH(QUILLON_FIELD_VISIT_, __VA_ARGS__)                     \
        }                                                                           \
    };                                                                              \
    }                                                                               \
    }

// `flag` follows the answer when the answer carries it; when it doesn't, it is set by the
// presence of `member`.
#define QUILLON_PRESENCE(Type, member, flag)                                        \
    namespace Quillon {                                                             \
    namespace detail {                                                              \
    template <>                                                                     \
    struct Presence<Type> {                                                         \
        struct State {                                                              \
            bool memberRead = false;                                                \
            bool flagRead = false;                                                  \
            void note(const char* key)                                              \
            {                                                                       \
                if (std::strcmp(key, #member) == 0) {                               \
                    memberRead = true;                                              \
                } else if (std::strcmp(key, #flag) == 0) {                          \
                    flagRead = true;                                                \
                }                                                                   \
            }                                                                       \
            void settle(Type& record) const                                         \
            {                                                                       \
                if (memberRead && !flagRead) {                                      \
                    record.flag = true;                                             \
                }                                                                   \
            }                                                                       \
        };                                                                          \
    };                                                                              \
    }                                                                               \
    }

// `member` (unsigned 32-bit) is read as a signed 32-bit value too; see SignedOnWire.
#define QUILLON_SIGNED_ON_WIRE(Type, member)                                        \
    namespace Quillon {                                                             \
    namespace detail {                                                              \
    template <>                                                                     \
    struct SignedMembers<Type> {                                                    \
        static bool has(const char* key) { return std::strcmp(key, #member) == 0; } \
    };                                                                              \
    }                                                                               \
    }

// The forms every record has (see QUILLON_RECORD_FORMS in the public headers).
#define QUILLON_RECORD_IMPL(Type)                                                   \
    Quillon::Type::Type() = default;                                                \
    Quillon::Type::Type(const std::string& text) { Parse(text); }                   \
    Quillon::Type::Type(_xmlNode* node) { detail::readRecordXml(*this, node); }     \
    void Quillon::Type::Parse(const std::string& text) { detail::parseAnswer(*this, text); }
