#pragma once
// The one generic engine behind every record: a record lists its fields once, as a table
// of (key, member, rule), and reading, writing and presentKeys all follow from that table.
// Copying needs nothing: every field is a member by value.
//
// Declaring a record:
//
//     struct PeerNode : public IReturnData {
//         std::string guid;            // the member and its default
//         int32_t linkPort = 0;
//
//         PROTOCOL_RECORD(PeerNode,
//             PROTOCOL_FIELD(guid),    // key "guid", rule of std::string
//             PROTOCOL_FIELD(linkPort))
//     };
//
// The field kind follows the member's type: std::string (string), int32_t (integer),
// bool (boolean), double (real), a record (nested), std::vector of records, of
// std::string or of int32_t (list). A key that differs from the member's name uses
// PROTOCOL_KEYED_FIELD("key ", member). A field whose two directions differ adds one of
// the options below to its entry:
//     .nonZero()            bool read as valueint != 0 instead of == 1
//     .writtenAsBoolean()   int32_t read as an integer, written as JSON true when not 0
//     .readFrom("iKey")     looked up under another key than the one it is written under
//     .presentAs("Key")     noted in presentKeys under another name than its key
//     .int64Text()          std::string holding the decimal text of the node's number,
//                           taken as a 64-bit integer; written as a string
//     .readOnly()           read and kept, never written
//     .listFromOwnNode()    list read from the node given to fromJSON itself, not from a
//                           key, and not noted in presentKeys; written under its key
// The table's order is the order of writing (and of reading, which no reader can tell).
// A request record adds PROTOCOL_ROOT_NAME("root") and, where it checks its fields, its
// own validate(). PROTOCOL_RECORD gives the record a constructor from an optional
// const cJSON*; a record that only ever lives inside another uses PROTOCOL_MEMBER_RECORD,
// which leaves it with its plain default constructor.
#include <cjson/cJSON.h>

#include <cstdint>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "JSONStruct/IJSONStruct.h"

namespace protocol {

namespace detail {

template <class T>
struct ListTraits : std::false_type {};
template <class T, class A>
struct ListTraits<std::vector<T, A>> : std::true_type {
    using Element = T;
};

template <class T>
constexpr bool kIsRecord = std::is_base_of_v<IJSONStruct, T>;

template <class T>
constexpr bool kIsScalar = std::is_same_v<T, std::string> || std::is_same_v<T, int32_t>
    || std::is_same_v<T, bool> || std::is_same_v<T, double>;

template <class T>
constexpr bool kIsList = ListTraits<T>::value;

template <class T>
constexpr bool kIsListOfKnownElements = [] {
    if constexpr (kIsList<T>) {
        using Element = typename ListTraits<T>::Element;
        return kIsRecord<Element> || std::is_same_v<Element, std::string> || std::is_same_v<Element, int32_t>;
    } else {
        return false;
    }
}();

enum class ReadRule : uint8_t {
    ByKind,     // the rule of the member's type
    NonZero,    // boolean that takes any non-zero number as true
    Int64Text,  // string holding the decimal text of the node's number as a 64-bit integer
};

enum class WriteRule : uint8_t {
    ByKind,   // the rule of the member's type
    Boolean,  // integer written as JSON true when not 0, false when 0
    Never,    // read and kept, never written
};

} // namespace detail

// One entry of a record's field table.
template <class Record, class Member>
struct FieldDecl {
    static_assert(detail::kIsScalar<Member> || detail::kIsRecord<Member> || detail::kIsListOfKnownElements<Member>,
                  "a record field is a std::string, int32_t, bool, double or record, or a std::vector of "
                  "records, of std::string or of int32_t");

    const char* key;                  // written under this key; looked up under it unless readKey
    Member Record::*member;
    const char* readKey = nullptr;    // looked up under this key instead, when set
    const char* presentKey = nullptr; // noted in presentKeys under this name, when set
    detail::ReadRule readRule = detail::ReadRule::ByKind;
    detail::WriteRule writeRule = detail::WriteRule::ByKind;
    bool fromOwnNode = false;         // a list read from the record's own node

