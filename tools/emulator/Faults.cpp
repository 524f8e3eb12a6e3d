#include "Faults.h"

#include "RecordWriter.h"

#include <cjson/cJSON.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace emulator {

const std::vector<std::string>& FaultTable::kinds()
{
    static const std::vector<std::string> k = {"delay",    "status", "drop",   "truncate", "malformed", "moreForever",
                                               "failPage", "answer", "silent", "refuse",   "blackhole"};
    return k;
}

static bool checkRule(FaultRule& rule, std::string& error)
{
    const auto& k = FaultTable::kinds();
    if (std::find(k.begin(), k.end(), rule.kind) == k.end()) {
        error = "unknown fault kind \"" + rule.kind + "\" (delay, status, drop, truncate, malformed, moreForever, failPage, answer, silent, refuse, "
                "blackhole)";
        return false;
    }
    if (rule.device.empty())
        rule.device = "*";
    if (rule.path.empty())
        rule.path = "*";
    if (rule.kind == "delay" && rule.delayMs <= 0) {
        error = "a delay fault needs ms > 0";
        return false;
    }
    if (rule.kind == "status" && (rule.status < 100 || rule.status > 599)) {
        error = "a status fault needs a status from 100 to 599";
        return false;
    }
    if (rule.kind == "answer") {
        if (rule.status == 0)
            rule.status = 200;
        if (rule.status < 100 || rule.status > 599) {
            error = "an answer fault needs a status from 100 to 599";
            return false;
        }
    }
    if (rule.kind == "failPage") {
        if (rule.page < 1) {
            error = "a failPage fault needs page >= 1";
            return false;
        }
        if (rule.status == 0)
            rule.status = 500;
    }
    return true;
}

bool FaultTable::parseRule(const std::string& text, FaultRule& rule, std::string& error)
{
    std::stringstream ss(text);
    std::string part;
    while (std::getline(ss, part, ',')) {
        const size_t eq = part.find('=');
        if (eq == std::string::npos) {
            error = "fault part \"" + part + "\" is not key=value";
            return false;
        }
        const std::string key = part.substr(0, eq);
        const std::string value = part.substr(eq + 1);
        if (key == "device")
            rule.device = value;
        else if (key == "path")
            rule.path = value;
        else if (key == "kind")
            rule.kind = value;
        else if (key == "method")
            rule.method = value;
        else if (key == "ms")
            rule.delayMs = std::atoi(value.c_str());
        else if (key == "status")
            rule.status = std::atoi(value.c_str());
        else if (key == "page")
            rule.page = std::atoi(value.c_str());
        else if (key == "count")
            rule.count = std::atoi(value.c_str());
        else if (key == "body")
            rule.body = value; // on the command line a body holds no comma
        else {
            error = "unknown fault key \"" + key + "\"";
            return false;
        }
    }
    return checkRule(rule, error);
}

bool FaultTable::parseJson(const cJSON* o, FaultRule& rule, std::string& error)
{
    if (!cJSON_IsObject(o)) {
        error = "a fault is a JSON object";
        return false;
    }
    auto text = [o](const char* key, std::string& out) {
        const cJSON* v = cJSON_GetObjectItemCaseSensitive(o, key);
        if (cJSON_IsString(v))
            out = v->valuestring;
    };
    auto number = [o](const char* key, int& out) {
        const cJSON* v = cJSON_GetObjectItemCaseSensitive(o, key);
        if (cJSON_IsNumber(v))
            out = v->valueint;
    };
    text("device", rule.device);
    text("path", rule.path);
    text("kind", rule.kind);
    text("method", rule.method);
    number("ms", rule.delayMs);
    number("status", rule.status);
    number("page", rule.page);
    number("count", rule.count);
    text("body", rule.body);
    text("contentType", rule.contentType);
    return checkRule(rule, error);
}

bool FaultTable::addJson(const std::string& text, std::vector<long long>& ids, std::string& error)
{
    cJSON* root = cJSON_Parse(text.c_str());
    if (!root) {
        error = "the body is not JSON";
        return false;
    }
    std::vector<FaultRule> rules;
    bool ok = true;
    if (cJSON_IsArray(root)) {
        const cJSON* item = nullptr;
        cJSON_ArrayForEach(item, root)
        {
            FaultRule rule;
            if (!(ok = parseJson(item, rule, error)))
                break;
            rules.push_back(rule);
        }
    } else {
        FaultRule rule;
        ok = parseJson(root, rule, error);
        rules.push_back(rule);
    }
    cJSON_Delete(root);
    if (!ok)
        return false;
    for (const FaultRule& rule : rules) {
        if (!acceptable(rule, error))
            return false;
    }
    for (FaultRule& rule : rules)
        ids.push_back(add(rule));
    return true;
}

void FaultTable::setPortCheck(std::function<bool(const std::string& device)> hasOwnPort)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_hasOwnPort = std::move(hasOwnPort);
}

void FaultTable::setOnChange(std::function<void()> onChange)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_onChange = std::move(onChange);
}

bool FaultTable::isPortKind(const std::string& kind)
{
    return kind == "refuse" || kind == "blackhole";
}

