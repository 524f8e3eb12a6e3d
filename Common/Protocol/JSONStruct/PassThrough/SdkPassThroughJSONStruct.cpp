#include "JSONStruct/PassThrough/SdkPassThroughJSONStruct.h"

namespace protocol {

PROTOCOL_DEFINE_RECORD(SdkPassThrough,
    PROTOCOL_FIELD(func),
    PROTOCOL_FIELD(commandType),
    PROTOCOL_FIELD(channelNo),
    PROTOCOL_FIELD(inBufferBase64))

PROTOCOL_DEFINE_MEMBER_RECORD(SdkPassThroughResponse,
    PROTOCOL_FIELD(outBufferBase64))

PROTOCOL_DEFINE_RECORD(SdkPassThroughResponseData,
    PROTOCOL_FIELD(sdkPassThroughResponse))

} // namespace protocol