    constexpr FieldDecl nonZero() const
    {
        static_assert(std::is_same_v<Member, bool>, "nonZero() applies to bool fields");
        FieldDecl decl = *this;
        decl.readRule = detail::ReadRule::NonZero;
        return decl;
    }
    constexpr FieldDecl writtenAsBoolean() const
    {
        static_assert(std::is_same_v<Member, int32_t>, "writtenAsBoolean() applies to int32_t fields");
        FieldDecl decl = *this;
        decl.writeRule = detail::WriteRule::Boolean;
        return decl;
    }
    constexpr FieldDecl readFrom(const char* otherKey) const
    {
        FieldDecl decl = *this;
        decl.readKey = otherKey;
        return decl;
    }
    constexpr FieldDecl presentAs(const char* name) const
    {
        FieldDecl decl = *this;
        decl.presentKey = name;
        return decl;
    }
    constexpr FieldDecl int64Text() const
    {
        static_assert(std::is_same_v<Member, std::string>, "int64Text() applies to std::string fields");
        FieldDecl decl = *this;
        decl.readRule = detail::ReadRule::Int64Text;
        return decl;
    }
    constexpr FieldDecl readOnly() const
    {
        FieldDecl decl = *this;
        decl.writeRule = detail::WriteRule::Never;
        return decl;
    }
    constexpr FieldDecl listFromOwnNode() const
    {
        static_assert(detail::kIsList<Member>, "listFromOwnNode() applies to list fields");
        FieldDecl decl = *this;
        decl.fromOwnNode = true;
        return decl;
    }

