#pragma once
// Bases of the protocol records: every record is the image of one JSON object of the
// client's services. Derive a request from IInboundData and a response or nested record
// from IReturnData, declare the fields as members with their defaults and list them once
// with PROTOCOL_RECORD (see FieldTable.h); reading, writing and presentKeys follow.
#include <cjson/cJSON.h>

#include <cstdint>
#include <string>
#include <vector>

#include "JSONStruct/PresentKeys.h"

namespace protocol {

class IJSONStruct {
public:
    // Keys that fromJSON found in the object, spelt as the record declares them: a set of
    // std::string in all but name (see PresentKeys.h).
    PresentKeys presentKeys;

    // Reads the fields present in `json`; a null pointer changes nothing. Never fails.
    virtual void fromJSON(const cJSON* json) = 0;
    // A new object holding every field; the caller owns it. Null when out of memory.
    virtual cJSON* toJSON() = 0;

protected:
    IJSONStruct() = default;
    IJSONStruct(const IJSONStruct&) = default;
    IJSONStruct(IJSONStruct&&) = default;
    IJSONStruct& operator=(const IJSONStruct&) = default;
    IJSONStruct& operator=(IJSONStruct&&) = default;
    // Records are deleted through IInboundData or IReturnData, never through this base.
    ~IJSONStruct() = default;
};

// Output filter shared by every record, and the writers that apply it. Nothing in the
// client sets the two members, so every record writes all it has; the writers still go
// through the filter so that a caller may narrow one level of a record's output.
class SerializationIgnoreItemFeatures {
public:
    // 0: the names in ignoreItems are dropped; 1: only those names are kept; other: no filter.
    int32_t ignoreMode = 0;
    std::vector<std::string> ignoreItems;

    // True when `key` is not to be written. A null or empty key (array elements) always passes.
    bool isItemIgnored(const char* key) const;
    // False when isItemIgnored passes every key, as it does in every record of the client;
    // writers then skip the test per field.
    bool filtersSomeKey() const { return ignoreMode == 1 || (ignoreMode == 0 && !ignoreItems.empty()); }

    void addBoolItem(cJSON* object, const char* key, bool value) const;
    void addStringItem(cJSON* object, const char* key, const char* value) const;
    void addNumberItem(cJSON* object, const char* key, double value) const;
    // Takes ownership of `item` in every case: an ignored or unplaceable item is deleted.
    void addChildItem(cJSON* object, const char* key, cJSON* item) const;

protected:
    SerializationIgnoreItemFeatures() = default;
    SerializationIgnoreItemFeatures(const SerializationIgnoreItemFeatures&) = default;
    SerializationIgnoreItemFeatures(SerializationIgnoreItemFeatures&&) = default;
    SerializationIgnoreItemFeatures& operator=(const SerializationIgnoreItemFeatures&) = default;
    SerializationIgnoreItemFeatures& operator=(SerializationIgnoreItemFeatures&&) = default;
    ~SerializationIgnoreItemFeatures() = default;
};

// Base of request records: the record travels under the root key that rootName() gives.
class IInboundData : public virtual SerializationIgnoreItemFeatures, public IJSONStruct {
public:
    // A string literal that lives for the whole run.
    virtual const char* rootName() const = 0;
    virtual ~IInboundData();
    // Checks the fields before sending; on failure `error` names the first bad field.
    // The base accepts everything and leaves `error` alone.
    virtual bool validate(std::string& error);

protected:
    // No defaulted move assignment here: it would assign the virtual base more than once.
    IInboundData() = default;
    IInboundData(const IInboundData&) = default;
    IInboundData(IInboundData&&) = default;
    IInboundData& operator=(const IInboundData&) = default;
};

// Base of response records and of records nested in others.
class IReturnData : public virtual SerializationIgnoreItemFeatures, public IJSONStruct {
public:
    virtual ~IReturnData();

protected:
    // No defaulted move assignment here: it would assign the virtual base more than once.
    IReturnData() = default;
    IReturnData(const IReturnData&) = default;
    IReturnData(IReturnData&&) = default;
    IReturnData& operator=(const IReturnData&) = default;
};

} // namespace protocol
