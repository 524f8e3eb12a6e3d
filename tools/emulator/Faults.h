#pragma once
// Faults injected per device and per path, set on the command line, from a JSON file or at
// run time through the control endpoint: added delay, an HTTP error status, a dropped
// connection, a truncated or malformed body, a paged search that answers "MORE" forever, a
// failure on the n-th page of a walk, or an answer given in full (for values a device may
// send that the fleet never produces).
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
    std::string kind;         // delay, status, drop, truncate, malformed, moreForever, failPage, answer
    int delayMs = 0;
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
    std::string toJson() const;

    // The effect on a request; each matching request uses up one of a rule's count.
    FaultEffect match(const std::string& device, const std::string& method, const std::string& path,
                      const std::string& target);
    bool empty() const;

private:
    static bool pathMatches(const std::string& pattern, const std::string& path, const std::string& target);

    mutable std::mutex m_mutex;
    std::vector<FaultRule> m_rules;
    long long m_nextId = 1;
};

} // namespace emulator
