#include "JSONStruct/HTTP/HTTPCommonJSONStruct.h"

#include <cstdlib>
#include <sstream>
#include <utility>
#include <vector>

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include "Plinth/Log.h"
#include "Plinth/StringUtil.h"

namespace protocol {

namespace {

void logError(const std::string& message, const log4cxx::spi::LocationInfo& location)
{
    Plinth::CSingleton<Plinth::details::CLog>::Instance().Error("", message, location);
}

// The frame of both cJSON envelopes: an empty text fails quietly, a text that isn't JSON
// fails with a log line; otherwise `readKeys` takes what it wants from the tree.
template <class ReadKeys>
bool parseEnvelope(const std::string& json, ReadKeys readKeys)
{
    if (json.empty())
        return false;
    cJSON* root = cJSON_Parse(json.c_str());
    if (root == nullptr) {
        const char* where = cJSON_GetErrorPtr();
        logError(Plinth::StringUtil::FormatString("Failed to cJSON_Parse( [%s] ). Error info: [%s].",
                                                  json.c_str(), where != nullptr ? where : ""),
                 PLINTH_LOCATION);
        return false;
    }
    readKeys(root);
    cJSON_Delete(root);
    return true;
}

// An object filled by `writeKeys`, printed with indentation.
template <class WriteKeys>
std::string serializeEnvelope(WriteKeys writeKeys)
{
    std::string text;
    cJSON* object = cJSON_CreateObject();
    if (object == nullptr)
        return text;
    writeKeys(object);
    if (char* printed = cJSON_Print(object)) {
        text = printed;
        cJSON_free(printed);
    }
    cJSON_Delete(object);
    return text;
}

const char* stringOf(const cJSON* node)
{
    return node->valuestring != nullptr ? node->valuestring : "";
}

void readData(const cJSON* root, const std::shared_ptr<IReturnData>& data)
{
    const cJSON* node = cJSON_GetObjectItem(root, "data");
    if (node != nullptr && data)
        data->fromJSON(node);
}

void addData(cJSON* object, const std::shared_ptr<IReturnData>& data)
{
    if (!data)
        return;
    cJSON* item = data->toJSON();
    if (item != nullptr && !cJSON_AddItemToObject(object, "data", item))
        cJSON_Delete(item);
}

std::string rapidString(const rapidjson::Value& object, const char* key, bool& present)
{
    const auto member = object.FindMember(key);
    present = member != object.MemberEnd();
    if (!present || !member->value.IsString())
        return std::string();
    return std::string(member->value.GetString(), member->value.GetStringLength());
}

} // namespace

Plinth::Error::ErrorCode Str2ErrorCode(const std::string& text)
{
    std::vector<std::string> pieces;
    std::string piece;
    for (char c : text) {
        if (c == '-') {
            if (!piece.empty())
                pieces.push_back(piece);
            piece.clear();
        } else {
            piece.push_back(c);
        }
    }
    if (!piece.empty())
        pieces.push_back(piece);

    Plinth::Error::ErrorCode code;
    if (pieces.size() != 2) {
        logError(Plinth::StringUtil::FormatString("Invalid return code. code: [%s].", text.c_str()), PLINTH_LOCATION);
        return code;
    }
    std::istringstream(pieces[0]) >> code.module;
    std::istringstream(pieces[1]) >> code.code;
    return code;
}

std::string ErrorCode2Str(const Plinth::Error::ErrorCode& code)
{
    return std::to_string(code.module) + "-" + std::to_string(code.code);
}

ReturnData::ReturnData() = default;

ReturnData::ReturnData(std::shared_ptr<IReturnData> data)
    : data(std::move(data))
{
}

bool ReturnData::Parse(const std::string& json)
{
    return parseEnvelope(json, [this](const cJSON* root) {
        if (const cJSON* node = cJSON_GetObjectItem(root, "code"))
            code = Str2ErrorCode(stringOf(node));
        if (const cJSON* node = cJSON_GetObjectItem(root, "msg"))
            msg = stringOf(node);
        readData(root, data);
    });
}

std::string ReturnData::Serialize()
{
    return serializeEnvelope([this](cJSON* object) {
        cJSON_AddStringToObject(object, "code", ErrorCode2Str(code).c_str());
        cJSON_AddStringToObject(object, "msg", msg.c_str());
        addData(object, data);
    });
}

ReturnDataForVideoWall::ReturnDataForVideoWall() = default;

ReturnDataForVideoWall::ReturnDataForVideoWall(std::shared_ptr<IReturnData> data)
    : data(std::move(data))
{
}

bool ReturnDataForVideoWall::Parse(const std::string& json)
{
    return parseEnvelope(json, [this](const cJSON* root) {
        if (const cJSON* node = cJSON_GetObjectItem(root, "code"))
            code.code = std::atoi(stringOf(node));
        if (const cJSON* node = cJSON_GetObjectItem(root, "msg")) {
            msg = stringOf(node);
            // The video wall sends "module" together with "msg". A reply without it is outside
            // the contract; it leaves the module as it was rather than reading through null.
            if (const cJSON* module = cJSON_GetObjectItem(root, "module"))
                code.module = std::atoi(stringOf(module));
        }
        readData(root, data);
    });
}

std::string ReturnDataForVideoWall::Serialize()
{
    return serializeEnvelope([this](cJSON* object) {
        cJSON_AddNumberToObject(object, "code", code.code);
        cJSON_AddStringToObject(object, "msg", msg.c_str());
        cJSON_AddNumberToObject(object, "module", code.module);
        addData(object, data);
    });
}

IRJReturnData::~IRJReturnData() = default;

RJRecordAdapter::RJRecordAdapter(std::shared_ptr<IReturnData> record)
    : record(std::move(record))
{
}

void RJRecordAdapter::fromJSON(const rapidjson::Value& json)
{
    if (!record)
        return;
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    json.Accept(writer);
    cJSON* tree = cJSON_Parse(buffer.GetString());
    if (tree == nullptr)
        return;
    record->fromJSON(tree);
    cJSON_Delete(tree);
}

void RJRecordAdapter::toJSON(rapidjson::Value& json, rapidjson::MemoryPoolAllocator<>& allocator)
{
    json.SetObject();
    if (!record)
        return;
    cJSON* tree = record->toJSON();
    if (tree == nullptr)
        return;
    char* printed = cJSON_PrintUnformatted(tree);
    cJSON_Delete(tree);
    if (printed == nullptr)
        return;
    rapidjson::Document document(&allocator);
    document.Parse(printed);
    cJSON_free(printed);
    if (!document.HasParseError())
        json.CopyFrom(document, allocator);
}

RJReturnData::RJReturnData() = default;

RJReturnData::RJReturnData(std::shared_ptr<IRJReturnData> data)
    : data(std::move(data))
{
}

bool RJReturnData::parse(const std::string& json)
{
    if (json.empty())
        return false;
    rapidjson::Document document;
    document.Parse(json.c_str(), json.size());
    if (document.HasParseError()) {
        logError(Plinth::StringUtil::FormatString("Parsing JSON fails.[ParseErrorCode=%d,ErrorOffset=%d,json=%s]",
                                                  static_cast<int>(document.GetParseError()),
                                                  static_cast<int>(document.GetErrorOffset()), json.c_str()),
                 PLINTH_LOCATION);
        return false;
    }
    // A document that is not an object has none of the three keys.
    if (!document.IsObject())
        return true;

    bool present = false;
    const std::string codeText = rapidString(document, "code", present);
    if (present)
        code = Str2ErrorCode(codeText);
    const std::string msgText = rapidString(document, "msg", present);
    if (present)
        msg = msgText;
    const auto dataMember = document.FindMember("data");
    if (dataMember != document.MemberEnd() && dataMember->value.IsObject() && data)
        data->fromJSON(dataMember->value);
    return true;
}

std::string RJReturnData::Serialize()
{
    rapidjson::Document document;
    document.SetObject();
    auto& allocator = document.GetAllocator();
    const std::string codeText = ErrorCode2Str(code);
    document.AddMember("code", rapidjson::Value(codeText.data(), static_cast<rapidjson::SizeType>(codeText.size()), allocator), allocator);
    document.AddMember("msg", rapidjson::Value(msg.data(), static_cast<rapidjson::SizeType>(msg.size()), allocator), allocator);
    if (data) {
        rapidjson::Value value;
        data->toJSON(value, allocator);
        document.AddMember("data", value, allocator);
    }
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    document.Accept(writer);
    return std::string(buffer.GetString(), buffer.GetSize());
}

} // namespace protocol
