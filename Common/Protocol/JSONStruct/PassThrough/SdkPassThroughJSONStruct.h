#pragma once
// The SDK pass-through whose payloads travel as base-64 text; the encoding is in the key
// names, so there is no encoding field.
#include <cstdint>
#include <string>

#include "JSONStruct/FieldTable.h"

namespace protocol {

struct SdkPassThrough : public IInboundData {
    std::string func;
    int32_t commandType = 0;
    int32_t channelNo = 0;
    std::string inBufferBase64;

    PROTOCOL_DECLARE_RECORD(SdkPassThrough)
    PROTOCOL_ROOT_NAME("sdkPassThrough")
};

struct SdkPassThroughResponse : public IReturnData {
    std::string outBufferBase64;

    PROTOCOL_DECLARE_MEMBER_RECORD(SdkPassThroughResponse)
};

struct SdkPassThroughResponseData : public IReturnData {
    SdkPassThroughResponse sdkPassThroughResponse;

    PROTOCOL_DECLARE_RECORD(SdkPassThroughResponseData)
};

} // namespace protocol