bool FaultTable::acceptable(const FaultRule& rule, std::string& error) const
{
    if (!isPortKind(rule.kind))
        return true;
    std::function<bool(const std::string&)> hasOwnPort;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        hasOwnPort = m_hasOwnPort;
    }
    if (rule.device != "*" && (!hasOwnPort || !hasOwnPort(rule.device))) {
        error = "a " + rule.kind + " fault needs a device with a port of its own (--own-port " + rule.device + ")";
        return false;
    }
    return true;
}

void FaultTable::changed()
{
    std::function<void()> onChange;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        onChange = m_onChange;
    }
    if (onChange)
        onChange();
}

long long FaultTable::add(FaultRule rule)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        rule.id = m_nextId++;
        m_rules.push_back(rule);
    }
    changed();
    return rule.id;
}

void FaultTable::clear(const std::string& device)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (device.empty())
            m_rules.clear();
        else
            m_rules.erase(std::remove_if(m_rules.begin(), m_rules.end(), [&](const FaultRule& r) { return r.device == device; }),
                          m_rules.end());
    }
    changed();
}

bool FaultTable::contains(long long id) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return std::any_of(m_rules.begin(), m_rules.end(), [id](const FaultRule& r) { return r.id == id; });
}

const FaultRule* FaultTable::findSilent(const std::string& device, const std::string& method, const std::string& path,
                                        const std::string& target) const
{
    for (const FaultRule& r : m_rules) {
        if (r.kind == "silent" && (r.device == "*" || r.device == device) && (r.method.empty() || r.method == method) &&
            pathMatches(r.path, path, target))
            return &r;
    }
    return nullptr;
}

SilentHold FaultTable::silent(const std::string& device, const std::string& method, const std::string& path,
                              const std::string& target) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    SilentHold hold;
    if (const FaultRule* r = findSilent(device, method, path, target)) {
        hold.rule = r->id;
        hold.ms = r->delayMs;
    }
    return hold;
}

std::string FaultTable::portMode(const std::string& device) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    std::string mode;
    for (const FaultRule& r : m_rules) {
        if (isPortKind(r.kind) && (r.device == "*" || r.device == device))
            mode = r.kind; // the latest rule wins
    }
    return mode;
}

bool FaultTable::empty() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_rules.empty();
}

std::string FaultTable::toJson() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    std::string out = "{\"faults\": [";
    bool first = true;
    for (const FaultRule& r : m_rules) {
        out += first ? "\n  " : ",\n  ";
        first = false;
        out += "{\"id\": " + std::to_string(r.id) + ", \"device\": \"" + jsonEscape(r.device) + "\", \"path\": \"" +
               jsonEscape(r.path) + "\", \"method\": \"" + jsonEscape(r.method) + "\", \"kind\": \"" + r.kind +
               "\", \"ms\": " + std::to_string(r.delayMs) + ", \"status\": " + std::to_string(r.status) +
               ", \"page\": " + std::to_string(r.page) + ", \"count\": " + std::to_string(r.count) +
               (r.kind == "answer" ? ", \"body\": \"" + jsonEscape(r.body) + "\", \"contentType\": \"" + jsonEscape(r.contentType) + "\"" : std::string()) + "}";
    }
    out += "\n]}\n";
    return out;
}

bool FaultTable::pathMatches(const std::string& pattern, const std::string& path, const std::string& target)
{
    if (pattern == "*" || pattern == path || pattern == target)
        return true;
    if (!pattern.empty() && pattern.back() == '*') {
        const std::string prefix = pattern.substr(0, pattern.size() - 1);
        return path.compare(0, prefix.size(), prefix) == 0 || target.compare(0, prefix.size(), prefix) == 0;
    }
    return false;
}

FaultEffect FaultTable::match(const std::string& device, const std::string& method, const std::string& path,
                              const std::string& target)
{
    FaultEffect e;
    std::lock_guard<std::mutex> lock(m_mutex);
    for (auto it = m_rules.begin(); it != m_rules.end();) {
        FaultRule& r = *it;
        const bool hit = (r.device == "*" || r.device == device) && (r.method.empty() || r.method == method) &&
                         pathMatches(r.path, path, target);
        // Silent devices and closed ports act before a request is read or instead of it.
        if (!hit || r.kind == "silent" || isPortKind(r.kind)) {
            ++it;
            continue;
        }
        if (r.kind == "delay")
            e.delayMs += r.delayMs;
        else if (r.kind == "status" && !e.status && !e.drop)
            e.status = r.status;
        else if (r.kind == "drop" && !e.status)
            e.drop = true;
        else if (r.kind == "truncate")
            e.truncate = true;
        else if (r.kind == "malformed")
            e.malformed = true;
        else if (r.kind == "moreForever")
            e.moreForever = true;
        else if (r.kind == "failPage") {
            e.failPage = r.page;
            e.failStatus = r.status;
        } else if (r.kind == "answer" && !e.answer) {
            e.answer = true;
            e.answerStatus = r.status;
            e.answerBody = r.body;
            e.answerContentType = r.contentType;
        }
        if (r.count > 0 && --r.count == 0)
            it = m_rules.erase(it);
        else
            ++it;
    }
    return e;
}

} // namespace emulator
