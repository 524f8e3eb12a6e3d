#pragma once
// Collects what the client's logger writes while the object lives: every level, with the
// level's name and the whole message. Restores the logger's level afterwards.
#include <algorithm>
#include <mutex>
#include <string>
#include <vector>

#include <log4cxx/appenderskeleton.h>
#include <log4cxx/level.h>
#include <log4cxx/spi/loggingevent.h>

#include "Plinth/Log.h"

namespace velmora {
namespace test {

struct LogLine {
    std::string level; // "DEBUG", "INFO", "WARN", "ERROR"
    std::string message;
};

class LogCapture {
public:
    LogCapture()
        : m_logger(Plinth::CSingleton<Plinth::details::CLog>::Instance().logger())
        , m_appender(std::make_shared<Appender>())
        , m_oldLevel(m_logger->getLevel())
    {
        m_logger->setLevel(log4cxx::Level::getDebug());
        m_logger->addAppender(m_appender);
    }
    ~LogCapture()
    {
        m_logger->removeAppender(m_appender);
        m_logger->setLevel(m_oldLevel);
    }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    std::vector<LogLine> lines() const { return m_appender->lines(); }
    std::vector<LogLine> lines(const std::string& level) const
    {
        std::vector<LogLine> all = lines();
        all.erase(std::remove_if(all.begin(), all.end(), [&](const LogLine& l) { return l.level != level; }), all.end());
        return all;
    }
    void clear() { m_appender->clear(); }

private:
    class Appender : public log4cxx::AppenderSkeleton {
    public:
        void close() override {}
        bool requiresLayout() const override { return false; }
        std::vector<LogLine> lines()
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            return m_lines;
        }
        void clear()
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_lines.clear();
        }

    protected:
        void append(const log4cxx::spi::LoggingEventPtr& event, log4cxx::helpers::Pool&) override
        {
            LogLine line;
            LOG4CXX_ENCODE_CHAR(level, event->getLevel()->toString());
            LOG4CXX_ENCODE_CHAR(message, event->getMessage());
            line.level = level;
            line.message = message;
            std::lock_guard<std::mutex> lock(m_mutex);
            m_lines.push_back(line);
        }

    private:
        std::mutex m_mutex;
        std::vector<LogLine> m_lines;
    };

    log4cxx::LoggerPtr m_logger;
    std::shared_ptr<Appender> m_appender;
    log4cxx::LevelPtr m_oldLevel;
};

} // namespace test
} // namespace velmora
