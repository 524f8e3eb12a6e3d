#include "JSONStruct/IJSONStruct.h"

#include <algorithm>
#include <cstring>

namespace protocol {

bool SerializationIgnoreItemFeatures::isItemIgnored(const char* key) const
{
    if (key == nullptr || key[0] == '\0')
        return false;
    const bool listed = std::find(ignoreItems.begin(), ignoreItems.end(), key) != ignoreItems.end();
    switch (ignoreMode) {
    case 0:
        return listed;
    case 1:
        return !listed;
    default:
        return false;
    }
}

void SerializationIgnoreItemFeatures::addBoolItem(cJSON* object, const char* key, bool value) const
{
    if (isItemIgnored(key))
        return;
    addChildItem(object, key, cJSON_CreateBool(value ? 1 : 0));
}

void SerializationIgnoreItemFeatures::addStringItem(cJSON* object, const char* key, const char* value) const
{
    if (isItemIgnored(key))
        return;
    addChildItem(object, key, cJSON_CreateString(value));
}

void SerializationIgnoreItemFeatures::addNumberItem(cJSON* object, const char* key, double value) const
{
    if (isItemIgnored(key))
        return;
    addChildItem(object, key, cJSON_CreateNumber(value));
}

void SerializationIgnoreItemFeatures::addChildItem(cJSON* object, const char* key, cJSON* item) const
{
    if (item == nullptr)
        return;
    if (object == nullptr || key == nullptr || isItemIgnored(key) || !cJSON_AddItemToObject(object, key, item))
        cJSON_Delete(item);
}

IInboundData::~IInboundData() = default;

bool IInboundData::validate(std::string& /*error*/)
{
    return true;
}

IReturnData::~IReturnData() = default;

} // namespace protocol
