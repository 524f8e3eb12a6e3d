// WorkStatusInferface against emulated switches: the plain road and the paged road give the
// same record, the mode follows the device of the last initMode, and failures end the walk.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "support/LogCapture.h"
#include "WorkStateTestSupport.h"
#include "logical/interface/ParamInterface.h"
#include "logical/interface/WorkStatusInferface.h"

namespace {

using velmora::ParamInterface;
using velmora::WorkStatusInferface;
using velmora::test::EmulatorProcess;
using velmora::test::LogCapture;
using namespace velmora::test;

EmulatorProcess* g_emulator = nullptr;

class WorkStatusInferfaceTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { g_emulator = new EmulatorProcess("demo"); }
    static void TearDownTestSuite()
    {
        delete g_emulator;
        g_emulator = nullptr;
    }

    void SetUp() override
    {
        ASSERT_TRUE(g_emulator->isRunning()) << g_emulator->errorString();
        g_emulator->clearFaults();
        m_plain = switches(*g_emulator, false);
        m_batch = switches(*g_emulator, true);
        ASSERT_FALSE(m_plain.empty());
        ASSERT_FALSE(m_batch.empty());
        g_emulator->clearRequestLog();
    }
    void TearDown() override { g_emulator->clearFaults(); }

    // The port identifiers of the device's plain answer, in order.
    static std::vector<int> portIdsOf(const std::string& id)
    {
        Quillon::SwitchesWorkState state(std::string{});
        EXPECT_TRUE(ParamInterface::getSwitchesWorkState(state, id));
        std::vector<int> ids;
        for (const Quillon::SwitchesWorkStateItem& item : state.portList) {
            ids.push_back(item.portId);
        }
        return ids;
    }

    static int pageSizeOf(const std::string& id)
    {
        Quillon::SwitchesWorkStateSearchCap cap(std::string{});
        EXPECT_TRUE(ParamInterface::getSwitchesWorkStateSearchAbility(cap, id));
        return cap.maxResults;
    }

    std::vector<std::string> m_plain;
    std::vector<std::string> m_batch;
    LogCapture m_log;
};

TEST_F(WorkStatusInferfaceTest, OneInstanceForTheWholeProcess)
{
    std::vector<WorkStatusInferface*> seen(8, nullptr);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < seen.size(); ++i) {
        threads.emplace_back([&seen, i] { seen[i] = WorkStatusInferface::getInstance(); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    ASSERT_NE(seen[0], nullptr);
    for (WorkStatusInferface* instance : seen) {
        EXPECT_EQ(instance, seen[0]);
    }
    EXPECT_EQ(WorkStatusInferface::getInstance(), seen[0]);
}

TEST_F(WorkStatusInferfaceTest, PlainDeviceIsAskedWithOneGet)
{
    WorkStatusInferface* access = WorkStatusInferface::getInstance();
    access->initMode(m_plain[0], capabilities(false));
    EXPECT_TRUE(answered(*g_emulator, m_plain[0]).empty()) << "a plain device needs no capability query";

    Quillon::SwitchesWorkState state(std::string{});
    ASSERT_TRUE(access->queryWorkState(state));
    const std::vector<EmulatorProcess::Request> sent = answered(*g_emulator, m_plain[0]);
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].requestLine, kWorkStateGet);
    EXPECT_FALSE(state.portList.empty());
}

TEST_F(WorkStatusInferfaceTest, BatchDeviceIsWalkedPageByPageIntoTheSameRecord)
{
    const std::string id = m_batch[0];
    const std::vector<int> expected = portIdsOf(id);
    const int pageSize = pageSizeOf(id);
    ASSERT_GT(pageSize, 0);
    g_emulator->clearRequestLog();

    WorkStatusInferface* access = WorkStatusInferface::getInstance();
    access->initMode(id, capabilities(true));
    std::vector<EmulatorProcess::Request> sent = answered(*g_emulator, id);
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].requestLine, kSearchCapability);

    g_emulator->clearRequestLog();
    Quillon::SwitchesWorkState state(std::string{});
    ASSERT_TRUE(access->queryWorkState(state));
    std::vector<int> got;
    for (const Quillon::SwitchesWorkStateItem& item : state.portList) {
        got.push_back(item.portId);
    }
    EXPECT_EQ(got, expected);

    sent = answered(*g_emulator, id);
    const std::size_t pages = (expected.size() + pageSize - 1) / pageSize;
    ASSERT_EQ(sent.size(), pages);
    const SentSearch first = sentSearch(sent[0]);
    EXPECT_FALSE(first.searchID.empty());
    for (std::size_t page = 0; page < sent.size(); ++page) {
        EXPECT_EQ(sent[page].requestLine, kWorkStateSearch);
        const SentSearch search = sentSearch(sent[page]);
        EXPECT_EQ(search.searchID, first.searchID);
        EXPECT_EQ(search.maxResults, pageSize);
        EXPECT_EQ(search.searchResultPosition, static_cast<int>(page) * pageSize);
    }

    // A fresh search for the next query.
    g_emulator->clearRequestLog();
    ASSERT_TRUE(access->queryWorkState(state));
    EXPECT_NE(sentSearch(answered(*g_emulator, id).at(0)).searchID, first.searchID);
}

