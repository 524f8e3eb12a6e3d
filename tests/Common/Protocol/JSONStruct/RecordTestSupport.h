#pragma once
// Shared helpers of the record tests: JSON text in and out, a capture of error log lines,
// and a test record that holds one field of every kind.
#include <cjson/cJSON.h>

#include <memory>
#include <string>
#include <vector>

#include "JSONStruct/FieldTable.h"
#include "JSONStruct/Topology/TopologyJSONStruct.h"

namespace recordtest {

struct JsonDeleter {
    void operator()(cJSON* json) const { cJSON_Delete(json); }
};
using Json = std::unique_ptr<cJSON, JsonDeleter>;

// The parsed tree of `text`; null when the text isn't JSON.
Json parse(const std::string& text);
// Compact text of `json` ("" for null).
std::string print(const cJSON* json);
// Compact text of what `record.toJSON()` writes.
std::string written(protocol::IJSONStruct& record);
// `record.fromJSON` of the tree of `text`.
void read(protocol::IJSONStruct& record, const std::string& text);

// Collects the messages that reach the client's logger while it lives.
class LogCapture {
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    // Messages logged at error level, oldest first.
    std::vector<std::string> errors() const;
    std::vector<std::string> all() const;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

// One field of every kind, with odd keys and asymmetric rules.
struct KindSampler : public protocol::IInboundData {
    std::string text;
    int32_t count = 0;
    bool enable = false;
    bool supportAny = false;
    double ratio = 0.0;
    int32_t flag = -1;
    int32_t renamed = 0;
    std::string padded;
    protocol::SwitchAlarm child;
    std::vector<protocol::SwitchAlarm> items;
    std::vector<std::string> names;
    std::vector<int32_t> numbers;

    PROTOCOL_RECORD(KindSampler,
        PROTOCOL_FIELD(text),
        PROTOCOL_FIELD(count),
        PROTOCOL_FIELD(enable),
        PROTOCOL_FIELD(supportAny).nonZero(),
        PROTOCOL_FIELD(ratio),
        PROTOCOL_FIELD(flag).writtenAsBoolean(),
        PROTOCOL_FIELD(renamed).readFrom("iRenamed"),
        PROTOCOL_KEYED_FIELD(" padded ", padded),
        PROTOCOL_FIELD(child),
        PROTOCOL_FIELD(items),
        PROTOCOL_FIELD(names),
        PROTOCOL_FIELD(numbers))
    PROTOCOL_ROOT_NAME("kindSampler")
};

} // namespace recordtest