    constexpr const char* lookupKey() const { return readKey != nullptr ? readKey : key; }
    constexpr const char* presentName() const { return presentKey != nullptr ? presentKey : lookupKey(); }
};

template <class Record, class Member>
constexpr FieldDecl<Record, Member> field(const char* key, Member Record::*member)
{
    return FieldDecl<Record, Member>{key, member};
}

namespace detail {

// Integer value of a node: cJSON's saturated, truncated valueint; JSON true counts 1
// also in trees that were built rather than parsed.
inline int32_t integerOf(const cJSON* node)
{
    return cJSON_IsTrue(node) ? 1 : static_cast<int32_t>(node->valueint);
}

// The node's number as a 64-bit integer: the fraction dropped, saturated at both ends,
// and NaN as 0, as no conversion may overflow.
inline int64_t int64Of(const cJSON* node)
{
    const double number = node->valuedouble;
    if (number != number)
        return 0;
    if (number >= 9223372036854775807.0)
        return INT64_MAX;
    if (number <= -9223372036854775807.0 - 1.0)
        return INT64_MIN;
    return static_cast<int64_t>(number);
}

inline void readValue(const cJSON* node, std::string& value, ReadRule rule)
{
    if (rule == ReadRule::Int64Text)
        value = std::to_string(int64Of(node));
    else if (node->valuestring != nullptr)
        value.assign(node->valuestring);
    else
        value.clear();
}

inline void readValue(const cJSON* node, int32_t& value, ReadRule)
{
    value = integerOf(node);
}

inline void readValue(const cJSON* node, bool& value, ReadRule rule)
{
    value = rule == ReadRule::NonZero ? integerOf(node) != 0 : integerOf(node) == 1;
}

inline void readValue(const cJSON* node, double& value, ReadRule)
{
    value = node->valuedouble;
}

template <class T>
std::enable_if_t<kIsRecord<T>> readValue(const cJSON* node, T& value, ReadRule)
{
    value.T::fromJSON(node);
}

// Every child is an element, whether the value is an array or not; an element record
// starts from its defaults.
template <class T>
void readValue(const cJSON* node, std::vector<T>& list, ReadRule rule)
{
    list.reserve(static_cast<size_t>(cJSON_GetArraySize(node)));
    for (const cJSON* element = node->child; element != nullptr; element = element->next) {
        list.emplace_back();
        readValue(element, list.back(), rule);
    }
}

// Places `item` under one of the table's keys, once the filter has let the key through.
// The keys are string literals that live for the whole run, so cJSON keeps the pointer
// rather than a copy: half the allocations of a written record. Takes ownership of `item`.
inline void addTableItem(cJSON* object, const char* key, cJSON* item)
{
    if (item != nullptr && !cJSON_AddItemToObjectCS(object, key, item))
        cJSON_Delete(item);
}

inline cJSON* makeItem(const std::string& value) { return cJSON_CreateString(value.c_str()); }
inline cJSON* makeItem(int32_t value) { return cJSON_CreateNumber(static_cast<double>(value)); }
inline cJSON* makeItem(bool value) { return cJSON_CreateBool(value ? 1 : 0); }
inline cJSON* makeItem(double value) { return cJSON_CreateNumber(value); }
template <class T>
std::enable_if_t<kIsRecord<T>, cJSON*> makeItem(T& value)
{
    return value.T::toJSON();
}

template <class Record, class Member>
void writeField(Record& record, cJSON* object, const FieldDecl<Record, Member>& decl, bool filtering)
{
    const char* key = decl.key;
    if (decl.writeRule == WriteRule::Never || (filtering && record.isItemIgnored(key)))
        return;
    Member& value = record.*decl.member;
    if constexpr (std::is_same_v<Member, int32_t>) {
        if (decl.writeRule == WriteRule::Boolean) {
            addTableItem(object, key, makeItem(value != 0));
            return;
        }
    }
    if constexpr (kIsList<Member>) {
        cJSON* array = cJSON_CreateArray();
        if (array == nullptr)
            return;
        // Elements go in under the empty key, which the filter always lets through.
        for (auto& element : value)
            addTableItem(array, "", makeItem(element));
        addTableItem(object, key, array);
    } else {
        addTableItem(object, key, makeItem(value));
    }
}

// The lookup keys of one field table, found ignoring ASCII case as cJSON_GetObjectItem
// compares them, so that a record is read in one walk over the object's members rather
// than one walk per field.
class KeyIndex {
public:
    KeyIndex(const char* const* keys, int count);
    // The first field whose lookup key equals `name` but for case, or -1.
    int find(const char* name) const;
    // The same, trying the field `expected` before the hash: members mostly come in the
    // order of the table, as the records write them.
    int find(const char* name, int expected) const;
    // The next field with the same lookup key as `field`, or -1.
    int next(int field) const { return m_next[static_cast<size_t>(field)]; }

private:
    std::vector<const char*> m_keys;
    std::vector<int> m_next;
    std::vector<int> m_first;             // of each field, the first field with its key
    std::vector<int> m_slots;             // open addressing over the first field of each key
    size_t m_mask = 0;
};

template <class Record, class Member>
void clearList(Record& record, const FieldDecl<Record, Member>& decl)
{
    if constexpr (kIsList<Member>)
        (record.*decl.member).clear();
}

// A list read from the record's own node takes every child of it, under no key, and is
// not noted in presentKeys.
template <class Record, class Member>
void readOwnNodeList(Record& record, const cJSON* json, const FieldDecl<Record, Member>& decl)
{
    if constexpr (kIsList<Member>) {
        if (decl.fromOwnNode)
            readValue(json, record.*decl.member, decl.readRule);
    }
}

template <size_t I, class Record, class Table>
void readFieldAt(Record& record, const cJSON* node, const Table& table)
{
    const auto& decl = std::get<I>(table);
    readValue(node, record.*decl.member, decl.readRule);
}

// Every field takes the first member of the object whose name equals its lookup key but
// for case, as a look-up per field in declared order would: lists are emptied first, and
// a field already given its member ignores the later ones that differ only in case.
template <class Record, class Table, size_t... I>
void readRecordInOneWalk(Record& record, const cJSON* json, const Table& table, std::index_sequence<I...>)
{
    constexpr int kCount = static_cast<int>(sizeof...(I));
    static const char* const kKeys[] = {std::get<I>(table).lookupKey()...};
    static const char* const kPresentNames[] = {std::get<I>(table).presentName()...};
    static const KeyIndex kIndex(kKeys, kCount);
    using Reader = void (*)(Record&, const cJSON*, const Table&);
    static constexpr Reader kReaders[] = {&readFieldAt<I, Record, Table>...};

    static const bool kOwnNode[] = {std::get<I>(table).fromOwnNode...};

    (clearList(record, std::get<I>(table)), ...);
    (readOwnNodeList(record, json, std::get<I>(table)), ...);
    bool taken[kCount] = {};
    int expected = 0;
    for (const cJSON* member = json->child; member != nullptr; member = member->next) {
        if (member->string == nullptr)
            continue;
        for (int field = kIndex.find(member->string, expected); field >= 0; field = kIndex.next(field)) {
            expected = field + 1;
            if (taken[field] || kOwnNode[field])
                continue;
            taken[field] = true;
            kReaders[field](record, member, table);
            record.presentKeys.noteFound(kPresentNames, static_cast<size_t>(field));
        }
    }
}

template <class Record, class Table>
void readRecord(Record& record, const cJSON* json, const Table& table)
{
    if (json == nullptr)
        return;
    readRecordInOneWalk(record, json, table, std::make_index_sequence<std::tuple_size_v<Table>>());
}

template <class Record, class Table>
cJSON* writeRecord(Record& record, const Table& table)
{
    cJSON* object = cJSON_CreateObject();
    if (object == nullptr)
        return nullptr;
    const bool filtering = record.filtersSomeKey();
    std::apply([&](const auto&... decl) { (writeField(record, object, decl, filtering), ...); }, table);
    return object;
}

} // namespace detail
} // namespace protocol

