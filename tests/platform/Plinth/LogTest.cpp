#include "Plinth/Log.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <log4cxx/appenderskeleton.h>
#include <log4cxx/spi/loggingevent.h>
#include <mutex>
#include <sstream>
#include <string>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "Plinth/StringUtil.h"

// A named namespace: clang spells an anonymous one "(anonymous namespace)" in the function
// text, and log4cxx cuts the method name at its first parenthesis.
namespace plinth_log_test {

struct CapturedEvent {
    std::string level;
    std::string message;
    std::string fileName;
    std::string shortFileName;
    std::string methodName;
    int line = 0;
};

// Keeps every event it is given, with the location that came with it.
class CaptureAppender : public log4cxx::AppenderSkeleton {
public:
    void close() override {}
    bool requiresLayout() const override { return false; }

    std::vector<CapturedEvent> events()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_events;
    }

protected:
    void append(const log4cxx::spi::LoggingEventPtr& event, log4cxx::helpers::Pool&) override
    {
        CapturedEvent captured;
        LOG4CXX_ENCODE_CHAR(level, event->getLevel()->toString());
        LOG4CXX_ENCODE_CHAR(message, event->getMessage());
        captured.level = level;
        captured.message = message;
        const log4cxx::spi::LocationInfo& location = event->getLocationInformation();
        captured.fileName = location.getFileName();
        captured.shortFileName = location.getShortFileName();
        captured.methodName = location.getMethodName();
        captured.line = location.getLineNumber();
        std::lock_guard<std::mutex> lock(m_mutex);
        m_events.push_back(captured);
    }

private:
    std::mutex m_mutex;
    std::vector<CapturedEvent> m_events;
};

Plinth::details::CLog& theLog()
{
    return Plinth::CSingleton<Plinth::details::CLog>::Instance();
}

class LogTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        const char* level = std::getenv("VELMORA_LOG_LEVEL");
        m_savedLevel = level == nullptr ? "" : level;
        setenv("VELMORA_LOG_LEVEL", "debug", 1);
        unsetenv("VELMORA_LOG_FILE");
        configureWithCapture();
    }

    void TearDown() override
    {
        unsetenv("VELMORA_LOG_FILE");
        if (m_savedLevel.empty())
            unsetenv("VELMORA_LOG_LEVEL");
        else
            setenv("VELMORA_LOG_LEVEL", m_savedLevel.c_str(), 1);
        theLog().configure();
    }

    // Re-reads the environment; configure() replaces all appenders, so ours goes on after.
    void configureWithCapture()
    {
        theLog().configure();
        m_capture = std::make_shared<CaptureAppender>();
        theLog().logger()->addAppender(m_capture);
    }

    std::shared_ptr<CaptureAppender> m_capture;
    std::string m_savedLevel;
};

TEST_F(LogTest, LineCarriesCallersFileFunctionAndLine)
{
    const int line = __LINE__ + 1;
    theLog().Error("", Plinth::StringUtil::FormatString("Failed to Get Switch Work State:[%s].Error code is %d-%d.", "GET /x", 1, 7), PLINTH_LOCATION);

    const std::vector<CapturedEvent> events = m_capture->events();
    ASSERT_EQ(events.size(), 1u);
    EXPECT_EQ(events[0].level, "ERROR");
    EXPECT_EQ(events[0].message, "Failed to Get Switch Work State:[GET /x].Error code is 1-7.");
    EXPECT_EQ(events[0].shortFileName, "LogTest.cpp");
    EXPECT_NE(events[0].fileName.find("tests/platform/Plinth/LogTest.cpp"), std::string::npos) << events[0].fileName;
    EXPECT_EQ(events[0].line, line);
    EXPECT_NE(events[0].methodName.find("TestBody"), std::string::npos) << events[0].methodName;
}

TEST_F(LogTest, EachLevelReachesTheLogger)
{
    theLog().Debug("", "d", PLINTH_LOCATION);
    theLog().Info("", "i", PLINTH_LOCATION);
    theLog().Warn("", "w", PLINTH_LOCATION);
    theLog().Error("", "e", PLINTH_LOCATION);
    const std::vector<CapturedEvent> events = m_capture->events();
    ASSERT_EQ(events.size(), 4u);
    EXPECT_EQ(events[0].level, "DEBUG");
    EXPECT_EQ(events[1].level, "INFO");
    EXPECT_EQ(events[2].level, "WARN");
    EXPECT_EQ(events[3].level, "ERROR");
}

TEST_F(LogTest, TagIsPrependedOnlyWhenGiven)
{
    theLog().Info("", "plain message", PLINTH_LOCATION);
    theLog().Info("ostrand", "tagged message", PLINTH_LOCATION);
    const std::vector<CapturedEvent> events = m_capture->events();
    ASSERT_EQ(events.size(), 2u);
    EXPECT_EQ(events[0].message, "plain message");
    EXPECT_EQ(events[1].message, "[ostrand] tagged message");
}

