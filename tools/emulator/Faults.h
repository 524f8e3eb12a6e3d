#pragma once
// Faults injected per device and per path, set on the command line, from a JSON file or at
// run time through the control endpoint: added delay, an HTTP error status, a dropped
// connection, a truncated or malformed body, a paged search that answers "MORE" forever, a
// failure on the n-th page of a walk, an answer given in full (for values a device may send
// that the fleet never produces), a device that takes the connection and never answers, and
// a device port that refuses connections or accepts none.
#include <functional>
#include <mutex>
#include <string>
#include <vector>

struct cJSON;

namespace emulator {

struct FaultRule {
    long long id = 0;
    std::string device = "*"; // a device id, or "*"
    std::string path = "*";   // a path (with or without its query), a prefix ending in "*", or "*"
    std::string method;       // empty: any
    std::string kind;         // delay, status, drop, truncate, malformed, moreForever, failPage, answer,
                              // silent, refuse, blackhole
    int delayMs = 0;          // delay: the added wait; silent: how long each request is held (0: until cleared)
    int status = 0;
    int page = 0;
    int count = 0;            // applications left; 0 = unlimited
    std::string body;         // answer: the body sent as it stands
    std::string contentType;  // answer: its type; empty = the type the path answers in
};

// What the matching rules do to one request.
struct FaultEffect {
    int delayMs = 0;
    int status = 0;          // answer this HTTP status with the error body
    bool drop = false;
    bool truncate = false;
    bool malformed = false;
    bool moreForever = false;
    int failPage = 0;
    int failStatus = 500;
    bool answer = false;     // send answerBody with answerStatus instead of the device's own
    int answerStatus = 200;
    std::string answerBody;
    std::string answerContentType;
};

// A request that a silent rule holds: the rule's id (0: none) and its time limit (0: none).
struct SilentHold {
    long long rule = 0;
    int ms = 0;
};

class FaultTable {
public:
    static const std::vector<std::string>& kinds();

    // "device=<id>,path=<path>,kind=<kind>[,ms=][,status=][,page=][,count=][,method=]"
    static bool parseRule(const std::string& text, FaultRule& rule, std::string& error);
    // One JSON object ({"device","path","kind","ms","status","page","count","method","body",
    // "contentType"}).
    static bool parseJson(const cJSON* object, FaultRule& rule, std::string& error);
    // A JSON object or an array of them; returns the ids added.
    bool addJson(const std::string& text, std::vector<long long>& ids, std::string& error);

    long long add(FaultRule rule);
    void clear(const std::string& device = std::string());
    bool contains(long long id) const;

    // Port faults (refuse, blackhole) need a device with a port of its own; `hasOwnPort` says
    // which ones have. A rule for another device is refused by addJson and acceptable().
    void setPortCheck(std::function<bool(const std::string& device)> hasOwnPort);
    bool acceptable(const FaultRule& rule, std::string& error) const;
    static bool isPortKind(const std::string& kind);
    // Called after every change of the rules (not under the table's lock).
    void setOnChange(std::function<void()> onChange);

    // The silent rule that holds a request of the device, checked before authentication.
    SilentHold silent(const std::string& device, const std::string& method, const std::string& path,
                      const std::string& target) const;
    // "refuse" or "blackhole" when such a rule is in force for the device's own port, else "".
    std::string portMode(const std::string& device) const;
    std::string toJson() const;

    // The effect on a request; each matching request uses up one of a rule's count.
    FaultEffect match(const std::string& device, const std::string& method, const std::string& path,
                      const std::string& target);
    bool empty() const;

private:
    static bool pathMatches(const std::string& pattern, const std::string& path, const std::string& target);
    const FaultRule* findSilent(const std::string& device, const std::string& method, const std::string& path,
                                const std::string& target) const;
    void changed();

    mutable std::mutex m_mutex;
    std::vector<FaultRule> m_rules;
    long long m_nextId = 1;
    std::function<bool(const std::string&)> m_hasOwnPort;
    std::function<void()> m_onChange;
};

} // namespace emulator
