// Arbitrary text through the three service envelopes and through every record's
// reader, then out again through its writer. Nothing may crash, leak or touch memory
// it doesn't own, whatever the text.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "DeviceResourceRecordsFuzz.h"
#include "JSONStruct/HTTP/HTTPCommonJSONStruct.h"
#include "JSONStruct/Topology/TopologyJSONStruct.h"
#include "JSONStruct/Validators.h"
#include "Plinth/Log.h"
#include "RecordsFuzzSupport.h"

namespace {

template <class Record>
void readAndWrite(const cJSON* json)
{
    Record record;
    record.fromJSON(json);
    cJSON* written = record.toJSON();
    char* printed = cJSON_PrintUnformatted(written);
    cJSON_free(printed);
    cJSON_Delete(written);
    Record copy(record);
    copy.fromJSON(json);
}

template <class Record>
void readRequest(const cJSON* json)
{
    Record record;
    record.fromJSON(json);
    std::string error;
    record.validate(error);
    protocol::checkAnyFieldExists(error, record);
    cJSON_Delete(record.toJSON());
}

// The three envelopes over `text`, then what they read written out again.
void parseWithEachEnvelope(const std::string& text)
{
    auto node = std::make_shared<protocol::DeviceNode>();
    protocol::ReturnData envelope(node);
    if (envelope.Parse(text))
        envelope.Serialize();

    auto alarms = std::make_shared<protocol::SwitchAlarmListData>();
    protocol::ReturnDataForVideoWall wall(alarms);
    if (wall.Parse(text))
        wall.Serialize();

    auto nodes = std::make_shared<protocol::DeviceNodeListData>();
    protocol::RJReturnData rapid(std::make_shared<protocol::RJRecordAdapter>(nodes));
    if (rapid.parse(text))
        rapid.Serialize();
}

// The input put inside a nesting of arrays, objects or answers as deep as its first three
// bytes say (up to about 130,000 levels, far beyond what any envelope reads), closed or not.
std::string nestedAround(const uint8_t* data, size_t size, const std::string& inner)
{
    if (size < 3)
        return std::string();
    const size_t depth = (static_cast<size_t>(data[0]) << 9 | static_cast<size_t>(data[1]) << 1) + (data[2] & 1);
    static const char* const opens[] = {"[", "{\"a\":", "{\"code\":\"0-0\",\"data\":", "[0,"};
    static const char* const closes[] = {"]", "}", "}", "]"};
    const size_t shape = (data[2] >> 1) % 4;
    const bool closed = (data[2] & 0x80) == 0;
    std::string text;
    const std::string open = opens[shape];
    text.reserve(depth * (open.size() + 1) + inner.size());
    for (size_t i = 0; i < depth; ++i)
        text += open;
    text += inner.empty() ? std::string("{}") : inner;
    if (closed)
        text.append(depth, closes[shape][0]);
    return text;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    // Failed parses log the whole text; the fuzzer needs none of it on its terminal.
    Plinth::CSingleton<Plinth::details::CLog>::Instance().logger()->removeAllAppenders();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);

    parseWithEachEnvelope(text);
    // Deeply nested text around the input, and around its tail that is left after the bytes
    // that chose the nesting.
    parseWithEachEnvelope(nestedAround(data, size, text));
    if (size > 3)
        parseWithEachEnvelope(nestedAround(data, size, text.substr(3)));

    protocol::Str2ErrorCode(text);

    cJSON* json = cJSON_Parse(text.c_str());
    readAndWrite<protocol::DeviceNode>(json);
    readAndWrite<protocol::DeviceNodeListData>(json);
    readAndWrite<protocol::LineListData>(json);
    readAndWrite<protocol::PortListData>(json);
    readAndWrite<protocol::SwitchAlarmListData>(json);
    readAndWrite<protocol::ProgressData>(json);
    readAndWrite<protocol::PortSecurityRsp>(json);
    readRequest<protocol::TopologyParam>(json);
    readRequest<protocol::QueryCondition>(json);
    readRequest<protocol::RootNode>(json);
    readRequest<protocol::GatewayNode>(json);
    readDeviceResourceRecords(json);
    recordsfuzz::fuzzPassThroughControlStatusServiceRecords(json);
    cJSON_Delete(json);
    return 0;
}
