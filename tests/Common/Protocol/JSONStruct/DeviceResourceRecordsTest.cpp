// The device, resource, resource query and capability records against the services' table
// of their keys (DeviceResourceRecordKeys.cpp): every record writes the keys, kinds and
// defaults of the table in its order, reads every key back, finds keys in another case and
// notes them under its own names; and the frame's edge cases on one record of each family.
#include <gtest/gtest.h>

#include <cctype>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <unordered_set>
#include <utility>
#include <vector>

#include "DeviceResourceRecordKeys.h"
#include "DeviceResourceRecordList.h"
#include "RecordTestSupport.h"

using namespace recordtest;

namespace {

// ---- The table ------------------------------------------------------------------------

const ExpectedRecord& expectedRecord(const std::string& name)
{
    static const std::map<std::string, const ExpectedRecord*> byName = [] {
        std::map<std::string, const ExpectedRecord*> map;
        for (const ExpectedRecord& record : expectedDeviceResourceRecords())
            map[record.name] = &record;
        return map;
    }();
    const auto it = byName.find(name);
    if (it == byName.end())
        throw std::runtime_error("no expected keys for " + name);
    return *it->second;
}

// The kind without the name it is read under ("i<iKey" gives "i").
std::string kindOf(const ExpectedKey& key)
{
    const std::string kind = key.kind;
    return kind.substr(0, kind.find('<'));
}

// The key a document carries for the field: the one it is read under.
std::string documentKey(const ExpectedKey& key)
{
    const std::string kind = key.kind;
    const size_t mark = kind.find('<');
    return mark == std::string::npos ? std::string(key.key) : kind.substr(mark + 1);
}

// "X" of "[X]" or "{X}".
std::string recordOfKind(const std::string& kind)
{
    return kind.substr(1, kind.size() - 2);
}

bool isRecordKind(const std::string& kind)
{
    return (kind.front() == '[' || kind.front() == '{') && kind != "[s]" && kind != "[i]";
}

Json parsedDefault(const ExpectedKey& key)
{
    return parse(key.defaultValue);
}

cJSON* defaultObject(const std::string& recordName);

// The JSON that a default record writes for the key.
cJSON* defaultItem(const ExpectedKey& key)
{
    const std::string kind = kindOf(key);
    if (kind == "s")
        return key.defaultValue ? cJSON_Duplicate(parsedDefault(key).get(), 1) : cJSON_CreateString("");
    if (kind == "i")
        return key.defaultValue ? cJSON_Duplicate(parsedDefault(key).get(), 1) : cJSON_CreateNumber(0);
    if (kind == "b" || kind == "n")
        return key.defaultValue ? cJSON_Duplicate(parsedDefault(key).get(), 1) : cJSON_CreateFalse();
    if (kind == "i>b")
        return cJSON_CreateBool(key.defaultValue ? parsedDefault(key)->valueint != 0 : false);
    if (kind.front() == '[')
        return cJSON_CreateArray();
    return defaultObject(recordOfKind(kind));
}

cJSON* defaultObject(const std::string& recordName)
{
    cJSON* object = cJSON_CreateObject();
    for (const ExpectedKey& key : expectedRecord(recordName).keys)
        cJSON_AddItemToObject(object, key.key, defaultItem(key));
    return object;
}

std::string upperCase(std::string text)
{
    for (char& c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

// A document with every key set to a value other than its default, and what the record
// writes after reading it. `upper` writes the document's keys in capitals at every level.
struct Sample {
    Json document;
    Json written;
};

Sample sampleOf(const std::string& recordName, int seed, bool upper);

void addSampleValue(const ExpectedKey& key, int seed, bool upper, cJSON* document, cJSON* written)
{
    const std::string kind = kindOf(key);
    const std::string name = upper ? upperCase(documentKey(key)) : documentKey(key);
    cJSON* in = nullptr;
    cJSON* out = nullptr;
    if (kind == "s") {
        // Quotes, a backslash and a two-byte character test the escaping too.
        const std::string value = std::string(key.key) + "=\"\\\xC3\xA9" + std::to_string(seed);
        in = cJSON_CreateString(value.c_str());
        out = cJSON_CreateString(value.c_str());
    } else if (kind == "i") {
        const int value = (key.defaultValue ? parsedDefault(key)->valueint : 0) + 1000 + seed;
        in = cJSON_CreateNumber(value);
        out = cJSON_CreateNumber(value);
    } else if (kind == "b") {
        const bool value = !(key.defaultValue && cJSON_IsTrue(parsedDefault(key).get()));
        in = cJSON_CreateBool(value);
        out = cJSON_CreateBool(value);
    } else if (kind == "n") {
        // 2 is true only for this kind.
        in = cJSON_CreateNumber(2);
        out = cJSON_CreateTrue();
    } else if (kind == "i>b") {
        const bool defaultTrue = key.defaultValue && parsedDefault(key)->valueint != 0;
        in = cJSON_CreateNumber(defaultTrue ? 0 : 5);
        out = cJSON_CreateBool(!defaultTrue);
    } else if (kind == "[s]") {
        in = cJSON_CreateArray();
        out = cJSON_CreateArray();
        for (int i = 0; i < 2; ++i) {
            const std::string value = "item" + std::to_string(seed + i);
            cJSON_AddItemToArray(in, cJSON_CreateString(value.c_str()));
            cJSON_AddItemToArray(out, cJSON_CreateString(value.c_str()));
        }
    } else if (kind == "[i]") {
        in = cJSON_CreateArray();
        out = cJSON_CreateArray();
        for (int value : {seed, -seed - 7}) {
            cJSON_AddItemToArray(in, cJSON_CreateNumber(value));
            cJSON_AddItemToArray(out, cJSON_CreateNumber(value));
        }
    } else if (kind.front() == '[') {
        in = cJSON_CreateArray();
        out = cJSON_CreateArray();
        for (int i = 1; i <= 2; ++i) {
            Sample element = sampleOf(recordOfKind(kind), seed * 10 + i, upper);
            cJSON_AddItemToArray(in, element.document.release());
            cJSON_AddItemToArray(out, element.written.release());
        }
    } else {
        Sample nested = sampleOf(recordOfKind(kind), seed * 10 + 1, upper);
        in = nested.document.release();
        out = nested.written.release();
    }
    cJSON_AddItemToObject(document, name.c_str(), in);
    cJSON_AddItemToObject(written, key.key, out);
}

Sample sampleOf(const std::string& recordName, int seed, bool upper)
{
    Sample sample{Json(cJSON_CreateObject()), Json(cJSON_CreateObject())};
    for (const ExpectedKey& key : expectedRecord(recordName).keys)
        addSampleValue(key, ++seed, upper, sample.document.get(), sample.written.get());
    return sample;
}

std::unordered_set<std::string> documentKeys(const std::string& recordName)
{
    std::unordered_set<std::string> keys;
    for (const ExpectedKey& key : expectedRecord(recordName).keys)
        keys.insert(documentKey(key));
    return keys;
}

// ---- Every record by name --------------------------------------------------------------

template <class T>
struct RecordName;
#define DEVICE_RESOURCE_NAME(Record)                                                     \
    template <>                                                                          \
    struct RecordName<protocol::Record> {                                                \
        static constexpr const char* value = #Record;                                    \
    };
DEVICE_RESOURCE_RECORDS(DEVICE_RESOURCE_NAME)
DEVICE_RESOURCE_NAME(SwitchPort)
#undef DEVICE_RESOURCE_NAME

struct RecordMaker {
    std::function<std::shared_ptr<protocol::IJSONStruct>()> make;
    std::string rootName;               // empty for response and nested records
    bool inbound = false;
};

template <class Record>
RecordMaker makerOf()
{
    RecordMaker maker;
    maker.make = [] { return std::make_shared<Record>(); };
    if constexpr (std::is_base_of_v<protocol::IInboundData, Record>) {
        maker.inbound = true;
        maker.rootName = Record().rootName();
    }
    return maker;
}

const std::map<std::string, RecordMaker>& makers()
{
    static const std::map<std::string, RecordMaker> map = {
#define DEVICE_RESOURCE_MAKER(Record) {#Record, makerOf<protocol::Record>()},
        DEVICE_RESOURCE_RECORDS(DEVICE_RESOURCE_MAKER)
        DEVICE_RESOURCE_MAKER(SwitchPort)
#undef DEVICE_RESOURCE_MAKER
    };
    return map;
}

std::vector<std::string> keysOf(const cJSON* object)
{
    std::vector<std::string> keys;
    for (const cJSON* item = object->child; item != nullptr; item = item->next)
        keys.emplace_back(item->string);
    return keys;
}

// What the record writes for `key` after reading {"<readKey>": valueText}.
std::string writtenAfterReading(const std::string& recordName, const ExpectedKey& key, const std::string& valueText)
{
    std::shared_ptr<protocol::IJSONStruct> record = makers().at(recordName).make();
    Json document = parse("{}");
    cJSON_AddItemToObject(document.get(), documentKey(key).c_str(), parse(valueText).release());
    record->fromJSON(document.get());
    Json json(record->toJSON());
    return print(cJSON_GetObjectItemCaseSensitive(json.get(), key.key));
}

} // namespace

// ---- Every record, typed ---------------------------------------------------------------

template <class Record>
class DeviceResourceRecord : public ::testing::Test {
protected:
    static const char* name() { return RecordName<Record>::value; }
};

#define DEVICE_RESOURCE_TYPE(Record) protocol::Record,
using DeviceResourceRecords = ::testing::Types<DEVICE_RESOURCE_RECORDS(DEVICE_RESOURCE_TYPE) protocol::SwitchPort>;
#undef DEVICE_RESOURCE_TYPE

class DeviceResourceRecordNames {
public:
    template <class Record>
    static std::string GetName(int)
    {
        return RecordName<Record>::value;
    }
};
TYPED_TEST_SUITE(DeviceResourceRecord, DeviceResourceRecords, DeviceResourceRecordNames);

TYPED_TEST(DeviceResourceRecord, DefaultRecordWritesEveryKeyInOrderWithItsDefault)
{
    TypeParam record;
    Json expected(defaultObject(this->name()));
    EXPECT_EQ(written(record), print(expected.get()));
    EXPECT_TRUE(record.presentKeys.empty());
}

TYPED_TEST(DeviceResourceRecord, EveryKeySetToAnotherValueReadsBack)
{
    const Sample sample = sampleOf(this->name(), 0, false);
    TypeParam record(sample.document.get());
    EXPECT_EQ(written(record), print(sample.written.get()));
    EXPECT_EQ(record.presentKeys, documentKeys(this->name()));

    // The defaults are truly left behind: the sample differs from them in every key.
    Json defaults(defaultObject(this->name()));
    for (const cJSON* item = defaults->child; item != nullptr; item = item->next)
        EXPECT_NE(print(item), print(cJSON_GetObjectItemCaseSensitive(sample.written.get(), item->string)))
            << item->string;
}

TYPED_TEST(DeviceResourceRecord, KeysInAnotherCaseAreFoundAndNotedUnderTheirOwnNames)
{
    const Sample sample = sampleOf(this->name(), 0, true);
    TypeParam record;
    record.fromJSON(sample.document.get());
    EXPECT_EQ(written(record), print(sample.written.get()));
    EXPECT_EQ(record.presentKeys, documentKeys(this->name()));
}

TYPED_TEST(DeviceResourceRecord, CopyCarriesValuesAndPresentKeys)
{
    const Sample sample = sampleOf(this->name(), 3, false);
    TypeParam record(sample.document.get());
    record.ignoreItems = {"none"};
    const TypeParam copy(record);
    EXPECT_EQ(written(const_cast<TypeParam&>(copy)), print(sample.written.get()));
    EXPECT_EQ(copy.presentKeys, record.presentKeys);
    EXPECT_EQ(copy.ignoreItems, record.ignoreItems);
}

// ---- The key table ---------------------------------------------------------------------

TEST(DeviceResourceKeyTable, EveryRecordOfTheTableExistsWithItsBaseAndRootName)
{
    for (const ExpectedRecord& expected : expectedDeviceResourceRecords()) {
        SCOPED_TRACE(expected.name);
        const auto it = makers().find(expected.name);
        ASSERT_NE(it, makers().end());
        EXPECT_EQ(it->second.inbound, expected.rootName != nullptr);
        EXPECT_EQ(it->second.rootName, expected.rootName ? expected.rootName : "");
    }
    EXPECT_EQ(makers().size(), expectedDeviceResourceRecords().size());
}

TEST(DeviceResourceKeyTable, EveryRecordWritesTheKeysOfTheTableInItsOrder)
{
    for (const ExpectedRecord& expected : expectedDeviceResourceRecords()) {
        std::vector<std::string> keys;
        for (const ExpectedKey& key : expected.keys)
            keys.emplace_back(key.key);
        std::shared_ptr<protocol::IJSONStruct> record = makers().at(expected.name).make();
        Json json(record->toJSON());
        EXPECT_EQ(keysOf(json.get()), keys) << expected.name;
    }
}

TEST(DeviceResourceKeyTable, EveryKeyIsReadAndWrittenByTheRuleOfItsKind)
{
    for (const ExpectedRecord& expected : expectedDeviceResourceRecords()) {
        for (const ExpectedKey& key : expected.keys) {
            SCOPED_TRACE(std::string(expected.name) + "." + key.key + " " + key.kind);
            const std::string kind = kindOf(key);
            std::vector<std::pair<std::string, std::string>> cases;
            if (kind == "s")
                cases = {{"\"zz\"", "\"zz\""}, {"5", "\"\""}};
            else if (kind == "i")
                cases = {{"7.9", "7"}, {"true", "1"}, {"\"3\"", "0"}};
            else if (kind == "b")
                cases = {{"2", "false"}, {"1", "true"}, {"true", "true"}};
            else if (kind == "n")
                cases = {{"2", "true"}, {"-1", "true"}, {"0", "false"}};
            else if (kind == "i>b")
                cases = {{"0", "false"}, {"5", "true"}, {"-1", "true"}};
            else if (kind == "[s]")
                cases = {{"[\"a\"]", "[\"a\"]"}, {"[1]", "[\"\"]"}};
            else if (kind == "[i]")
                cases = {{"[3]", "[3]"}, {"[\"a\"]", "[0]"}};
            else if (isRecordKind(kind) && kind.front() == '[') {
                Json element(defaultObject(recordOfKind(kind)));
                cases = {{"[{}]", "[" + print(element.get()) + "]"}, {"[]", "[]"}};
            } else if (isRecordKind(kind)) {
                Json object(defaultObject(recordOfKind(kind)));
                cases = {{"{}", print(object.get())}, {"5", print(object.get())}};
            } else {
                ADD_FAILURE() << "unknown kind";
            }
            for (const auto& [in, out] : cases)
                EXPECT_EQ(writtenAfterReading(expected.name, key, in), out) << in;
        }
    }
}

// ---- The frame's edge cases, once per family ---------------------------------------------

TEST(DeviceResourceEdgeCases, KeyInCapitalsFillsTheFieldAndIsNotedUnderTheRecordsName)
{
    protocol::Channel channel;
    read(channel, R"({"GUID":"a"})");
    EXPECT_EQ(channel.guid, "a");
    EXPECT_EQ(channel.presentKeys, (std::unordered_set<std::string>{"guid"}));

    protocol::DeviceResponse device;
    read(device, R"({"GUID":"b","SUPPORTPTZ":3})");
    EXPECT_EQ(device.guid, "b");
    EXPECT_TRUE(device.supportPtz);
    EXPECT_EQ(device.presentKeys, (std::unordered_set<std::string>{"guid", "supportPtz"}));

    protocol::ChannelAndDeviceInfoRsp query;
    read(query, R"({"Channel":{"Guid":"c"}})");
    EXPECT_EQ(query.channel.guid, "c");
    EXPECT_EQ(query.presentKeys, (std::unordered_set<std::string>{"channel"}));
}

TEST(DeviceResourceEdgeCases, FirstMemberThatDiffersOnlyInCaseWins)
{
    protocol::DeviceResponse device;
    read(device, R"({"Alias":"first","alias":"second","ALIAS":"third"})");
    EXPECT_EQ(device.alias, "first");
    protocol::Door door;
    read(door, R"({"name":"a","NAME":"b"})");
    EXPECT_EQ(door.name, "a");
}

TEST(DeviceResourceEdgeCases, IntegerFromStringIsZeroButPresent)
{
    protocol::Channel channel;
    channel.no = 4;
    read(channel, R"({"no":"7"})");
    EXPECT_EQ(channel.no, 0);
    EXPECT_EQ(channel.presentKeys.count("no"), 1u);

    protocol::DeviceResponse device;
    read(device, R"({"liveStreamingTime":"7"})");
    EXPECT_EQ(device.liveStreamingTime, 0);
    EXPECT_EQ(device.presentKeys.count("liveStreamingTime"), 1u);
}

TEST(DeviceResourceEdgeCases, BooleanIsTrueOnlyForTrueAndOneButNonZeroKindsTakeAnyNumber)
{
    const std::pair<const char*, bool> cases[] = {{"2", false}, {"1", true}, {"true", true}, {"\"true\"", false}};
    for (const auto& [value, expected] : cases) {
        protocol::Channel channel;
        read(channel, std::string(R"({"enable":)") + value + "}");
        EXPECT_EQ(channel.enable, expected) << value;
        protocol::ChannelsAndDeviceInfoRsp query;
        read(query, std::string(R"({"channelList":[{"online":)") + value + "}]}");
        ASSERT_EQ(query.channelList.size(), 1u);
        EXPECT_EQ(query.channelList[0].online, expected) << value;
    }
    protocol::DeviceResponse device;
    read(device, R"({"supportPtz":2,"supportWeb":2,"isOnline":2})");
    EXPECT_TRUE(device.supportPtz);
    EXPECT_FALSE(device.supportWeb);
    EXPECT_FALSE(device.isOnline);
}

TEST(DeviceResourceEdgeCases, NullChangesNothingAndEmptyObjectEmptiesOnlyTheLists)
{
    protocol::DeviceResponse device;
    read(device, R"({"alias":"a","port":8000,"channelList":[{},{}],"videoLevel":[1,2],"deviceUpgrade":{"state":3}})");
    device.fromJSON(nullptr);
    EXPECT_EQ(device.alias, "a");
    EXPECT_EQ(device.channelList.size(), 2u);
    EXPECT_EQ(device.videoLevel.size(), 2u);
    read(device, "{}");
    EXPECT_EQ(device.alias, "a");
    EXPECT_EQ(device.port, 8000);
    EXPECT_EQ(device.deviceUpgrade.state, 3);
    EXPECT_TRUE(device.channelList.empty());
    EXPECT_TRUE(device.videoLevel.empty());

    protocol::TaskInfo task;
    read(task, R"({"name":"t","ruleInfoList":[{"id":"r"}]})");
    task.fromJSON(nullptr);
    EXPECT_EQ(task.ruleInfoList.size(), 1u);
    read(task, "{}");
    EXPECT_EQ(task.name, "t");
    EXPECT_TRUE(task.ruleInfoList.empty());

    protocol::ChannelsAndDeviceInfoRsp query;
    read(query, R"({"channelList":[{"no":1}],"deviceNameInfo":{"alias":"d"}})");
    query.fromJSON(nullptr);
    EXPECT_EQ(query.channelList.size(), 1u);
    read(query, "{}");
    EXPECT_TRUE(query.channelList.empty());
    EXPECT_EQ(query.deviceNameInfo.alias, "d");
}

TEST(DeviceResourceEdgeCases, ListFromANodeThatIsNoArrayWalksItsChildren)
{
    protocol::PartitionZoneInfo partition;
    read(partition, R"({"zoneList":{"a":{"no":1},"b":{"no":2}}})");
    ASSERT_EQ(partition.zoneList.size(), 2u);
    EXPECT_EQ(partition.zoneList[1].no, 2);
    read(partition, R"({"zoneList":5})");
    EXPECT_TRUE(partition.zoneList.empty());
    EXPECT_EQ(partition.presentKeys.count("zoneList"), 1u);
}

TEST(DeviceResourceEdgeCases, DefaultRecordWritesEmptyListsAsArrays)
{
    protocol::DeviceResponse device;
    Json json(device.toJSON());
    EXPECT_EQ(print(cJSON_GetObjectItemCaseSensitive(json.get(), "channelList")), "[]");
    EXPECT_EQ(print(cJSON_GetObjectItemCaseSensitive(json.get(), "videoLevel")), "[]");
    protocol::AlarmOutputInfo outputs;
    EXPECT_EQ(written(outputs), R"({"alarmOutputParamList":[]})");
    protocol::ChannelsAndDeviceInfoRsp query;
    EXPECT_EQ(written(query), R"({"channelList":[],"deviceNameInfo":{"alias":"","deviceCategory":0}})");
}

TEST(DeviceResourceEdgeCases, KeepOnlyFilterStillWritesEveryElementOfAList)
{
    protocol::DeviceResponse device;
    read(device, R"({"alias":"a","portList":[{"no":1},{"no":2}]})");
    device.ignoreMode = 1;
    device.ignoreItems = {"portList"};
    EXPECT_EQ(written(device), R"({"portList":[{"guid":"","name":"","no":1,"type":0},{"guid":"","name":"","no":2,"type":0}]})");

    protocol::PartitionZoneInfo partition;
    read(partition, R"({"zoneList":[{"no":1}]})");
    partition.ignoreMode = 1;
    partition.ignoreItems = {"zoneList"};
    Json json(partition.toJSON());
    ASSERT_EQ(cJSON_GetArraySize(cJSON_GetObjectItemCaseSensitive(json.get(), "zoneList")), 1);

    protocol::ChannelsAndDeviceInfoRsp query;
    query.channelList.resize(2);
    query.ignoreItems = {"deviceNameInfo"};
    Json queryJson(query.toJSON());
    EXPECT_EQ(keysOf(queryJson.get()), (std::vector<std::string>{"channelList"}));
    EXPECT_EQ(cJSON_GetArraySize(cJSON_GetObjectItemCaseSensitive(queryJson.get(), "channelList")), 2);
}

TEST(DeviceResourceEdgeCases, DeviceAnswerDefaultsAndTheLoginIdWrittenAsABoolean)
{
    const protocol::DeviceResponse device;
    EXPECT_TRUE(device.showClientRemote);
    EXPECT_TRUE(device.securityHasSet);
    EXPECT_EQ(device.maxPatrolSequenceNum, 32);
    EXPECT_EQ(device.minPatrolSequenceDelay, 15);
    EXPECT_EQ(device.maxPatrolSequenceDelay, 30);
    EXPECT_EQ(device.defaultPatrolSequenceDelay, 25);
    EXPECT_EQ(device.liveStreamingTime, -1);

    protocol::DeviceExistedResult existed;
    EXPECT_EQ(existed.loginID, -1);
    EXPECT_EQ(written(existed), R"({"guid":"","logined":false,"loginID":true})");
    read(existed, R"({"loginID":7})");
    EXPECT_EQ(existed.loginID, 7);
    read(existed, R"({"loginID":0})");
    EXPECT_EQ(written(existed), R"({"guid":"","logined":false,"loginID":false})");
}

TEST(DeviceResourceEdgeCases, VideoInputCountIsReadFromItsOtherKeyAndLostOnTheWayBack)
{
    protocol::SoftHardwareCapabilities capabilities;
    read(capabilities, R"({"iVideoInNum":4})");
    EXPECT_EQ(capabilities.videoInNum, 4);
    protocol::SoftHardwareCapabilities again;
    read(again, written(capabilities));
    EXPECT_EQ(again.videoInNum, 0);
}
