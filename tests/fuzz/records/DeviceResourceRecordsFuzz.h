#pragma once
// The device and resource records' share of the records fuzzer.
#include <cjson/cJSON.h>

// Reads `json` (any tree, or null) into every device and resource record type.
void readDeviceResourceRecords(const cJSON* json);
