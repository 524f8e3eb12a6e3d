#include "ExpectedRecordKeys.h"

#include <cctype>
#include <stdexcept>

namespace recordkeys {

namespace {

Key make(const std::string& name, Kind kind, const std::string& element = std::string(),
         const std::string& defaultJson = std::string())
{
    return Key{name, kind, element, defaultJson, std::string()};
}

const ExpectedRecord& expected(const std::string& name)
{
    const ExpectedRecord* record = findExpected(name);
    if (record == nullptr)
        throw std::runtime_error("no expected keys for record " + name);
    return *record;
}

cJSON* parsed(const std::string& json)
{
    cJSON* value = cJSON_Parse(json.c_str());
    if (value == nullptr)
        throw std::runtime_error("bad default " + json);
    return value;
}

// The document of a record whose list is read from the node itself is that list alone.
const Key& ownNodeList(const ExpectedRecord& record)
{
    if (record.keys.size() != 1 || record.keys.front().kind != Kind::RecordList)
        throw std::runtime_error(record.name + ": a list read from the node itself stands alone");
    return record.keys.front();
}

std::string printed(cJSON* json)
{
    recordtest::Json owner(json);
    return recordtest::print(owner.get());
}

cJSON* defaultTree(const ExpectedRecord& record);

cJSON* defaultValue(const Key& key)
{
    if (key.kind == Kind::IntegerAsBoolean) {
        recordtest::Json value(parsed(key.defaultJson.empty() ? "0" : key.defaultJson));
        return cJSON_CreateBool(value->valueint != 0);
    }
    if (!key.defaultJson.empty())
        return parsed(key.defaultJson);
    switch (key.kind) {
    case Kind::String:
    case Kind::Int64Text:
    case Kind::ReadOnlyString:
        return cJSON_CreateString("");
    case Kind::Integer:
    case Kind::Real:
        return cJSON_CreateNumber(0);
    case Kind::Boolean:
    case Kind::NonZeroBoolean:
    case Kind::IntegerAsBoolean:
        return cJSON_CreateFalse();
    case Kind::StringList:
    case Kind::IntegerList:
    case Kind::RecordList:
        return cJSON_CreateArray();
    case Kind::Record:
        return defaultTree(expected(key.element));
    }
    return nullptr;
}

cJSON* defaultTree(const ExpectedRecord& record)
{
    cJSON* object = cJSON_CreateObject();
    for (const Key& key : record.keys) {
        if (key.kind != Kind::ReadOnlyString)
            cJSON_AddItemToObject(object, key.name.c_str(), defaultValue(key));
    }
    return object;
}

bool defaultIsTrue(const Key& key)
{
    return key.defaultJson == "true";
}

bool defaultIsNonZero(const Key& key)
{
    return !key.defaultJson.empty() && key.defaultJson != "0";
}

// What to read for one key, and what the record then writes (null: nothing).
struct Sample {
    cJSON* read = nullptr;
    cJSON* written = nullptr;
};

cJSON* filledTree(const ExpectedRecord& record, int seed, bool writtenForm);
cJSON* otherTypeTree(const ExpectedRecord& record, bool writtenForm);

cJSON* filledList(const Key& key, int seed, bool writtenForm)
{
    cJSON* array = cJSON_CreateArray();
    for (int element = 1; element <= 2; ++element)
        cJSON_AddItemToArray(array, filledTree(expected(key.element), seed + element, writtenForm));
    return array;
}

Sample filledSample(const Key& key, int seed)
{
    const std::string text = key.name + "=\"\\/\xC3\xA9" + std::to_string(seed);
    switch (key.kind) {
    case Kind::String:
        return {cJSON_CreateString(text.c_str()), cJSON_CreateString(text.c_str())};
    case Kind::Integer:
        return {cJSON_CreateNumber(100000 + seed), cJSON_CreateNumber(100000 + seed)};
    case Kind::Boolean:
        return {cJSON_CreateBool(!defaultIsTrue(key)), cJSON_CreateBool(!defaultIsTrue(key))};
    case Kind::NonZeroBoolean:
        return {cJSON_CreateNumber(2), cJSON_CreateTrue()};
    case Kind::IntegerAsBoolean:
        return defaultIsNonZero(key) ? Sample{cJSON_CreateNumber(0), cJSON_CreateFalse()}
                                     : Sample{cJSON_CreateNumber(5), cJSON_CreateTrue()};
    case Kind::Real:
        return {cJSON_CreateNumber(0.5 + seed), cJSON_CreateNumber(0.5 + seed)};
    case Kind::StringList: {
        const char* values[] = {text.c_str(), "b"};
        return {cJSON_CreateStringArray(values, 2), cJSON_CreateStringArray(values, 2)};
    }
    case Kind::IntegerList: {
        const int values[] = {-7, seed, 2147483647};
        return {cJSON_CreateIntArray(values, 3), cJSON_CreateIntArray(values, 3)};
    }
    case Kind::RecordList:
        return {filledList(key, seed, false), filledList(key, seed, true)};
    case Kind::Record:
        return {filledTree(expected(key.element), seed + 1, false), filledTree(expected(key.element), seed + 1, true)};
    case Kind::Int64Text: {
        // Above 32 bits, and exact in a double.
        const long long value = 1234567890123456LL + seed;
        return {cJSON_CreateNumber(static_cast<double>(value)), cJSON_CreateString(std::to_string(value).c_str())};
    }
    case Kind::ReadOnlyString:
        return {cJSON_CreateString(text.c_str()), nullptr};
    }
    return {};
}

Sample otherTypeSample(const Key& key)
{
    switch (key.kind) {
    case Kind::String:
        return {cJSON_CreateNumber(5), cJSON_CreateString("")};
    case Kind::Integer:
        return {cJSON_CreateNumber(7.9), cJSON_CreateNumber(7)};
    case Kind::Boolean:
        return {cJSON_CreateNumber(2), cJSON_CreateFalse()};
    case Kind::NonZeroBoolean:
        return {cJSON_CreateNumber(2), cJSON_CreateTrue()};
    case Kind::IntegerAsBoolean:
        return {cJSON_CreateNumber(7.9), cJSON_CreateTrue()};
    case Kind::Real:
        return {cJSON_CreateNumber(7.9), cJSON_CreateNumber(7.9)};
    case Kind::StringList: {
        cJSON* read = cJSON_CreateArray();
        cJSON_AddItemToArray(read, cJSON_CreateNumber(5));
        cJSON_AddItemToArray(read, cJSON_CreateString("a"));
        const char* values[] = {"", "a"};
        return {read, cJSON_CreateStringArray(values, 2)};
    }
    case Kind::IntegerList: {
        cJSON* read = cJSON_CreateArray();
        cJSON_AddItemToArray(read, cJSON_CreateString("a"));
        cJSON_AddItemToArray(read, cJSON_CreateNumber(3.5));
        const int values[] = {0, 3};
        return {read, cJSON_CreateIntArray(values, 2)};
    }
    case Kind::RecordList: {
        cJSON* read = cJSON_CreateArray();
        cJSON_AddItemToArray(read, otherTypeTree(expected(key.element), false));
        cJSON* written = cJSON_CreateArray();
        cJSON_AddItemToArray(written, otherTypeTree(expected(key.element), true));
        return {read, written};
    }
    case Kind::Record:
        return {otherTypeTree(expected(key.element), false), otherTypeTree(expected(key.element), true)};
    case Kind::Int64Text:
        return {cJSON_CreateNumber(-7.9), cJSON_CreateString("-7")};
    case Kind::ReadOnlyString:
        return {cJSON_CreateNumber(5), nullptr};
    }
    return {};
}

template <class MakeSample>
cJSON* sampleTree(const ExpectedRecord& record, bool writtenForm, MakeSample makeSample)
{
    if (record.listFromOwnNode && !writtenForm) {
        Sample sample = makeSample(ownNodeList(record), 0);
        cJSON_Delete(sample.written);
        return sample.read;
    }
    cJSON* object = cJSON_CreateObject();
    int index = 0;
    for (const Key& key : record.keys) {
        Sample sample = makeSample(key, index++);
        cJSON* keep = writtenForm ? sample.written : sample.read;
        cJSON_Delete(writtenForm ? sample.read : sample.written);
        if (keep != nullptr)
            cJSON_AddItemToObject(object, key.name.c_str(), keep);
    }
    return object;
}

cJSON* filledTree(const ExpectedRecord& record, int seed, bool writtenForm)
{
    return sampleTree(record, writtenForm,
                      [seed](const Key& key, int index) { return filledSample(key, seed * 100 + index); });
}

cJSON* otherTypeTree(const ExpectedRecord& record, bool writtenForm)
{
    return sampleTree(record, writtenForm, [](const Key& key, int) { return otherTypeSample(key); });
}

} // namespace

Key s(const std::string& name, const std::string& defaultJson) { return make(name, Kind::String, {}, defaultJson); }
Key i(const std::string& name, const std::string& defaultJson) { return make(name, Kind::Integer, {}, defaultJson); }
Key b(const std::string& name, const std::string& defaultJson) { return make(name, Kind::Boolean, {}, defaultJson); }
Key n(const std::string& name) { return make(name, Kind::NonZeroBoolean); }
Key iAsB(const std::string& name, const std::string& defaultJson)
{
    return make(name, Kind::IntegerAsBoolean, {}, defaultJson);
}
Key r(const std::string& name) { return make(name, Kind::Real); }
Key ls(const std::string& name) { return make(name, Kind::StringList); }
Key li(const std::string& name) { return make(name, Kind::IntegerList); }
Key list(const std::string& name, const std::string& element) { return make(name, Kind::RecordList, element); }
Key nested(const std::string& name, const std::string& element) { return make(name, Kind::Record, element); }
Key int64Text(const std::string& name) { return make(name, Kind::Int64Text); }
Key readOnly(const std::string& name) { return make(name, Kind::ReadOnlyString); }

Key presentAs(Key key, const std::string& presentName)
{
    key.presentName = presentName;
    return key;
}

const ExpectedRecord* findExpected(const std::string& name)
{
    for (const auto* table : {&passThroughRecordKeys(), &controlStatusServiceRecordKeys(), &heldRecordKeys()}) {
        for (const ExpectedRecord& record : *table) {
            if (record.name == name)
                return &record;
        }
    }
    return nullptr;
}

std::string defaultWritten(const ExpectedRecord& record)
{
    return printed(defaultTree(record));
}

recordtest::Json filledDocument(const ExpectedRecord& record, int seed)
{
    return recordtest::Json(filledTree(record, seed, false));
}

std::string filledWritten(const ExpectedRecord& record, int seed)
{
    return printed(filledTree(record, seed, true));
}

recordtest::Json otherTypeDocument(const ExpectedRecord& record)
{
    return recordtest::Json(otherTypeTree(record, false));
}

std::string otherTypeWritten(const ExpectedRecord& record)
{
    return printed(otherTypeTree(record, true));
}

void toggleKeyCase(cJSON* json)
{
    for (cJSON* child = json != nullptr ? json->child : nullptr; child != nullptr; child = child->next) {
        if (child->string != nullptr && (child->type & cJSON_StringIsConst) == 0) {
            for (char* c = child->string; *c != '\0'; ++c) {
                const unsigned char letter = static_cast<unsigned char>(*c);
                *c = static_cast<char>(std::isupper(letter) ? std::tolower(letter) : std::toupper(letter));
            }
        }
        toggleKeyCase(child);
    }
}

std::unordered_set<std::string> presentNames(const ExpectedRecord& record)
{
    std::unordered_set<std::string> names;
    if (record.listFromOwnNode)
        return names;
    for (const Key& key : record.keys)
        names.insert(key.presentName.empty() ? key.name : key.presentName);
    return names;
}

const Key* firstKeyOf(const ExpectedRecord& record, Kind kind)
{
    for (const Key& key : record.keys) {
        if (key.kind == kind)
            return &key;
    }
    return nullptr;
}

bool isList(Kind kind)
{
    return kind == Kind::StringList || kind == Kind::IntegerList || kind == Kind::RecordList;
}

const Key* firstListKeyOf(const ExpectedRecord& record)
{
    for (const Key& key : record.keys) {
        if (isList(key.kind))
            return &key;
    }
    return nullptr;
}

bool readsWhatItWrites(const ExpectedRecord& record)
{
    if (record.listFromOwnNode)
        return false;
    for (const Key& key : record.keys) {
        if (key.kind == Kind::Int64Text || key.kind == Kind::ReadOnlyString)
            return false;
        if (!key.element.empty() && !readsWhatItWrites(expected(key.element)))
            return false;
    }
    return true;
}

} // namespace recordkeys