// One field whose key is the member's own name.
#define PROTOCOL_FIELD(member) ::protocol::field(#member, &Self::member)
// One field whose key is not the member's name (a blank, a capital, a reserved word).
#define PROTOCOL_KEYED_FIELD(key, member) ::protocol::field(key, &Self::member)

// The field table and the two virtual operations it drives.
#define PROTOCOL_FIELD_TABLE(Record, ...)                                                   \
public:                                                                                     \
    using Self = Record;                                                                    \
    static constexpr auto fieldTable() { return std::make_tuple(__VA_ARGS__); }             \
    void fromJSON(const cJSON* json) override                                               \
    {                                                                                       \
        ::protocol::detail::readRecord(*this, json, fieldTable());                          \
    }                                                                                       \
    cJSON* toJSON() override { return ::protocol::detail::writeRecord(*this, fieldTable()); }

// A record that is also built on its own: default constructor, and a constructor that
// reads `json` over the defaults (a null pointer leaves the defaults).
#define PROTOCOL_RECORD(Record, ...)                                                        \
public:                                                                                     \
    Record() = default;                                                                     \
    explicit Record(const cJSON* json) { Record::fromJSON(json); }                          \
    PROTOCOL_FIELD_TABLE(Record, __VA_ARGS__)

// A record that only ever lives as a member of another, which calls its fromJSON.
#define PROTOCOL_MEMBER_RECORD(Record, ...) PROTOCOL_FIELD_TABLE(Record, __VA_ARGS__)

// The root key of a request record.
#define PROTOCOL_ROOT_NAME(name)                                                            \
public:                                                                                     \
    const char* rootName() const override { return name; }

