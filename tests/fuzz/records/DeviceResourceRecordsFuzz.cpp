// Arbitrary JSON through every device, resource, resource query and capability record:
// read, write, print, copy and read again, and each request's validate.
#include <string>
#include <type_traits>

#include "DeviceResourceRecordList.h"
#include "DeviceResourceRecordsFuzz.h"

namespace {

template <class Record>
void readWriteAndCheck(const cJSON* json)
{
    Record record(json);
    cJSON* written = record.toJSON();
    char* printed = cJSON_PrintUnformatted(written);
    cJSON_free(printed);
    cJSON_Delete(written);
    Record copy(record);
    copy.fromJSON(json);
    if constexpr (std::is_base_of_v<protocol::IInboundData, Record>) {
        std::string error;
        copy.validate(error);
    }
}

} // namespace

void readDeviceResourceRecords(const cJSON* json)
{
#define DEVICE_RESOURCE_FUZZ(Record) readWriteAndCheck<protocol::Record>(json);
    DEVICE_RESOURCE_RECORDS(DEVICE_RESOURCE_FUZZ)
#undef DEVICE_RESOURCE_FUZZ
}
