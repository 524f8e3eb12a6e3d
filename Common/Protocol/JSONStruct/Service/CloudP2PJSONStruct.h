#pragma once
// Cloud accounts: the cloud's service addresses and keys, and the account signed in.
#include <cstdint>
#include <string>
#include <vector>

#include "JSONStruct/FieldTable.h"

namespace protocol {

struct CloudP2PConfigs : public IReturnData {
    std::string authAddr;
    std::string openAddr;
    std::string appKey;
    std::string appSecret;
    std::string pushSecret;
    std::string loginVersion;

    PROTOCOL_DECLARE_MEMBER_RECORD(CloudP2PConfigs)
};

struct CloudP2PAccountResult : public IReturnData {
    std::string name;
    std::string accessToken;
    std::string areaDomain;
    bool online = false;

    PROTOCOL_DECLARE_MEMBER_RECORD(CloudP2PAccountResult)
};

struct CloudP2PAccountInfo : public IInboundData {
    std::string accessToken;
    std::string areaDomain;
    std::string tokenFileName;
    std::string tokenFileContent;

    PROTOCOL_DECLARE_RECORD(CloudP2PAccountInfo)
    // The root key starts with a blank, as the service spells it.
    PROTOCOL_ROOT_NAME(" CloudP2PAccountInfo")
};

struct CloudP2PAccountResultData : public IReturnData {
    protocol::CloudP2PAccountResult CloudP2PAccountResult;

    PROTOCOL_DECLARE_RECORD(CloudP2PAccountResultData)
};

struct CloudP2PConfigsData : public IReturnData {
    CloudP2PConfigs cloudP2PConfigs;

    PROTOCOL_DECLARE_RECORD(CloudP2PConfigsData)
};

} // namespace protocol
