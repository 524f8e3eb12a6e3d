// Every record, filled with values other than its defaults, survives write, print, parse
// and read, and its copy equals it; deeply nested answers never crash its reading. Filling and comparing walk each record's own field
// table, so a new record needs only its name in the list below.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <type_traits>

#include "JSONStruct/Capability/CapabilityJSONStruct.h"
#include "JSONStruct/PassThrough/NxrpcPassThroughJSONStruct.h"
#include "JSONStruct/Switch/SwitchJSONStruct.h"
#include "JSONStruct/Topology/TopologyJSONStruct.h"
#include "DeepJson.h"
#include "JSONStruct/HTTP/HTTPCommonJSONStruct.h"
#include "RecordTestSupport.h"

namespace {

template <class Record>
void fillRecord(Record& record, int seed);

template <class Decl>
void fillValue(std::string& value, const Decl& decl, int seed)
{
    // Quotes, a backslash, a slash and a two-byte character test the escaping too.
    value = std::string(decl.key) + "=\"\\/\xC3\xA9" + std::to_string(seed);
}

template <class Decl>
void fillValue(int32_t& value, const Decl& decl, int seed)
{
    // A field written as a boolean comes back as 1, the one non-zero value that survives.
    value = decl.writeRule == protocol::detail::WriteRule::Boolean ? (value == 1 ? 0 : 1) : 100000 + seed;
}

template <class Decl>
void fillValue(bool& value, const Decl&, int)
{
    value = !value;
}

template <class Decl>
void fillValue(double& value, const Decl&, int seed)
{
    value = 0.5 + seed;
}

template <class T, class Decl>
std::enable_if_t<protocol::detail::kIsRecord<T>> fillValue(T& value, const Decl&, int seed)
{
    fillRecord(value, seed + 1);
}

template <class T, class Decl>
void fillValue(std::vector<T>& list, const Decl& decl, int seed)
{
    list.resize(2);
    int element = seed;
    for (T& value : list) {
        if constexpr (std::is_same_v<T, int32_t>)
            value = -7 * ++element;
        else
            fillValue(value, decl, ++element);
    }
}

template <class Record>
void fillRecord(Record& record, int seed)
{
    std::apply([&](const auto&... decl) { (fillValue(record.*decl.member, decl, seed++), ...); },
               Record::fieldTable());
}

template <class Record>
void expectSame(const Record& expected, const Record& actual, const std::string& path);

template <class T>
void expectSameValue(const T& expected, const T& actual, const std::string& path)
{
    if constexpr (protocol::detail::kIsRecord<T>) {
        expectSame(expected, actual, path);
    } else if constexpr (protocol::detail::kIsList<T>) {
        ASSERT_EQ(expected.size(), actual.size()) << path;
        for (size_t i = 0; i < expected.size(); ++i)
            expectSameValue(expected[i], actual[i], path + "[" + std::to_string(i) + "]");
    } else {
        EXPECT_EQ(expected, actual) << path;
    }
}

template <class Record>
void expectSame(const Record& expected, const Record& actual, const std::string& path)
{
    std::apply([&](const auto&... decl) {
        (expectSameValue(expected.*decl.member, actual.*decl.member, path + "." + decl.key), ...);
    }, Record::fieldTable());
}

// What a reader of the written text ends up with: the filled record, except that a field
// read from another key than it is written under keeps its default, at every level.
template <class Record>
void forgetFieldsReadElsewhere(Record& record);

template <class T>
void forgetInValue(T& value)
{
    if constexpr (protocol::detail::kIsRecord<T>) {
        forgetFieldsReadElsewhere(value);
    } else if constexpr (protocol::detail::kIsList<T>) {
        for (auto& element : value)
            forgetInValue(element);
    }
}

template <class Record>
void forgetFieldsReadElsewhere(Record& record)
{
    const Record defaults;
    std::apply([&](const auto&... decl) {
        ((decl.readKey != nullptr ? void(record.*decl.member = defaults.*decl.member)
                                  : forgetInValue(record.*decl.member)),
         ...);
    }, Record::fieldTable());
}

template <class T>
bool sameValue(const T& left, const T& right)
{
    if constexpr (protocol::detail::kIsRecord<T>) {
        return std::apply([&](const auto&... decl) { return (sameValue(left.*decl.member, right.*decl.member) && ...); },
                          T::fieldTable());
    } else if constexpr (protocol::detail::kIsList<T>) {
        if (left.size() != right.size())
            return false;
        for (size_t i = 0; i < left.size(); ++i) {
            if (!sameValue(left[i], right[i]))
                return false;
        }
        return true;
    } else {
        return left == right;
    }
}

template <class T>
void expectDiffers(const T& filled, const T& defaults, const char* key)
{
    EXPECT_FALSE(sameValue(filled, defaults)) << key;
}

template <class Record>
std::unordered_set<std::string> expectedPresentKeys()
{
    std::unordered_set<std::string> keys;
    std::apply([&](const auto&... decl) {
        ((decl.readKey == nullptr ? void(keys.insert(decl.presentName())) : void()), ...);
    }, Record::fieldTable());
    return keys;
}

} // namespace

template <class Record>
class RecordRoundTrip : public ::testing::Test {};

