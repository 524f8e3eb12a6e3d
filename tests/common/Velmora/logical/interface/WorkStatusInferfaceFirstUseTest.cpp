// The first device of a process has batch support but its capability query fails: the walk
// then asks for -1 results per page, and each "MORE" moves the position back by one. Its own executable, so that the process-wide instance
// is fresh.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/LogCapture.h"
#include "WorkStateTestSupport.h"
#include "logical/interface/WorkStatusInferface.h"

namespace {

using velmora::WorkStatusInferface;
using namespace velmora::test;

TEST(WorkStatusInferfaceFirstUseTest, FailedCapabilityOnAFreshProcessWalksWithMinusOne)
{
    EmulatorProcess emulator("demo");
    ASSERT_TRUE(emulator.isRunning()) << emulator.errorString();
    const std::vector<std::string> batch = switches(emulator, true);
    ASSERT_FALSE(batch.empty());
    const std::string id = batch[0];
    LogCapture log;

    ASSERT_TRUE(emulator.setFault(id, kSearchCapabilityPath, EmulatorProcess::Fault::httpStatus(500)));
    WorkStatusInferface* access = WorkStatusInferface::getInstance();
    ASSERT_NE(access, nullptr);
    access->initMode(id, capabilities(true));
    const std::vector<LogLine> errors = log.lines("ERROR");
    ASSERT_FALSE(errors.empty());
    EXPECT_EQ(errors.back().message, "Failed to getSwitchesWorkStateSearchAbility");
    emulator.clearFaults();

    // The batch road stays on, with no page size known: the first page asks for -1 results
    // from position 0, which the device refuses.
    emulator.clearRequestLog();
    log.clear();
    Quillon::SwitchesWorkState state(std::string{});
    state.portList.resize(3);
    EXPECT_FALSE(access->queryWorkState(state));
    EXPECT_TRUE(state.portList.empty());
    const std::vector<EmulatorProcess::Request> sent = sentWith(emulator, id, kWorkStateSearch);
    ASSERT_EQ(sent.size(), 1u);
    const SentSearch search = sentSearch(sent[0]);
    EXPECT_FALSE(search.searchID.empty());
    EXPECT_EQ(search.maxResults, -1);
    EXPECT_EQ(search.searchResultPosition, 0);
    EXPECT_EQ(sent[0].status, 400);
    ASSERT_EQ(log.lines("ERROR").size(), 1u);
    EXPECT_EQ(log.lines("ERROR")[0].message,
              "Failed to Get Switch Work StateEx:[POST /NXRPC/Transfers/Switches/workState/search].Error code is 2-400.");

    // A device that answers such pages with "MORE": each step adds -1, so the position goes
    // down by one a page until the device says "OK".
    const auto page = [](const char* status) {
        return std::string("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<SwitchesWorkStateSearchRes><searchID>x</searchID>"
                           "<responseStatus>") +
               status + "</responseStatus><numOfMatches>0</numOfMatches><portList></portList></SwitchesWorkStateSearchRes>\n";
    };
    EmulatorProcess::Fault more = EmulatorProcess::Fault::answer(page("MORE"));
    more.count = 3;
    ASSERT_TRUE(emulator.setFault(id, kWorkStateSearchPath, more));
    ASSERT_TRUE(emulator.setFault(id, kWorkStateSearchPath, EmulatorProcess::Fault::answer(page("OK"))));
    emulator.clearRequestLog();
    EXPECT_TRUE(access->queryWorkState(state));
    const std::vector<EmulatorProcess::Request> walk = sentWith(emulator, id, kWorkStateSearch);
    ASSERT_EQ(walk.size(), 4u);
    const std::string searchId = sentSearch(walk[0]).searchID;
    for (size_t i = 0; i < walk.size(); ++i) {
        const SentSearch step = sentSearch(walk[i]);
        EXPECT_EQ(step.searchID, searchId) << i;
        EXPECT_EQ(step.maxResults, -1) << i;
        EXPECT_EQ(step.searchResultPosition, -static_cast<int>(i)) << i;
    }
    emulator.clearFaults();
}

} // namespace