TEST_F(WorkStatusInferfaceTest, QueryReplacesThePortsTheRecordHeld)
{
    WorkStatusInferface* access = WorkStatusInferface::getInstance();
    for (const std::string& id : {m_plain[0], m_batch[0]}) {
        SCOPED_TRACE(id);
        access->initMode(id, capabilities(id == m_batch[0]));
        Quillon::SwitchesWorkState state(std::string{});
        state.portList.resize(500);
        ASSERT_TRUE(access->queryWorkState(state));
        EXPECT_EQ(state.portList.size(), portIdsOf(id).size());
    }
}

TEST_F(WorkStatusInferfaceTest, GoingFromBatchToPlainDeviceKeepsThePageSize)
{
    ASSERT_GE(m_batch.size(), 1u);
    WorkStatusInferface* access = WorkStatusInferface::getInstance();
    const std::string batch = m_batch[0];
    const int pageSize = pageSizeOf(batch);
    access->initMode(batch, capabilities(true));

    access->initMode(m_plain[0], capabilities(false));
    g_emulator->clearRequestLog();
    Quillon::SwitchesWorkState state(std::string{});
    ASSERT_TRUE(access->queryWorkState(state));
    ASSERT_EQ(answered(*g_emulator, m_plain[0]).size(), 1u);
    EXPECT_EQ(answered(*g_emulator, m_plain[0])[0].requestLine, kWorkStateGet);

    // A batch device whose capability query fails now walks with the size kept from before.
    const std::string other = m_batch.size() > 1 ? m_batch[1] : m_batch[0];
    ASSERT_TRUE(g_emulator->setFault(other, kSearchCapabilityPath, EmulatorProcess::Fault::httpStatus(500)));
    m_log.clear();
    access->initMode(other, capabilities(true));
    ASSERT_EQ(m_log.lines("ERROR").size(), 2u); // the query layer's line, then this one
    EXPECT_EQ(m_log.lines("ERROR")[1].message, "Failed to getSwitchesWorkStateSearchAbility");
    g_emulator->clearFaults();
    g_emulator->clearRequestLog();
    ASSERT_TRUE(access->queryWorkState(state));
    const std::vector<EmulatorProcess::Request> sent = sentWith(*g_emulator, other, kWorkStateSearch);
    ASSERT_FALSE(sent.empty());
    EXPECT_EQ(sentSearch(sent[0]).maxResults, pageSize);
}

TEST_F(WorkStatusInferfaceTest, FailureOnTheThirdPageKeepsTwoPages)
{
    const std::string id = m_batch[0];
    const int pageSize = pageSizeOf(id);
    WorkStatusInferface* access = WorkStatusInferface::getInstance();
    access->initMode(id, capabilities(true));
    ASSERT_TRUE(g_emulator->setFault(id, kWorkStateSearchPath, EmulatorProcess::Fault::failPage(3)));
    g_emulator->clearRequestLog();
    m_log.clear();

    const std::size_t ports = portIdsOf(id).size();
    ASSERT_TRUE(g_emulator->setFault(id, kWorkStateSearchPath, EmulatorProcess::Fault::moreForever()));
    g_emulator->clearRequestLog();

    Quillon::SwitchesWorkState state(std::string{});
    EXPECT_FALSE(access->queryWorkState(state));
    EXPECT_EQ(sentWith(*g_emulator, id, kWorkStateSearch).size(), 3u);
    EXPECT_EQ(state.portList.size(), std::min(ports, static_cast<std::size_t>(2 * pageSize)));
    const std::vector<velmora::test::LogLine> errors = m_log.lines("ERROR");
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0].message.rfind("Failed to Get Switch Work StateEx:[POST /NXRPC/Transfers/Switches/workState/search]"
                                      ".Error code is 2-500.",
                                      0),
              0u)
        << errors[0].message;
}

TEST_F(WorkStatusInferfaceTest, EmptyFirstPageWithoutMoreIsAnEmptySuccess)
{
    const std::string id = m_batch[0];
    WorkStatusInferface* access = WorkStatusInferface::getInstance();
    access->initMode(id, capabilities(true));
    ASSERT_TRUE(g_emulator->setFault(id, kWorkStateSearchPath, EmulatorProcess::Fault::malformed()));
    g_emulator->clearRequestLog();

    Quillon::SwitchesWorkState state(std::string{});
    state.portList.resize(4);
    EXPECT_TRUE(access->queryWorkState(state));
    EXPECT_TRUE(state.portList.empty());
    EXPECT_EQ(sentWith(*g_emulator, id, kWorkStateSearch).size(), 1u);
}

TEST_F(WorkStatusInferfaceTest, PlainDeviceFailureIsReportedAsFalse)
{
    WorkStatusInferface* access = WorkStatusInferface::getInstance();
    access->initMode(m_plain[0], capabilities(false));
    ASSERT_TRUE(g_emulator->setFault(m_plain[0], "*", EmulatorProcess::Fault::drop()));
    Quillon::SwitchesWorkState state(std::string{});
    EXPECT_FALSE(access->queryWorkState(state));
    EXPECT_TRUE(state.portList.empty());
}

} // namespace
