// The expected keys of the pass-through records, in the order of writing. Requests start
// their encodings at "raw"; answers start them empty.
#include "ExpectedRecordKeys.h"

namespace recordkeys {

const std::vector<ExpectedRecord>& passThroughRecordKeys()
{
    static const std::vector<ExpectedRecord> table = {
        // The device's HTTP-style protocol.
        {"NxrpcPassThroughReq", "nxrpcPassThroughReq",
            {s("requestUrl"), s("inBuffer"), s("picBuffer"), s("jsonBuffer"), s("inBufferEncoding", "\"raw\""),
             s("outBufferEncoding", "\"raw\""), i("recvTimeOut", "15000"), i("numOfMultiPart"), b("forceEncrypt"),
             presentAs(s("operateType"), "OperateType")}},
        {"NxrpcPassThroughRsp", nullptr, {s("outBuffer"), s("statusBuffer")}},
        {"NxrpcPassThroughRspData", nullptr, {nested("nxrpcPassThroughRsp", "NxrpcPassThroughRsp")}},
        // The device SDK.
        {"WirekitPassThroughReq", "wirekitPassThroughReq",
            {s("func"), i("command"), i("resourceNo"), i("count"), i("outBufferLen"), s("condBuffer"),
             s("condBufferEncoding", "\"raw\""), s("inBuffer"), s("inBufferEncoding", "\"raw\"")}},
        {"WirekitPassThroughRsp", nullptr,
            {s("outBuffer"), s("outBufferEncoding"), s("statusBuffer"), s("statusBufferEncoding")}},
        {"WirekitPassThroughRspData", nullptr, {nested("wirekitPassThroughRsp", "WirekitPassThroughRsp")}},
        // Batches.
        {"BatchPassThroughReq", "batchPassThroughReq",
            {s("guid"), s("flagGuid"), b("cancel"), b("getPreviousData"), i("command"), b("hasNext"), s("condBuffer"),
             s("condBufferEncoding", "\"raw\""), i("maxResultNum"), list("batchSendDataList", "BatchSendData")}},
        {"BatchSendData", "batchSendData", {s("id"), s("inBuffer"), s("inBufferEncoding", "\"raw\"")}},
        {"BatchPassThroughRsp", nullptr,
            {s("guid"), b("isFinish"), list("batchReturnDataList", "BatchReturnData")}},
        {"BatchReturnData", nullptr,
            {s("id"), s("code"), s("outBuffer"), s("outBufferEncoding"), s("statusBuffer"),
             s("statusBufferEncoding")}},
        {"BatchPassThroughRspData", nullptr, {nested("batchPassThroughRsp", "BatchPassThroughRsp")}},
        {"CredCfgCond", "CredCfgCond", {i("totalNum"), s("enableCardReader")}},
        // DAG.
        {"DagPassThroughReq", "dagPassThroughReq", {i("command"), s("condBuffer"), s("inBuffer")}},
        {"DagPassThroughRsp", nullptr, {s("outBuffer"), s("statusBuffer")}},
        {"DagPassThroughRspData", nullptr, {nested("dagPassThroughRsp", "DagPassThroughRsp")}},
        // Base-64 payloads.
        {"SdkPassThrough", "sdkPassThrough", {s("func"), i("commandType"), i("channelNo"), s("inBufferBase64")}},
        {"SdkPassThroughResponse", nullptr, {s("outBufferBase64")}},
        {"SdkPassThroughResponseData", nullptr, {nested("sdkPassThroughResponse", "SdkPassThroughResponse")}},
    };
    return table;
}

} // namespace recordkeys
