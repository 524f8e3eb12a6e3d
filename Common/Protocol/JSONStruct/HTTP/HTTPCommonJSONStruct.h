#pragma once
// Envelopes of the client's service answers: {"code": ..., "msg": ..., "data": {...}}.
// The caller hands in the record that receives "data" and reads code and msg after Parse.
#include <memory>
#include <string>

#include <rapidjson/document.h>

#include "JSONStruct/IJSONStruct.h"
#include "Plinth/Error.h"

namespace protocol {

// "module-code" (pieces split at every "-", empty pieces dropped) into an error code;
// any other shape is logged and gives the all-zero code. The text stays empty.
Plinth::Error::ErrorCode Str2ErrorCode(const std::string& text);
// Module and code in decimal, joined by "-".
std::string ErrorCode2Str(const Plinth::Error::ErrorCode& code);

// The envelope of the services: "code" is the text "module-code".
class ReturnData {
public:
    ReturnData();
    explicit ReturnData(std::shared_ptr<IReturnData> data);

    // False for an empty text (not logged) and for text that isn't JSON (logged). Keys
    // that are missing leave their members as they were.
    bool Parse(const std::string& json);
    // Indented JSON text of code, msg and, when set, data.
    std::string Serialize();

    Plinth::Error::ErrorCode code;
    std::string msg;
    std::shared_ptr<IReturnData> data; // receives "data"; null when the caller doesn't want it
};

// The video wall's envelope: "code" and "module" are texts of bare numbers, and "module"
// is taken only beside a "msg".
class ReturnDataForVideoWall {
public:
    ReturnDataForVideoWall();
    explicit ReturnDataForVideoWall(std::shared_ptr<IReturnData> data);

    bool Parse(const std::string& json);
    // Indented JSON text: "code" and "module" as numbers.
    std::string Serialize();

    Plinth::Error::ErrorCode code;
    std::string msg;
    std::shared_ptr<IReturnData> data;
};

// What RJReturnData hands its "data" object to.
class IRJReturnData {
public:
    virtual void fromJSON(const rapidjson::Value& json) = 0;
    // Sets `json` to the record's object, allocating from `allocator`.
    virtual void toJSON(rapidjson::Value& json, rapidjson::MemoryPoolAllocator<>& allocator) = 0;
    virtual ~IRJReturnData();
};

// Lets any cJSON record receive RJReturnData's "data": the value goes through the record's
// own field table, so no record is declared twice.
class RJRecordAdapter : public IRJReturnData {
public:
    explicit RJRecordAdapter(std::shared_ptr<IReturnData> record);

    void fromJSON(const rapidjson::Value& json) override;
    void toJSON(rapidjson::Value& json, rapidjson::MemoryPoolAllocator<>& allocator) override;

    std::shared_ptr<IReturnData> record;
};

// The same envelope read and written with RapidJSON.
class RJReturnData {
public:
    RJReturnData();
    explicit RJReturnData(std::shared_ptr<IRJReturnData> data);

    // False for an empty text and for text that isn't JSON (logged with RapidJSON's
    // error code and offset). A "code" or "msg" that isn't a string counts as "".
    bool parse(const std::string& json);
    // Compact JSON text through RapidJSON's writer.
    std::string Serialize();

    Plinth::Error::ErrorCode code;
    std::string msg;
    std::shared_ptr<IRJReturnData> data;
};

} // namespace protocol