// ---- Records whose field table lives in a source file ----------------------------------
//
// A header full of records then costs its includers no template work, and a record costs
// its source file no more than its table: the table is turned once into a plain array of
// slots (key, offset, kind) that one engine, compiled once, reads and writes. The header
// declares the record:
//
//     struct Door : public IReturnData {
//         std::string guid;
//         std::string name;
//
//         PROTOCOL_DECLARE_RECORD(Door)
//     };
//
// and one source file gives its table, inside namespace protocol:
//
//     PROTOCOL_DEFINE_RECORD(Door,
//         PROTOCOL_FIELD(guid),
//         PROTOCOL_FIELD(name))
//
// The entries and their options are those of PROTOCOL_RECORD, and both engines read and
// write alike.

namespace protocol {
namespace detail {

enum class FieldKind : uint8_t { String, Integer, Boolean, Real, Record, StringList, IntegerList, RecordList };

// What the slot engine does with a nested record, or with a list of records, of one type.
// A nested record needs only the first two; the list operations are filled in for element
// types alone, so that no vector code is generated for a type that is never listed.
struct RecordOps {
    void (*read)(void* record, const cJSON* json);
    cJSON* (*write)(void* record);
    void (*clearList)(void* list);
    void (*reserveList)(void* list, size_t count);
    void* (*appendTo)(void* list);        // a default element at the end, returned
    size_t (*listSize)(const void* list);
    void* (*listAt)(void* list, size_t index);
};

template <class T>
void readNested(void* record, const cJSON* json)
{
    static_cast<T*>(record)->T::fromJSON(json);
}

template <class T>
cJSON* writeNested(void* record)
{
    return static_cast<T*>(record)->T::toJSON();
}

template <class T>
const RecordOps* nestedOps()
{
    static constexpr RecordOps ops = {&readNested<T>, &writeNested<T>, nullptr, nullptr, nullptr, nullptr, nullptr};
    return &ops;
}

template <class T>
const RecordOps* elementOps()
{
    static constexpr RecordOps ops = {
        &readNested<T>,
        &writeNested<T>,
        [](void* list) { static_cast<std::vector<T>*>(list)->clear(); },
        [](void* list, size_t count) { static_cast<std::vector<T>*>(list)->reserve(count); },
        [](void* list) -> void* { return &static_cast<std::vector<T>*>(list)->emplace_back(); },
        [](const void* list) { return static_cast<const std::vector<T>*>(list)->size(); },
        [](void* list, size_t index) -> void* { return &(*static_cast<std::vector<T>*>(list))[index]; },
    };
    return &ops;
}

struct FieldSlot {
    const char* key;
    const char* lookupKey;
    const char* presentName;
    size_t offset;                        // of the member from the start of the record
    FieldKind kind;
    ReadRule readRule;
    WriteRule writeRule;
    const RecordOps* ops;                 // for Record and RecordList
    bool fromOwnNode;                     // a list read from the record's own node
};

struct RecordLayout {
    RecordLayout(std::vector<FieldSlot> fieldSlots);

