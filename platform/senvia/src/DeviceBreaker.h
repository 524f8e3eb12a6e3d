#pragma once
// Keeps queries away from a device that stopped answering. A query that times out or finds no
// connection marks its device unreachable for the hold time of senvia::transportTimings():
// queries to it then fail at once with the same error numbers instead of each waiting out
// its own time-out on the caller's thread (mostly the GUI thread). When the hold is over, the
// next query goes out as the probe, while queries of other threads still fail at once; any
// answer of the device, also an HTTP error or a malformed one, makes it reachable again.
// Nothing is ever retried. One state per device identifier, shared by all threads.
#include <chrono>
#include <map>
#include <mutex>
#include <string>

#include "Plinth/Error.h"

namespace senvia {
namespace detail {

class CDeviceBreaker {
public:
    static CDeviceBreaker& instance();

    // Whether a query to `device` may go out now; when not, Plinth's last error is set to
    // what the device failed with and the query is to fail at once.
    bool admit(const std::string& device);
    // The query went out and ended: `ok`, or with Plinth's last error `error`. `where` names
    // the device's address for the log line.
    void settle(const std::string& device, const std::string& where, bool ok, const Plinth::Error::ErrorCode& error);

    void forgetAll();

    // Time-outs and failed connections; a device that answered anything is reachable.
    static bool meansUnreachable(const Plinth::Error::ErrorCode& error);

private:
    struct Hold {
        std::chrono::steady_clock::time_point until;
        std::string untilText;        // local wall time, for the log and the error text
        Plinth::Error::ErrorCode error; // what the query that opened the hold failed with
        bool probing = false;         // the query after the hold is out
    };

    std::mutex m_mutex;
    std::map<std::string, Hold> m_holds;
};

} // namespace detail
} // namespace senvia
