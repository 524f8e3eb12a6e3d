#include "Plinth/GuidUtil.h"

#include <gtest/gtest.h>
#include <mutex>
#include <regex>
#include <set>
#include <thread>
#include <vector>

namespace {

TEST(GuidUtilTest, GuidIsUpperCaseVersion4)
{
    const std::regex form("^[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}$");
    for (int i = 0; i < 200; ++i) {
        const std::string guid = Plinth::GuidUtil::CreateGuid();
        EXPECT_EQ(guid.size(), 36u);
        EXPECT_TRUE(std::regex_match(guid, form)) << guid;
    }
}

TEST(GuidUtilTest, GuidsAreUniqueAcrossThreads)
{
    constexpr int kThreads = 8;
    constexpr int kPerThread = 5000;
    std::set<std::string> all;
    std::mutex mutex;
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([&] {
            std::vector<std::string> mine;
            for (int i = 0; i < kPerThread; ++i)
                mine.push_back(Plinth::GuidUtil::CreateGuid());
            std::lock_guard<std::mutex> lock(mutex);
            all.insert(mine.begin(), mine.end());
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(all.size(), static_cast<size_t>(kThreads * kPerThread));
}

} // namespace
