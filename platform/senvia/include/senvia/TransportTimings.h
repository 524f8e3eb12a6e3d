#pragma once
// The transport's own waits, beside each request's `recvTimeOut`: how long a TCP connection
// may take to be accepted, and how long a device that stopped answering is left alone.
namespace senvia {

// A device of the client's network accepts a connection within milliseconds. Three seconds
// still let one lost SYN be sent again (the system resends it after 1 s) and answered, while a
// switched-off or unplugged device costs 3 s instead of the whole answer time-out.
constexpr long kConnectTimeOutMs = 3000;

// After a query to a device timed out or found no connection, further queries to that device
// fail at once for this long; then one query goes out again. Thirty seconds are three ticks of
// the 10-second pages: opening a dialog on a dead device and clicking through its rows costs
// one wait instead of one per query, and a device back on line is reached within half a minute.
constexpr long kUnreachableHoldMs = 30000;

struct TransportTimings {
    long connectTimeOutMs = kConnectTimeOutMs;   // <= 0: the answer time-out bounds the connect too
    long unreachableHoldMs = kUnreachableHoldMs; // <= 0: every query goes to the device
    long answerTimeOutCapMs = 0;                 // > 0: no query waits longer, whatever its recvTimeOut
};

TransportTimings transportTimings();

// Replaces the timings for every thread, and forgets which devices are held as unreachable.
// For tests and benchmarks, which cannot wait the real time-outs once per case.
void setTransportTimings(const TransportTimings& timings);

// Forgets which devices are held as unreachable: the next query to each goes out.
void forgetUnreachableDevices();

} // namespace senvia
