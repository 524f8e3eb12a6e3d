// The keys a record found behave as a std::unordered_set<std::string> in every use: by
// hand, after reading, across copies and moves, past the bits, and from two threads.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <type_traits>
#include <unordered_set>
#include <utility>
#include <vector>

#include "JSONStruct/Device/DeviceJSONStruct.h"
#include "JSONStruct/PassThrough/NxrpcPassThroughJSONStruct.h"
#include "JSONStruct/PresentKeys.h"
#include "JSONStruct/Resource/ResourceJSONStruct.h"
#include "JSONStruct/Topology/TopologyJSONStruct.h"
#include "RecordTestSupport.h"

using protocol::PresentKeys;
using recordtest::read;
using Set = std::unordered_set<std::string>;
using ::testing::UnorderedElementsAre;

static_assert(std::is_same_v<PresentKeys::value_type, std::string>);
static_assert(std::is_same_v<PresentKeys::key_type, std::string>);
static_assert(std::is_same_v<PresentKeys::size_type, Set::size_type>);
static_assert(std::is_same_v<PresentKeys::iterator, Set::iterator>);
static_assert(std::is_same_v<PresentKeys::const_iterator, Set::const_iterator>);
static_assert(std::is_same_v<decltype(protocol::IJSONStruct::presentKeys), PresentKeys>);

namespace {

// The keys of a channel read from a document that holds the given members.
protocol::Channel channelWith(const std::string& members)
{
    protocol::Channel channel;
    read(channel, "{" + members + "}");
    return channel;
}

const char* const kManyNames[] = {
    "n0", "n1", "n2", "n3", "n4", "n5", "n6", "n7", "n8", "n9",
};

} // namespace

TEST(PresentKeys, StartsEmpty)
{
    const PresentKeys keys;
    EXPECT_TRUE(keys.empty());
    EXPECT_EQ(keys.size(), 0u);
    EXPECT_EQ(keys.begin(), keys.end());
    EXPECT_EQ(keys, Set{});
}

TEST(PresentKeys, InsertFindEraseAndClearAsASet)
{
    PresentKeys keys;
    EXPECT_TRUE(keys.insert("a").second);
    EXPECT_FALSE(keys.insert(std::string("a")).second);
    EXPECT_TRUE(keys.emplace("b").second);
    keys.insert({"c", "d"});
    const std::vector<std::string> more = {"e", "a"};
    keys.insert(more.begin(), more.end());
    EXPECT_EQ(keys.size(), 5u);
    EXPECT_EQ(keys.count("c"), 1u);
    EXPECT_NE(keys.find("d"), keys.end());
    EXPECT_EQ(keys.find("z"), keys.end());

    EXPECT_EQ(keys.erase("c"), 1u);
    EXPECT_EQ(keys.erase("c"), 0u);
    keys.erase(keys.find("d"));
    EXPECT_EQ(keys, (Set{"a", "b", "e"}));

    keys.clear();
    EXPECT_TRUE(keys.empty());
}

TEST(PresentKeys, AssignedAndComparedAgainstAStandardSet)
{
    PresentKeys keys;
    keys = Set{"x", "y"};
    EXPECT_EQ(keys, (Set{"x", "y"}));
    EXPECT_EQ((Set{"y", "x"}), keys);
    EXPECT_NE(keys, (Set{"x"}));
    EXPECT_NE((Set{"x"}), keys);

    keys = {"z"};
    EXPECT_EQ(keys, Set{"z"});

    Set moved = {"m"};
    keys = std::move(moved);
    EXPECT_EQ(keys, Set{"m"});

    const PresentKeys fromSet = Set{"s"};
    const PresentKeys fromList = {"s"};
    EXPECT_EQ(fromSet, fromList);
}

TEST(PresentKeys, ConvertsToAndCopiesIntoAStandardSet)
{
    const protocol::Channel channel = channelWith(R"("guid":"g","no":3)");
    const Set& view = channel.presentKeys;
    EXPECT_EQ(view, (Set{"guid", "no"}));
    const Set copy = channel.presentKeys;
    EXPECT_EQ(copy, (Set{"guid", "no"}));
    Set direct(channel.presentKeys);
    EXPECT_EQ(direct, copy);
    EXPECT_EQ(&channel.presentKeys.keys(), &view);
}

