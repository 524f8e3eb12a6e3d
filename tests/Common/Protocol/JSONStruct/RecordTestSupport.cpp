#include "RecordTestSupport.h"

#include <mutex>

#include <log4cxx/appenderskeleton.h>
#include <log4cxx/level.h>
#include <log4cxx/spi/loggingevent.h>

#include "Plinth/Log.h"

namespace recordtest {

namespace {

// log4cxx's object macros name "helpers::" unqualified.
namespace helpers = log4cxx::helpers;

class CollectingAppender : public log4cxx::AppenderSkeleton {
public:
    DECLARE_LOG4CXX_OBJECT(CollectingAppender)
    BEGIN_LOG4CXX_CAST_MAP()
    LOG4CXX_CAST_ENTRY(CollectingAppender)
    LOG4CXX_CAST_ENTRY_CHAIN(AppenderSkeleton)
    END_LOG4CXX_CAST_MAP()

    void append(const log4cxx::spi::LoggingEventPtr& event, log4cxx::helpers::Pool&) override
    {
        std::lock_guard<std::mutex> lock(mutex);
        LOG4CXX_ENCODE_CHAR(message, event->getMessage());
        lines.push_back({event->getLevel()->toInt(), message});
    }
    void close() override {}
    bool requiresLayout() const override { return false; }

    struct Line {
        int level;
        std::string message;
    };
    mutable std::mutex mutex;
    std::vector<Line> lines;
};

IMPLEMENT_LOG4CXX_OBJECT(CollectingAppender)

} // namespace

Json parse(const std::string& text)
{
    return Json(cJSON_Parse(text.c_str()));
}

std::string print(const cJSON* json)
{
    if (json == nullptr)
        return std::string();
    char* printed = cJSON_PrintUnformatted(json);
    std::string text = printed != nullptr ? printed : "";
    cJSON_free(printed);
    return text;
}

std::string written(protocol::IJSONStruct& record)
{
    Json json(record.toJSON());
    return print(json.get());
}

void read(protocol::IJSONStruct& record, const std::string& text)
{
    Json json = parse(text);
    record.fromJSON(json.get());
}

struct LogCapture::Impl {
    std::shared_ptr<CollectingAppender> appender = std::make_shared<CollectingAppender>();
};

LogCapture::LogCapture()
    : m_impl(std::make_unique<Impl>())
{
    Plinth::CSingleton<Plinth::details::CLog>::Instance().logger()->addAppender(m_impl->appender);
}

LogCapture::~LogCapture()
{
    Plinth::CSingleton<Plinth::details::CLog>::Instance().logger()->removeAppender(m_impl->appender);
}

std::vector<std::string> LogCapture::errors() const
{
    std::lock_guard<std::mutex> lock(m_impl->appender->mutex);
    std::vector<std::string> result;
    for (const auto& line : m_impl->appender->lines) {
        if (line.level >= ::log4cxx::Level::ERROR_INT)
            result.push_back(line.message);
    }
    return result;
}

std::vector<std::string> LogCapture::all() const
{
    std::lock_guard<std::mutex> lock(m_impl->appender->mutex);
    std::vector<std::string> result;
    for (const auto& line : m_impl->appender->lines)
        result.push_back(line.message);
    return result;
}

} // namespace recordtest
