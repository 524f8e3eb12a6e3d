#pragma once
// The streaming media servers that the client knows: adding, listing, changing and
// removing them.
#include <cstdint>
#include <string>
#include <vector>

#include "JSONStruct/FieldTable.h"

namespace protocol {

struct SmsAddInfo : public IInboundData {
    std::string alias;
    std::vector<std::string> ipList;
    int32_t port = 0;

    PROTOCOL_DECLARE_RECORD(SmsAddInfo)
    PROTOCOL_ROOT_NAME("smsAddInfo")
};

struct SmsResult : public IReturnData {
    std::string alias;
    std::string guid;
    std::string code;

    PROTOCOL_DECLARE_RECORD(SmsResult)
};

struct SmsResponse : public IReturnData {
    std::string guid;
    std::string alias;
    std::string ip;
    int32_t port = 0;

    PROTOCOL_DECLARE_RECORD(SmsResponse)
};

struct SmsGuidList : public IInboundData {
    std::vector<std::string> guidList;

    PROTOCOL_DECLARE_RECORD(SmsGuidList)
    PROTOCOL_ROOT_NAME("smsGuidList")
    bool validate(std::string& error) override;
};

struct SmsModificationReq : public IInboundData {
    std::string alias;
    std::string ip;
    int32_t port = 0;

    PROTOCOL_DECLARE_RECORD(SmsModificationReq)
    PROTOCOL_ROOT_NAME("smsModificationReq")
    bool validate(std::string& error) override;
};

struct SmsResponseData : public IReturnData {
    SmsResponse smsResponse;

    PROTOCOL_DECLARE_RECORD(SmsResponseData)
};

struct SmsResponseListData : public IReturnData {
    std::vector<SmsResponse> smsResponseList;

    PROTOCOL_DECLARE_RECORD(SmsResponseListData)
};

struct SmsResultListData : public IReturnData {
    std::vector<SmsResult> smsResultList;

    PROTOCOL_DECLARE_RECORD(SmsResultListData)
};

} // namespace protocol