TEST(PresentKeys, IteratesOverWhatWasRead)
{
    const protocol::Channel channel = channelWith(R"("guid":"g","name":"n","online":true)");
    Set seen;
    for (const std::string& key : channel.presentKeys)
        seen.insert(key);
    EXPECT_EQ(seen, (Set{"guid", "name", "online"}));
    EXPECT_EQ(static_cast<size_t>(std::distance(channel.presentKeys.cbegin(), channel.presentKeys.cend())), 3u);
    EXPECT_THAT(channel.presentKeys, UnorderedElementsAre("guid", "name", "online"));
}

TEST(PresentKeys, PrintsAsTheSetItStandsFor)
{
    const protocol::Channel channel = channelWith(R"("guid":"g")");
    EXPECT_EQ(::testing::PrintToString(channel.presentKeys), ::testing::PrintToString(Set{"guid"}));
}

TEST(PresentKeys, KeysOfBothEnginesAreNotedUnderTheirDeclaredNames)
{
    protocol::SwitchPort port;
    read(port, R"({"GUID":"g","no":1})");
    EXPECT_EQ(port.presentKeys, (Set{"guid", "no"}));

    protocol::NxrpcPassThroughReq request;
    read(request, R"({"operateType":1,"requestUrl":"/x"})");
    EXPECT_EQ(request.presentKeys, (Set{"OperateType", "requestUrl"}));
}

TEST(PresentKeys, ReadingTwiceAccumulatesAsASetWould)
{
    protocol::Channel channel;
    read(channel, R"({"guid":"g"})");
    read(channel, R"({"name":"n","guid":"h"})");
    EXPECT_EQ(channel.presentKeys, (Set{"guid", "name"}));

    // Once looked at, further reads still add to it.
    read(channel, R"({"no":2})");
    EXPECT_EQ(channel.presentKeys, (Set{"guid", "name", "no"}));
    read(channel, "{}");
    EXPECT_EQ(channel.presentKeys.size(), 3u);
}

TEST(PresentKeys, HandEditsMixWithKeysFromReading)
{
    protocol::Channel channel = channelWith(R"("guid":"g","no":1)");
    channel.presentKeys.insert("byHand");
    channel.presentKeys.erase("no");
    EXPECT_EQ(channel.presentKeys, (Set{"guid", "byHand"}));

    read(channel, R"({"no":1})");
    EXPECT_EQ(channel.presentKeys, (Set{"guid", "byHand", "no"}));

    channel.presentKeys.clear();
    read(channel, R"({"name":"n"})");
    EXPECT_EQ(channel.presentKeys, Set{"name"});

    channel.presentKeys = {"set"};
    read(channel, R"({"type":1})");
    EXPECT_EQ(channel.presentKeys, (Set{"set", "type"}));
}

TEST(PresentKeys, CopiesAndMovesOfARecordCarryTheKeys)
{
    const protocol::Channel channel = channelWith(R"("guid":"g","enable":true)");
    const Set expected = {"guid", "enable"};

    protocol::Channel copy(channel);
    EXPECT_EQ(copy.presentKeys, expected);
    protocol::Channel assigned;
    assigned = channel;
    EXPECT_EQ(assigned.presentKeys, expected);
    EXPECT_EQ(channel.presentKeys, expected);

    protocol::Channel moved(channelWith(R"("guid":"g","enable":true)"));
    EXPECT_EQ(moved.presentKeys, expected);
    protocol::Channel moveAssigned;
    moveAssigned = channelWith(R"("guid":"g","enable":true)");
    EXPECT_EQ(moveAssigned.presentKeys, expected);

    // A copy made before anyone looked is a set of its own.
    protocol::Channel source = channelWith(R"("no":1)");
    protocol::Channel early(source);
    source.presentKeys.insert("onlyInSource");
    read(early, R"({"name":"n"})");
    EXPECT_EQ(source.presentKeys, (Set{"no", "onlyInSource"}));
    EXPECT_EQ(early.presentKeys, (Set{"no", "name"}));
}

TEST(PresentKeys, CopyOfTheSetItselfAndSwap)
{
    protocol::Channel channel = channelWith(R"("guid":"g")");
    PresentKeys copy = channel.presentKeys;
    PresentKeys moved = std::move(channel.presentKeys);
    EXPECT_EQ(copy, moved);
    EXPECT_TRUE(channel.presentKeys.empty());

    PresentKeys other = {"o"};
    swap(copy, other);
    EXPECT_EQ(copy, Set{"o"});
    EXPECT_EQ(other, Set{"guid"});

    PresentKeys& alias = other;
    other = alias;
    EXPECT_EQ(other, Set{"guid"});
}

