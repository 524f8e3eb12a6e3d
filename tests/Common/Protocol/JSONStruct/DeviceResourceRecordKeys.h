#pragma once
// What the services define for each device and resource record, kept apart from the records
// so that a key left out of a record's field list shows up as a difference.
#include <vector>

namespace recordtest {

struct ExpectedKey {
    const char* key;
    const char* kind;          // see DeviceResourceRecordKeys.cpp
    const char* defaultValue;  // JSON text of the default, or null for the kind's own
};

struct ExpectedRecord {
    const char* name;
    const char* rootName;      // null for response and nested records
    std::vector<ExpectedKey> keys;
};

// Every device, resource, resource query and capability record, and the topology port that
// the device answer lists.
const std::vector<ExpectedRecord>& expectedDeviceResourceRecords();

} // namespace recordtest
