#pragma once
// What the records fuzzer does with each record type: read the tree, write and print it,
// copy it and read again; a request is also checked.
#include <cjson/cJSON.h>

#include <string>
#include <type_traits>

#include "JSONStruct/IJSONStruct.h"
#include "JSONStruct/Validators.h"

namespace recordsfuzz {

template <class Record>
void exercise(const cJSON* json)
{
    Record record;
    record.fromJSON(json);
    cJSON* written = record.toJSON();
    char* printed = cJSON_PrintUnformatted(written);
    cJSON_free(printed);
    cJSON_Delete(written);
    Record copy(record);
    copy.fromJSON(json);
    if constexpr (std::is_base_of_v<protocol::IInboundData, Record>) {
        std::string error;
        copy.validate(error);
        protocol::checkAnyFieldExists(error, copy);
    }
}

template <class... Records>
void exerciseAll(const cJSON* json)
{
    (exercise<Records>(json), ...);
}

// The pass-through, control, status and service records.
void fuzzPassThroughControlStatusServiceRecords(const cJSON* json);

} // namespace recordsfuzz
