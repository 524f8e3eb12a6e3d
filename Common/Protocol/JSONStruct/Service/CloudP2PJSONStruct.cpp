#include "JSONStruct/Service/CloudP2PJSONStruct.h"

namespace protocol {

PROTOCOL_DEFINE_MEMBER_RECORD(CloudP2PConfigs,
    PROTOCOL_FIELD(authAddr),
    PROTOCOL_FIELD(openAddr),
    PROTOCOL_FIELD(appKey),
    PROTOCOL_FIELD(appSecret),
    PROTOCOL_FIELD(pushSecret),
    PROTOCOL_FIELD(loginVersion))

PROTOCOL_DEFINE_MEMBER_RECORD(CloudP2PAccountResult,
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(accessToken),
    PROTOCOL_FIELD(areaDomain),
    PROTOCOL_FIELD(online))

PROTOCOL_DEFINE_RECORD(CloudP2PAccountInfo,
    PROTOCOL_FIELD(accessToken),
    PROTOCOL_FIELD(areaDomain),
    PROTOCOL_FIELD(tokenFileName),
    PROTOCOL_FIELD(tokenFileContent))

PROTOCOL_DEFINE_RECORD(CloudP2PAccountResultData,
    PROTOCOL_FIELD(CloudP2PAccountResult))

PROTOCOL_DEFINE_RECORD(CloudP2PConfigsData,
    PROTOCOL_FIELD(cloudP2PConfigs))

} // namespace protocol