TEST_F(LogTest, LevelComesFromEnvironment)
{
    EXPECT_EQ(theLog().logger()->getLevel(), log4cxx::Level::getDebug());

    setenv("VELMORA_LOG_LEVEL", "error", 1);
    configureWithCapture();
    EXPECT_EQ(theLog().logger()->getLevel(), log4cxx::Level::getError());
    theLog().Info("", "hidden info", PLINTH_LOCATION);
    theLog().Warn("", "hidden warn", PLINTH_LOCATION);
    theLog().Error("", "shown error", PLINTH_LOCATION);
    std::vector<CapturedEvent> events = m_capture->events();
    ASSERT_EQ(events.size(), 1u);
    EXPECT_EQ(events[0].message, "shown error");

    setenv("VELMORA_LOG_LEVEL", "WARN", 1);
    configureWithCapture();
    EXPECT_EQ(theLog().logger()->getLevel(), log4cxx::Level::getWarn());

    // Unset or unknown means info.
    unsetenv("VELMORA_LOG_LEVEL");
    configureWithCapture();
    EXPECT_EQ(theLog().logger()->getLevel(), log4cxx::Level::getInfo());
    theLog().Debug("", "hidden debug", PLINTH_LOCATION);
    theLog().Info("", "shown info", PLINTH_LOCATION);
    events = m_capture->events();
    ASSERT_EQ(events.size(), 1u);
    EXPECT_EQ(events[0].message, "shown info");

    EXPECT_EQ(Plinth::details::CLog::levelFromName("verbose"), log4cxx::Level::getInfo());
    EXPECT_EQ(Plinth::details::CLog::levelFromName("Debug"), log4cxx::Level::getDebug());
}

TEST_F(LogTest, LogFileGetsFormattedLines)
{
    char directory[] = "/tmp/velmora-log-XXXXXX";
    ASSERT_NE(mkdtemp(directory), nullptr);
    const std::string file = std::string(directory) + "/velmora.log";
    setenv("VELMORA_LOG_FILE", file.c_str(), 1);
    configureWithCapture();

    const int line = __LINE__ + 1;
    theLog().Warn("", "to the file", PLINTH_LOCATION);

    unsetenv("VELMORA_LOG_FILE");
    theLog().configure(); // closes the file

    std::ifstream stream(file);
    std::stringstream content;
    content << stream.rdbuf();
    const std::string text = content.str();
    // "2024-05-01 10:00:00,123 WARN  [thread] LogTest.cpp:NN function - to the file"
    EXPECT_NE(text.find("WARN "), std::string::npos) << text;
    EXPECT_NE(text.find("LogTest.cpp:" + std::to_string(line) + " "), std::string::npos) << text;
    EXPECT_NE(text.find(" - to the file\n"), std::string::npos) << text;
    EXPECT_EQ(text[4], '-');
    EXPECT_EQ(text[10], ' ');

    std::remove(file.c_str());
    rmdir(directory);
}

TEST_F(LogTest, LogFileRollsOverAtTenMegabytes)
{
    char directory[] = "/tmp/velmora-log-XXXXXX";
    ASSERT_NE(mkdtemp(directory), nullptr);
    const std::string file = std::string(directory) + "/velmora.log";
    setenv("VELMORA_LOG_FILE", file.c_str(), 1);
    setenv("VELMORA_LOG_LEVEL", "info", 1);
    theLog().configure(); // without the capture appender: 11 MB of events would be kept

    const std::string chunk(1024, 'x');
    for (int i = 0; i < 11 * 1024; ++i)
        theLog().Debug("", chunk, PLINTH_LOCATION); // below the level: not written
    struct stat info {};
    ASSERT_EQ(stat(file.c_str(), &info), 0);
    EXPECT_EQ(info.st_size, 0);

    // Lines go to stderr as well; 11 MB of them are sent to /dev/null instead of the test output.
    std::fflush(stderr);
    const int savedStderr = dup(2);
    const int devNull = open("/dev/null", O_WRONLY);
    dup2(devNull, 2);
    for (int i = 0; i < 11 * 1024; ++i)
        theLog().Info("", chunk, PLINTH_LOCATION);
    std::fflush(stderr);
    dup2(savedStderr, 2);
    close(savedStderr);
    close(devNull);

    unsetenv("VELMORA_LOG_FILE");
    theLog().configure();

    ASSERT_EQ(stat((file + ".1").c_str(), &info), 0) << "no backup after 11 MB";
    EXPECT_LE(info.st_size, 10 * 1024 * 1024 + 2048);
    EXPECT_GE(info.st_size, 10 * 1024 * 1024 - 2048);
    ASSERT_EQ(stat(file.c_str(), &info), 0);
    EXPECT_LT(info.st_size, 2 * 1024 * 1024);

    for (const std::string& name : {file, file + ".1", file + ".2"})
        std::remove(name.c_str());
    rmdir(directory);
}

} // namespace plinth_log_test
