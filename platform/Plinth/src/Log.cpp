// log4cxx set-up of the client's logger and the four level entry points.
#include "Plinth/Log.h"

#include <cctype>
#include <cstdlib>
#include <log4cxx/consoleappender.h>
#include <log4cxx/helpers/pool.h>
#include <log4cxx/level.h>
#include <log4cxx/patternlayout.h>
#include <log4cxx/rolling/rollingfileappender.h>
#include <mutex>
#include <vector>

namespace Plinth {
namespace details {

namespace {

// A rolling log file keeps five backups of ten megabytes each.
constexpr size_t kLogFileMaxBytes = 10 * 1024 * 1024;
constexpr int kLogFileBackups = 5;

// log4cxx 1.0 frees the fixed-window rolling policy of a RollingFileAppender through its
// base with the wrong size (AddressSanitizer: new-delete-type-mismatch). File appenders are
// therefore never destroyed: each stays referenced here until exit, and a replaced one is
// only closed.
void keepUntilExit(const log4cxx::AppenderPtr& appender)
{
    static auto* kept = new std::vector<log4cxx::AppenderPtr>();
    static std::mutex mutex;
    std::lock_guard<std::mutex> lock(mutex);
    kept->push_back(appender);
}

std::string environment(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

} // namespace

CLog::CLog()
    : m_logger(log4cxx::Logger::getLogger("velmora"))
{
    configure();
}

CLog::~CLog() = default;

const char* CLog::pattern()
{
    return "%d{yyyy-MM-dd HH:mm:ss,SSS} %-5p [%t] %f:%L %M - %m%n";
}

log4cxx::LevelPtr CLog::levelFromName(const std::string& name)
{
    std::string lower;
    for (char c : name)
        lower.push_back(static_cast<char>(std::tolower(static_cast<unsigned char>(c))));
    if (lower == "debug")
        return log4cxx::Level::getDebug();
    if (lower == "warn" || lower == "warning")
        return log4cxx::Level::getWarn();
    if (lower == "error")
        return log4cxx::Level::getError();
    return log4cxx::Level::getInfo();
}

void CLog::configure()
{
    // Our lines go only to our own appenders, whatever the host did to the root logger.
    m_logger->setAdditivity(false);
    const log4cxx::AppenderPtr previousFile = m_logger->getAppender(LOG4CXX_STR("velmora-file"));
    if (previousFile)
        previousFile->close();
    m_logger->removeAllAppenders();
    m_logger->setLevel(levelFromName(environment("VELMORA_LOG_LEVEL")));

    log4cxx::helpers::Pool pool;
    LOG4CXX_DECODE_CHAR(patternText, std::string(pattern()));
    auto layout = std::make_shared<log4cxx::PatternLayout>(patternText);

    auto console = std::make_shared<log4cxx::ConsoleAppender>(layout, log4cxx::ConsoleAppender::getSystemErr());
    console->setName(LOG4CXX_STR("velmora-stderr"));
    console->activateOptions(pool);
    m_logger->addAppender(console);

    const std::string file = environment("VELMORA_LOG_FILE");
    if (!file.empty()) {
        auto rolling = std::make_shared<log4cxx::rolling::RollingFileAppender>();
        rolling->setName(LOG4CXX_STR("velmora-file"));
        rolling->setLayout(layout);
        LOG4CXX_DECODE_CHAR(fileName, file);
        rolling->setFile(fileName);
        rolling->setAppend(true);
        rolling->setMaximumFileSize(kLogFileMaxBytes);
        rolling->setMaxBackupIndex(kLogFileBackups);
        rolling->activateOptions(pool);
        keepUntilExit(rolling);
        m_logger->addAppender(rolling);
    }
}

void CLog::write(const log4cxx::LevelPtr& level, const std::string& tag, const std::string& message,
                 const log4cxx::spi::LocationInfo& location)
{
    if (!m_logger->isEnabledFor(level))
        return;
    // forcedLog keeps the caller's file, function and line instead of ours.
    if (tag.empty())
        m_logger->forcedLog(level, message, location);
    else
        m_logger->forcedLog(level, "[" + tag + "] " + message, location);
}

void CLog::Debug(const std::string& tag, const std::string& message, const log4cxx::spi::LocationInfo& location)
{
    write(log4cxx::Level::getDebug(), tag, message, location);
}

void CLog::Info(const std::string& tag, const std::string& message, const log4cxx::spi::LocationInfo& location)
{
    write(log4cxx::Level::getInfo(), tag, message, location);
}

void CLog::Warn(const std::string& tag, const std::string& message, const log4cxx::spi::LocationInfo& location)
{
    write(log4cxx::Level::getWarn(), tag, message, location);
}

void CLog::Error(const std::string& tag, const std::string& message, const log4cxx::spi::LocationInfo& location)
{
    write(log4cxx::Level::getError(), tag, message, location);
}

} // namespace details
} // namespace Plinth
