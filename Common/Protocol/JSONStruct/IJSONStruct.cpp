#include "JSONStruct/IJSONStruct.h"

#include "JSONStruct/FieldTable.h"

#include <algorithm>
#include <cstring>

namespace protocol {

bool SerializationIgnoreItemFeatures::isItemIgnored(const char* key) const
{
    if (key == nullptr || key[0] == '\0')
        return false;
    const bool listed = std::find(ignoreItems.begin(), ignoreItems.end(), key) != ignoreItems.end();
    switch (ignoreMode) {
    case 0:
        return listed;
    case 1:
        return !listed;
    default:
        return false;
    }
}

void SerializationIgnoreItemFeatures::addBoolItem(cJSON* object, const char* key, bool value) const
{
    if (isItemIgnored(key))
        return;
    addChildItem(object, key, cJSON_CreateBool(value ? 1 : 0));
}

void SerializationIgnoreItemFeatures::addStringItem(cJSON* object, const char* key, const char* value) const
{
    if (isItemIgnored(key))
        return;
    addChildItem(object, key, cJSON_CreateString(value));
}

void SerializationIgnoreItemFeatures::addNumberItem(cJSON* object, const char* key, double value) const
{
    if (isItemIgnored(key))
        return;
    addChildItem(object, key, cJSON_CreateNumber(value));
}

void SerializationIgnoreItemFeatures::addChildItem(cJSON* object, const char* key, cJSON* item) const
{
    if (item == nullptr)
        return;
    if (object == nullptr || key == nullptr || isItemIgnored(key) || !cJSON_AddItemToObject(object, key, item))
        cJSON_Delete(item);
}

namespace detail {

namespace {

// ASCII case folding, as cJSON's look-up compares member names.
inline unsigned char foldCase(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte - 'A' + 'a') : byte;
}

// FNV-1a of the folded name.
size_t foldedHash(const char* name)
{
    size_t hash = 14695981039346656037ull;
    for (; *name != '\0'; ++name) {
        hash ^= foldCase(*name);
        hash *= 1099511628211ull;
    }
    return hash;
}

bool equalFolded(const char* left, const char* right)
{
    for (;; ++left, ++right) {
        if (*left == *right) {
            if (*left == '\0')
                return true;
        } else if (foldCase(*left) != foldCase(*right)) {
            return false;
        }
    }
}

} // namespace

KeyIndex::KeyIndex(const char* const* keys, int count)
    : m_keys(keys, keys + count), m_next(static_cast<size_t>(count), -1), m_first(static_cast<size_t>(count), -1)
{
    size_t slotCount = 4;
    while (slotCount < static_cast<size_t>(count) * 2)
        slotCount *= 2;
    m_slots.assign(slotCount, -1);
    m_mask = slotCount - 1;
    for (int field = 0; field < count; ++field) {
        const int first = find(keys[field]);
        m_first[static_cast<size_t>(field)] = first >= 0 ? first : field;
        if (first >= 0) {
            // Same key but for case: chained behind the first field that bears it.
            int last = first;
            while (m_next[static_cast<size_t>(last)] >= 0)
                last = m_next[static_cast<size_t>(last)];
            m_next[static_cast<size_t>(last)] = field;
            continue;
        }
        size_t slot = foldedHash(keys[field]) & m_mask;
        while (m_slots[slot] >= 0)
            slot = (slot + 1) & m_mask;
        m_slots[slot] = field;
    }
}

int KeyIndex::find(const char* name, int expected) const
{
    if (expected >= 0 && static_cast<size_t>(expected) < m_keys.size()
        && equalFolded(m_keys[static_cast<size_t>(expected)], name))
        return m_first[static_cast<size_t>(expected)];
    return find(name);
}

int KeyIndex::find(const char* name) const
{
    for (size_t slot = foldedHash(name) & m_mask;; slot = (slot + 1) & m_mask) {
        const int field = m_slots[slot];
        if (field < 0 || equalFolded(m_keys[static_cast<size_t>(field)], name))
            return field;
    }
}

RecordLayout::RecordLayout(std::vector<FieldSlot> fieldSlots)
    : fields(std::move(fieldSlots)), index([this] {
          std::vector<const char*> keys;
          keys.reserve(fields.size());
          for (const FieldSlot& slot : fields)
              keys.push_back(slot.lookupKey);
          return KeyIndex(keys.data(), static_cast<int>(keys.size()));
      }())
{
    presentNames.reserve(fields.size());
    for (const FieldSlot& slot : fields)
        presentNames.push_back(slot.presentName);
}

namespace {

template <class T>
T& memberAt(char* address)
{
    return *reinterpret_cast<T*>(address);
}

void readSlot(const FieldSlot& slot, char* address, const cJSON* node)
{
    switch (slot.kind) {
    case FieldKind::String:
        readValue(node, memberAt<std::string>(address), slot.readRule);
        break;
    case FieldKind::Integer:
        readValue(node, memberAt<int32_t>(address), slot.readRule);
        break;
    case FieldKind::Boolean:
        readValue(node, memberAt<bool>(address), slot.readRule);
        break;
    case FieldKind::Real:
        readValue(node, memberAt<double>(address), slot.readRule);
        break;
    case FieldKind::Record:
        slot.ops->read(address, node);
        break;
    case FieldKind::StringList:
        readValue(node, memberAt<std::vector<std::string>>(address), slot.readRule);
        break;
    case FieldKind::IntegerList:
        readValue(node, memberAt<std::vector<int32_t>>(address), slot.readRule);
        break;
    case FieldKind::RecordList:
        // Every child is an element, whether the value is an array or not.
        slot.ops->reserveList(address, static_cast<size_t>(cJSON_GetArraySize(node)));
        for (const cJSON* element = node->child; element != nullptr; element = element->next)
            slot.ops->read(slot.ops->appendTo(address), element);
        break;
    }
}

template <class T>
cJSON* makeArray(const std::vector<T>& list)
{
    cJSON* array = cJSON_CreateArray();
    if (array == nullptr)
        return nullptr;
    for (const T& element : list)
        addTableItem(array, "", makeItem(element));
    return array;
}

cJSON* writeSlot(const FieldSlot& slot, char* address)
{
    switch (slot.kind) {
    case FieldKind::String:
        return makeItem(memberAt<std::string>(address));
    case FieldKind::Integer:
        if (slot.writeRule == WriteRule::Boolean)
            return makeItem(memberAt<int32_t>(address) != 0);
        return makeItem(memberAt<int32_t>(address));
    case FieldKind::Boolean:
        return makeItem(memberAt<bool>(address));
    case FieldKind::Real:
        return makeItem(memberAt<double>(address));
    case FieldKind::Record:
        return slot.ops->write(address);
    case FieldKind::StringList:
        return makeArray(memberAt<std::vector<std::string>>(address));
    case FieldKind::IntegerList:
        return makeArray(memberAt<std::vector<int32_t>>(address));
    case FieldKind::RecordList: {
        cJSON* array = cJSON_CreateArray();
        if (array == nullptr)
            return nullptr;
        // Elements go in under the empty key, which the filter always lets through.
        const size_t count = slot.ops->listSize(address);
        for (size_t i = 0; i < count; ++i)
            addTableItem(array, "", slot.ops->write(slot.ops->listAt(address, i)));
        return array;
    }
    }
    return nullptr;
}

// Fields taken so far in one read; records stay far below the inline capacity.
class TakenFields {
public:
    explicit TakenFields(size_t count) : m_heap(count > kInline ? count : 0, 0) {}
    // True the first time for `field`.
    bool take(size_t field)
    {
        unsigned char& taken = m_heap.empty() ? m_inline[field] : m_heap[field];
        const bool first = taken == 0;
        taken = 1;
        return first;
    }

private:
    static constexpr size_t kInline = 256;
    unsigned char m_inline[kInline] = {};
    std::vector<unsigned char> m_heap;
};

} // namespace

// Every field takes the first member whose name equals its lookup key but for case, as a
// look-up per field in declared order would; lists are emptied whether or not they come.
void readLayout(IJSONStruct& record, char* base, const RecordLayout& layout, const cJSON* json)
{
    if (json == nullptr)
        return;
    for (const FieldSlot& slot : layout.fields) {
        if (slot.kind == FieldKind::StringList)
            memberAt<std::vector<std::string>>(base + slot.offset).clear();
        else if (slot.kind == FieldKind::IntegerList)
            memberAt<std::vector<int32_t>>(base + slot.offset).clear();
        else if (slot.kind == FieldKind::RecordList)
            slot.ops->clearList(base + slot.offset);
    }
    for (const FieldSlot& slot : layout.fields) {
        if (slot.fromOwnNode)
            readSlot(slot, base + slot.offset, json);
    }
    TakenFields taken(layout.fields.size());
    int expected = 0;
    for (const cJSON* member = json->child; member != nullptr; member = member->next) {
        if (member->string == nullptr)
            continue;
        for (int field = layout.index.find(member->string, expected); field >= 0; field = layout.index.next(field)) {
            expected = field + 1;
            const FieldSlot& slot = layout.fields[static_cast<size_t>(field)];
            if (slot.fromOwnNode || !taken.take(static_cast<size_t>(field)))
                continue;
            readSlot(slot, base + slot.offset, member);
            record.presentKeys.noteFound(layout.presentNames.data(), static_cast<size_t>(field));
        }
    }
}

cJSON* writeLayout(const SerializationIgnoreItemFeatures& filter, char* base, const RecordLayout& layout)
{
    cJSON* object = cJSON_CreateObject();
    if (object == nullptr)
        return nullptr;
    const bool filtering = filter.filtersSomeKey();
    for (const FieldSlot& slot : layout.fields) {
        if (slot.writeRule == WriteRule::Never || (filtering && filter.isItemIgnored(slot.key)))
            continue;
        addTableItem(object, slot.key, writeSlot(slot, base + slot.offset));
    }
    return object;
}

} // namespace detail

IInboundData::~IInboundData() = default;

bool IInboundData::validate(std::string& /*error*/)
{
    return true;
}

IReturnData::~IReturnData() = default;

} // namespace protocol
