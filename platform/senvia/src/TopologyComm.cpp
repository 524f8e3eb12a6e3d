// Clients of the client's topology and alarm services: one GET each, answered by the
// envelope {"code": ..., "msg": ..., "data": {...}} whose data is the wanted record.
#include "senvia/TopologyComm.h"

#include <cstdint>
#include <memory>
#include <utility>

#include "JSONStruct/HTTP/HTTPCommonJSONStruct.h"
#include "Plinth/Error.h"
#include "Plinth/Log.h"
#include "Plinth/StringUtil.h"
#include "ostrand/DeviceRegistry.h"
#include "senvia/HttpClient.h"

namespace senvia {

namespace {

// Modules of Plinth's last error for a service answer that came but is of no use. The
// transport's own modules (no answer, HTTP status) are set by httpGet.
enum ServiceErrorModule : int32_t {
    kNoServiceAddress = 21,  // code 0: the registry names no base URL for the service
    kMalformedAnswer = 22,   // code 0: the body is not a JSON object
    kServiceErrorCode = 23,  // code: the service's numeric "code"
    kNoData = 24,            // code 0: success without a "data" object
};

// Receives the envelope's "data" and notes whether an object came.
template <class Record>
class DataSlot : public protocol::IReturnData {
public:
    void fromJSON(const cJSON* json) override
    {
        if (!cJSON_IsObject(json))
            return;
        received = true;
        record.fromJSON(json);
    }
    cJSON* toJSON() override { return record.toJSON(); }

    Record record;
    bool received = false;
};

void logFailure(const std::string& url, const Plinth::Error::ErrorCode& error)
{
    Plinth::CSingleton<Plinth::details::CLog>::Instance().Debug(
        "", Plinth::StringUtil::FormatString("Service call [%s] failed: %s. Error code is %d-%d.", url.c_str(),
                                             error.text.c_str(), static_cast<int>(error.module),
                                             static_cast<int>(error.code)),
        PLINTH_LOCATION);
}

bool fail(const std::string& url, int32_t module, int32_t code, const std::string& text)
{
    Plinth::Error::SetLastError(module, code, text);
    logFailure(url, Plinth::Error::GetLastError());
    return false;
}

// Unreserved characters stay, everything else is percent-encoded.
std::string encodeQueryValue(const std::string& value)
{
    static const char kHex[] = "0123456789ABCDEF";
    std::string encoded;
    for (char c : value) {
        const auto byte = static_cast<unsigned char>(c);
        const bool unreserved = (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z')
            || (byte >= '0' && byte <= '9') || byte == '-' || byte == '_' || byte == '.' || byte == '~';
        if (unreserved) {
            encoded.push_back(c);
        } else {
            encoded.push_back('%');
            encoded.push_back(kHex[byte >> 4]);
            encoded.push_back(kHex[byte & 0x0F]);
        }
    }
    return encoded;
}

std::string serviceUrl(std::string base, const char* path, const std::string& deviceGuid)
{
    while (!base.empty() && base.back() == '/')
        base.pop_back();
    return base + path + encodeQueryValue(deviceGuid);
}

template <class Record>
bool fetch(const std::string& base, const char* path, const std::string& deviceGuid, Record& out)
{
    if (base.empty())
        return fail(path, kNoServiceAddress, 0, "no service address in the registry");
    const std::string url = serviceUrl(base, path, deviceGuid);

    HttpResult http;
    if (!httpGet(url, 0, http)) {
        logFailure(url, Plinth::Error::GetLastError());
        return false;
    }

    cJSON* root = cJSON_Parse(http.body.c_str());
    if (!cJSON_IsObject(root)) {
        cJSON_Delete(root);
        return fail(url, kMalformedAnswer, 0, "the answer is not a JSON object");
    }
    auto slot = std::make_shared<DataSlot<Record>>();
    protocol::ReturnData envelope(slot);
    // The services send "code" either as the envelope's "module-code" text or as a bare
    // number, zero meaning success in both. The envelope reads only the text form, so the
    // number form is read here.
    const cJSON* code = cJSON_GetObjectItem(root, "code");
    const bool numeric = cJSON_IsNumber(code);
    if (numeric) {
        if (code->valueint != 0) {
            envelope.code.module = kServiceErrorCode;
            envelope.code.code = static_cast<int32_t>(code->valueint);
        }
        if (const cJSON* msg = cJSON_GetObjectItem(root, "msg"))
            envelope.msg = msg->valuestring != nullptr ? msg->valuestring : "";
        slot->fromJSON(cJSON_GetObjectItem(root, "data"));
    }
    cJSON_Delete(root);
    if (!numeric)
        envelope.Parse(http.body);

    if (envelope.code.isError())
        return fail(url, envelope.code.module, envelope.code.code, envelope.msg);
    if (!slot->received)
        return fail(url, kNoData, 0, "the answer holds no data");
    out = std::move(slot->record);
    Plinth::Error::ClearLastError();
    return true;
}

} // namespace

bool CTopologyConfigComm::getOneDeviceNode(std::string deviceGuid, protocol::DeviceNode& node)
{
    return fetch(ostrand::CDeviceRegistry::instance().services().topology, "/topology/v1/deviceNode?guid=",
                 deviceGuid, node);
}

bool CTopoAlarmComm::request(protocol::SwitchAlarmListData& alarms, const std::string& deviceGuid)
{
    return fetch(ostrand::CDeviceRegistry::instance().services().alarm, "/alarm/v1/switchPortAlarms?guid=",
                 deviceGuid, alarms);
}

} // namespace senvia
