#include "JSONStruct/HTTP/HTTPCommonJSONStruct.h"

#include <cstdlib>
#include <sstream>
#include <utility>
#include <vector>

#include <rapidjson/encodedstream.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>
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

// The deepest nesting of arrays and objects an answer may have. cJSON refuses anything
// deeper while parsing; the RapidJSON envelope refuses at the same depth, so that the three
// envelopes agree, and so that nothing that later walks a document recursively (a writer,
// the record adapter) can run out of stack, also on a pool thread with a small stack.
constexpr unsigned kMaxNesting = CJSON_NESTING_LIMIT;

// Passes the reader's events on to a document and stops the parse at a nesting deeper than
// kMaxNesting. With the iterative reader nothing here recurses, however deep the text.
class NestingLimitedHandler {
public:
    using Ch = rapidjson::Document::Ch;
    explicit NestingLimitedHandler(rapidjson::Document& document) : m_document(document) {}

    bool Null() { return m_document.Null(); }
    bool Bool(bool b) { return m_document.Bool(b); }
    bool Int(int i) { return m_document.Int(i); }
    bool Uint(unsigned u) { return m_document.Uint(u); }
    bool Int64(int64_t i) { return m_document.Int64(i); }
    bool Uint64(uint64_t u) { return m_document.Uint64(u); }
    bool Double(double d) { return m_document.Double(d); }
    bool RawNumber(const Ch* text, rapidjson::SizeType length, bool copy)
    {
        return m_document.RawNumber(text, length, copy);
    }
    bool String(const Ch* text, rapidjson::SizeType length, bool copy) { return m_document.String(text, length, copy); }
    bool Key(const Ch* text, rapidjson::SizeType length, bool copy) { return m_document.Key(text, length, copy); }
    bool StartObject() { return enter() && m_document.StartObject(); }
    bool EndObject(rapidjson::SizeType members)
    {
        --m_depth;
        return m_document.EndObject(members);
    }
    bool StartArray() { return enter() && m_document.StartArray(); }
    bool EndArray(rapidjson::SizeType elements)
    {
        --m_depth;
        return m_document.EndArray(elements);
    }

private:
    bool enter() { return ++m_depth <= kMaxNesting; }

    rapidjson::Document& m_document;
    unsigned m_depth = 0;
};

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
    if (tree == nullptr) {
        // A value of a parsed envelope is never nested too deeply for cJSON; one built by hand
        // may be.
        const char* where = cJSON_GetErrorPtr();
        logError(Plinth::StringUtil::FormatString("Failed to cJSON_Parse( [%s] ). Error info: [%s].",
                                                  buffer.GetString(), where != nullptr ? where : ""),
                 PLINTH_LOCATION);
        return;
    }
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
    // Read as Document::Parse(text, length) reads, but iteratively and with a limit on the
    // nesting; a text nested too deeply fails as "terminated by the handler".
    rapidjson::Document document;
    rapidjson::Reader reader;
    auto read = [&](rapidjson::Document& target) {
        rapidjson::MemoryStream memory(json.data(), json.size());
        rapidjson::EncodedInputStream<rapidjson::UTF8<>, rapidjson::MemoryStream> input(memory);
        NestingLimitedHandler handler(target);
        return !reader.Parse<rapidjson::kParseIterativeFlag>(input, handler).IsError();
    };
    document.Populate(read);
    if (reader.HasParseError()) {
        logError(Plinth::StringUtil::FormatString("Parsing JSON fails.[ParseErrorCode=%d,ErrorOffset=%d,json=%s]",
                                                  static_cast<int>(reader.GetParseErrorCode()),
                                                  static_cast<int>(reader.GetErrorOffset()), json.c_str()),
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