TEST(PresentKeys, RecordWithMoreFieldsThanOneWordOfBits)
{
    protocol::DeviceResponse device;
    read(device, R"({"guid":"g","supportPtz":1,"liveStreamingTime":5,"portList":[]})");
    EXPECT_EQ(device.presentKeys, (Set{"guid", "supportPtz", "liveStreamingTime", "portList"}));

    // Every key that the record writes is found again when it reads its own output.
    protocol::DeviceResponse defaults;
    recordtest::Json written(defaults.toJSON());
    protocol::DeviceResponse full;
    full.fromJSON(written.get());
    Set writtenKeys;
    for (const cJSON* member = written->child; member != nullptr; member = member->next)
        writtenKeys.insert(member->string);
    EXPECT_GT(writtenKeys.size(), 64u);
    EXPECT_EQ(full.presentKeys, writtenKeys);
}

TEST(PresentKeys, NamesPastTheBitsGoStraightIntoTheSet)
{
    std::vector<std::string> names;
    for (size_t i = 0; i < PresentKeys::kBitCapacity + 10; ++i)
        names.push_back("key" + std::to_string(i));
    std::vector<const char*> table;
    for (const std::string& name : names)
        table.push_back(name.c_str());

    PresentKeys keys;
    keys.noteFound(table.data(), 0);
    keys.noteFound(table.data(), PresentKeys::kBitCapacity - 1);
    keys.noteFound(table.data(), PresentKeys::kBitCapacity);
    keys.noteFound(table.data(), PresentKeys::kBitCapacity + 9);
    keys.noteFound(table.data(), PresentKeys::kBitCapacity + 9);
    EXPECT_EQ(keys, (Set{"key0", names[PresentKeys::kBitCapacity - 1], names[PresentKeys::kBitCapacity],
                         names[PresentKeys::kBitCapacity + 9]}));
}

TEST(PresentKeys, NotesAgainstASecondTableKeepTheFirst)
{
    const char* const otherNames[] = {"other0", "other1"};
    PresentKeys keys;
    keys.noteFound(kManyNames, 3);
    keys.noteFound(otherNames, 1);
    keys.noteFound(kManyNames, 9);
    EXPECT_EQ(keys, (Set{"n3", "other1", "n9"}));
}

TEST(PresentKeys, ConstLookupsFromTwoThreadsAtOnce)
{
    // Many records read and not yet looked at, so that both threads race for the first look.
    std::vector<protocol::Channel> channels(300);
    for (protocol::Channel& channel : channels)
        read(channel, R"({"guid":"g","name":"n","no":1,"online":true,"channelStatus":2})");
    const std::vector<protocol::Channel>& shared = channels;
    const Set expected = {"guid", "name", "no", "online", "channelStatus"};

    std::atomic<int> ready{0};
    auto look = [&](bool copyFirst, std::vector<int>* failures) {
        ready.fetch_add(1);
        while (ready.load() < 2) {
        }
        for (const protocol::Channel& channel : shared) {
            if (copyFirst) {
                const protocol::Channel copy(channel);
                if (copy.presentKeys != expected)
                    failures->push_back(1);
            }
            if (channel.presentKeys.count("guid") != 1 || channel.presentKeys.size() != expected.size())
                failures->push_back(2);
            size_t seen = 0;
            for (const std::string& key : channel.presentKeys)
                seen += expected.count(key);
            if (seen != expected.size())
                failures->push_back(3);
        }
    };
    std::vector<int> firstFailures;
    std::vector<int> secondFailures;
    std::thread first(look, false, &firstFailures);
    std::thread second(look, true, &secondFailures);
    first.join();
    second.join();
    EXPECT_TRUE(firstFailures.empty());
    EXPECT_TRUE(secondFailures.empty());
    for (const protocol::Channel& channel : channels)
        EXPECT_EQ(channel.presentKeys, expected);
}

TEST(PresentKeys, CopiesFromTwoThreadsOfOneRecordNotYetLookedAt)
{
    for (int round = 0; round < 200; ++round) {
        const protocol::DeviceResponse device = [] {
            protocol::DeviceResponse record;
            read(record, R"({"guid":"g","supportPtz":1,"alias":"a"})");
            return record;
        }();
        Set left;
        Set right;
        std::thread first([&] { left = protocol::DeviceResponse(device).presentKeys; });
        std::thread second([&] { right = device.presentKeys; });
        first.join();
        second.join();
        const Set expected = {"guid", "supportPtz", "alias"};
        ASSERT_EQ(left, expected);
        ASSERT_EQ(right, expected);
    }
}
