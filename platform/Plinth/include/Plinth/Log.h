#pragma once
// Logging of the client: every line goes through log4cxx with the caller's location.
// Level and rolling file come from VELMORA_LOG_LEVEL (debug, info, warn, error; info by
// default) and VELMORA_LOG_FILE (no file when unset); lines always go to stderr too.

#include <log4cxx/spi/location/locationinfo.h>
#include <log4cxx/logger.h>
#include <string>

#include "Plinth/Noncopyable.h"
#include "Plinth/Singleton.h"

namespace Plinth {
namespace details {

class CLog : private CNoncopyable {
public:
    CLog();
    ~CLog();

    // `tag` is the client's first text (callers pass ""); `message` is logged whole.
    void Debug(const std::string& tag, const std::string& message, const log4cxx::spi::LocationInfo& location);
    void Info(const std::string& tag, const std::string& message, const log4cxx::spi::LocationInfo& location);
    void Warn(const std::string& tag, const std::string& message, const log4cxx::spi::LocationInfo& location);
    void Error(const std::string& tag, const std::string& message, const log4cxx::spi::LocationInfo& location);

    log4cxx::LoggerPtr logger() const { return m_logger; }

    // Reads VELMORA_LOG_LEVEL and VELMORA_LOG_FILE again and rebuilds the appenders.
    void configure();

    // "debug", "info", "warn" or "error" in any case; anything else (also empty) is info.
    static log4cxx::LevelPtr levelFromName(const std::string& name);

    // The layout of every line: date, level, thread, file:line function, message.
    static const char* pattern();

private:
    void write(const log4cxx::LevelPtr& level, const std::string& tag, const std::string& message,
               const log4cxx::spi::LocationInfo& location);

    log4cxx::LoggerPtr m_logger;
};

} // namespace details
} // namespace Plinth

// The location of the statement that logs: file, function and line.
#define PLINTH_LOCATION LOG4CXX_LOCATION