    std::vector<FieldSlot> fields;   // not "slots": Qt defines that word away
    KeyIndex index;
    std::vector<const char*> presentNames;  // of each field, for presentKeys
};

// The engine: `base` is the record's own address, `record` and `filter` the same record.
void readLayout(IJSONStruct& record, char* base, const RecordLayout& layout, const cJSON* json);
cJSON* writeLayout(const SerializationIgnoreItemFeatures& filter, char* base, const RecordLayout& layout);

template <class Member>
constexpr FieldKind kindOf()
{
    if constexpr (std::is_same_v<Member, std::string>)
        return FieldKind::String;
    else if constexpr (std::is_same_v<Member, int32_t>)
        return FieldKind::Integer;
    else if constexpr (std::is_same_v<Member, bool>)
        return FieldKind::Boolean;
    else if constexpr (std::is_same_v<Member, double>)
        return FieldKind::Real;
    else if constexpr (kIsRecord<Member>)
        return FieldKind::Record;
    else if constexpr (std::is_same_v<Member, std::vector<std::string>>)
        return FieldKind::StringList;
    else if constexpr (std::is_same_v<Member, std::vector<int32_t>>)
        return FieldKind::IntegerList;
    else
        return FieldKind::RecordList;
}

template <class Member>
const RecordOps* opsOf()
{
    if constexpr (kIsRecord<Member>)
        return nestedOps<Member>();
    else if constexpr (kIsList<Member>) {
        using Element = typename ListTraits<Member>::Element;
        if constexpr (kIsRecord<Element>)
            return elementOps<Element>();
        else
            return nullptr;
    } else {
        return nullptr;
    }
}

template <class Record, class Member>
FieldSlot slotOf(const Record& sample, const FieldDecl<Record, Member>& decl)
{
    const auto offset = reinterpret_cast<const char*>(&(sample.*decl.member)) - reinterpret_cast<const char*>(&sample);
    return FieldSlot{decl.key, decl.lookupKey(), decl.presentName(), static_cast<size_t>(offset),
                     kindOf<Member>(), decl.readRule, decl.writeRule, opsOf<Member>(), decl.fromOwnNode};
}

// A plain parameter pack rather than a tuple: a tuple of a hundred fields costs the
// compiler far more than the record is worth.
template <class Record, class... Decl>
RecordLayout makeLayout(const Decl&... decls)
{
    const Record sample;
    return RecordLayout(std::vector<FieldSlot>{slotOf(sample, decls)...});
}

} // namespace detail
} // namespace protocol

// The header declares a record with PROTOCOL_DECLARE_RECORD (or, for a record that only
// lives inside another, PROTOCOL_DECLARE_MEMBER_RECORD); its one source file gives the
// table with PROTOCOL_DEFINE_RECORD (or PROTOCOL_DEFINE_MEMBER_RECORD), inside namespace
// protocol. The source file includes FieldTable.h.
#define PROTOCOL_DECLARE_FIELD_TABLE(Record)                                                \
public:                                                                                     \
    void fromJSON(const cJSON* json) override;                                              \
    cJSON* toJSON() override;

#define PROTOCOL_DECLARE_RECORD(Record)                                                     \
public:                                                                                     \
    Record() = default;                                                                     \
    explicit Record(const cJSON* json);                                                     \
    PROTOCOL_DECLARE_FIELD_TABLE(Record)

#define PROTOCOL_DECLARE_MEMBER_RECORD(Record) PROTOCOL_DECLARE_FIELD_TABLE(Record)

#define PROTOCOL_DEFINE_FIELD_TABLE(Record, ...)                                            \
    namespace {                                                                             \
    struct Record##FieldTable {                                                             \
        using Self = Record;                                                                \
        /* Never destroyed: presentKeys of a record may point into it until the end. */ \
        static const ::protocol::detail::RecordLayout& layout()                             \
        {                                                                                   \
            static const ::protocol::detail::RecordLayout& kLayout =                        \
                *new ::protocol::detail::RecordLayout(                                      \
                    ::protocol::detail::makeLayout<Record>(__VA_ARGS__));                   \
            return kLayout;                                                                 \
        }                                                                                   \
    };                                                                                      \
    }                                                                                       \
    void Record::fromJSON(const cJSON* json)                                                \
    {                                                                                       \
        ::protocol::detail::readLayout(*this, reinterpret_cast<char*>(this), Record##FieldTable::layout(), json); \
    }                                                                                       \
    cJSON* Record::toJSON()                                                                 \
    {                                                                                       \
        return ::protocol::detail::writeLayout(*this, reinterpret_cast<char*>(this), Record##FieldTable::layout()); \
    }

#define PROTOCOL_DEFINE_RECORD(Record, ...)                                                 \
    Record::Record(const cJSON* json) { Record::fromJSON(json); }                           \
    PROTOCOL_DEFINE_FIELD_TABLE(Record, __VA_ARGS__)

#define PROTOCOL_DEFINE_MEMBER_RECORD(Record, ...) PROTOCOL_DEFINE_FIELD_TABLE(Record, __VA_ARGS__)
