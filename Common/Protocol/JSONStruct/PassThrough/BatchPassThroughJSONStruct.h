#pragma once
// The batched pass-through: several payloads to one device in one call, possibly spread
// over several rounds, and the answers by payload id. The service's paging flags are
// carried as they stand.
#include <cstdint>
#include <string>
#include <vector>

#include "JSONStruct/FieldTable.h"

namespace protocol {

// One payload of a batch. A request record with a root key of its own, although the
// batch writes it without that key.
struct BatchSendData : public IInboundData {
    std::string id;
    std::string inBuffer;
    std::string inBufferEncoding = "raw";

    PROTOCOL_DECLARE_RECORD(BatchSendData)
    PROTOCOL_ROOT_NAME("batchSendData")
};

struct BatchPassThroughReq : public IInboundData {
    std::string guid;
    std::string flagGuid;
    bool cancel = false;
    bool getPreviousData = false;
    int32_t command = 0;
    bool hasNext = false;
    std::string condBuffer;
    std::string condBufferEncoding = "raw";
    int32_t maxResultNum = 0;
    std::vector<BatchSendData> batchSendDataList;

    PROTOCOL_DECLARE_RECORD(BatchPassThroughReq)
    PROTOCOL_ROOT_NAME("batchPassThroughReq")
};

// The answer to one payload, by its id.
struct BatchReturnData : public IReturnData {
    std::string id;
    std::string code;
    std::string outBuffer;
    std::string outBufferEncoding;
    std::string statusBuffer;
    std::string statusBufferEncoding;

    PROTOCOL_DECLARE_RECORD(BatchReturnData)
};

struct BatchPassThroughRsp : public IReturnData {
    std::string guid;
    bool isFinish = false;
    std::vector<BatchReturnData> batchReturnDataList;

    PROTOCOL_DECLARE_MEMBER_RECORD(BatchPassThroughRsp)
};

struct BatchPassThroughRspData : public IReturnData {
    BatchPassThroughRsp batchPassThroughRsp;

    PROTOCOL_DECLARE_RECORD(BatchPassThroughRspData)
};

// Condition of a credential configuration batch.
struct CredCfgCond : public IInboundData {
    int32_t totalNum = 0;
    std::string enableCardReader;

    PROTOCOL_DECLARE_RECORD(CredCfgCond)
    // The root key starts with a capital, unlike its neighbours.
    PROTOCOL_ROOT_NAME("CredCfgCond")
};

} // namespace protocol