using AllRecords = ::testing::Types<
    protocol::NxrpcPassThroughReq, protocol::NxrpcPassThroughRsp, protocol::NxrpcPassThroughRspData,
    protocol::SwitchCapabilities, protocol::Capabilities, protocol::CapabilitiesData,
    protocol::VideoCapabilities, protocol::PanicAlarmCapabilities, protocol::SecurityCPCapabilities,
    protocol::SoftHardwareCapabilities, protocol::ChannelDetectorCap, protocol::DetectorCapability,
    protocol::CapabilitiesQueryCondition, protocol::CloudP2PCapabilities,
    protocol::PeerNode, protocol::PortNode, protocol::PortDevice, protocol::Line, protocol::DeviceNode,
    protocol::SwitchPort, protocol::SwitchAlarm, protocol::DeviceNodeListData, protocol::LineListData,
    protocol::PortListData, protocol::SwitchAlarmListData, protocol::TopologyParam, protocol::QueryCondition,
    protocol::RefreshCondition, protocol::ResetPercent, protocol::RootNode, protocol::GatewayNode,
    protocol::PortSecurity, protocol::Progress, protocol::ProgressData, protocol::PortSecurityRsp,
    recordtest::KindSampler>;
TYPED_TEST_SUITE(RecordRoundTrip, AllRecords);

TYPED_TEST(RecordRoundTrip, FilledRecordSurvivesWritePrintParseRead)
{
    TypeParam filled;
    fillRecord(filled, 1);

    recordtest::Json written(filled.toJSON());
    ASSERT_NE(written, nullptr);
    char* printed = cJSON_Print(written.get());
    ASSERT_NE(printed, nullptr);
    const std::string text = printed;
    cJSON_free(printed);

    recordtest::Json parsed = recordtest::parse(text);
    ASSERT_NE(parsed, nullptr) << text;
    TypeParam readBack;
    readBack.fromJSON(parsed.get());

    TypeParam expected(filled);
    forgetFieldsReadElsewhere(expected);
    expectSame(expected, readBack, "record");
    EXPECT_EQ(readBack.presentKeys, expectedPresentKeys<TypeParam>());
}

TYPED_TEST(RecordRoundTrip, FilledValuesDifferFromTheDefaults)
{
    TypeParam filled;
    fillRecord(filled, 1);
    const TypeParam defaults;
    std::apply([&](const auto&... decl) {
        (expectDiffers(filled.*decl.member, defaults.*decl.member, decl.key), ...);
    }, TypeParam::fieldTable());
}

TYPED_TEST(RecordRoundTrip, CopyEqualsTheOriginal)
{
    TypeParam filled;
    fillRecord(filled, 3);
    recordtest::Json json(filled.toJSON());
    filled.fromJSON(json.get());
    filled.ignoreItems = {"none"};

    const TypeParam copy(filled);
    expectSame(filled, copy, "copy");
    EXPECT_EQ(copy.presentKeys, filled.presentKeys);
    EXPECT_EQ(copy.ignoreItems, filled.ignoreItems);

    TypeParam assigned;
    assigned = filled;
    expectSame(filled, assigned, "assigned");
    EXPECT_EQ(assigned.presentKeys, filled.presentKeys);
}

// Every record behind each envelope, and read straight from the tree, with answers nested far
// deeper than the record and with a deep value under each of its keys: refused with a log
// line or read, never a crash, on the GUI thread and on a pool thread with a small stack.
template <class Record>
std::string deepValueUnderEachKey()
{
    // The answer, the record and the value: as deep as the envelopes allow.
    std::string object = "{";
    std::apply(
        [&](const auto&... decl) {
            ((object += (object.size() > 1 ? ",\"" : "\"") + std::string(decl.key) + "\":" +
                        recordtest::nestedArrays(CJSON_NESTING_LIMIT - 2)),
             ...);
        },
        Record::fieldTable());
    return object + "}";
}

template <class Record>
void readDeepAnswers()
{
    struct Case {
        std::string text;
        bool read;
    };
    const Case cases[] = {
        {recordtest::nestedObjects(100000), false},
        {recordtest::answerWithData(recordtest::nestedObjects(100000)), false},
        {recordtest::answerWithData(recordtest::nestedArrays(100000)), false},
        {recordtest::answerWithData(deepValueUnderEachKey<Record>()), true},
    };
    for (const Case& c : cases) {
        recordtest::LogCapture log;
        int refused = 0;
        recordtest::Json tree = recordtest::parse(c.text);
        Record direct;
        direct.fromJSON(tree.get());
        recordtest::Json written(direct.toJSON());
        EXPECT_NE(written, nullptr);
        if constexpr (std::is_base_of_v<protocol::IReturnData, Record>) {
            protocol::ReturnData service(std::make_shared<Record>());
            refused += !service.Parse(c.text);
            protocol::ReturnDataForVideoWall wall(std::make_shared<Record>());
            refused += !wall.Parse(c.text);
            protocol::RJReturnData rapid(std::make_shared<protocol::RJRecordAdapter>(std::make_shared<Record>()));
            refused += !rapid.parse(c.text);
            service.Serialize();
            rapid.Serialize();
            EXPECT_EQ(refused, c.read ? 0 : 3);
            EXPECT_EQ(log.errors().size(), c.read ? 0u : 3u);
        }
        EXPECT_EQ(tree == nullptr, !c.read);
    }
}

TYPED_TEST(RecordRoundTrip, DeeplyNestedAnswersAreRefusedOrReadWithoutACrash)
{
    readDeepAnswers<TypeParam>();
    recordtest::runOnPoolThread(readDeepAnswers<TypeParam>);
}
