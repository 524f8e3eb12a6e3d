// The pass-through records: every record against its expected keys, the rules of the
// record frame on one record of each family, and the encodings, lists and wrappers that
// each family shares.
#include <gtest/gtest.h>

#include "JSONStruct/PassThrough/BatchPassThroughJSONStruct.h"
#include "JSONStruct/PassThrough/DagPassThroughJSONStruct.h"
#include "JSONStruct/PassThrough/NxrpcPassThroughJSONStruct.h"
#include "JSONStruct/PassThrough/SdkPassThroughJSONStruct.h"
#include "JSONStruct/PassThrough/WirekitPassThroughJSONStruct.h"
#include "RecordKeyTableTests.h"

#define PASS_THROUGH_RECORDS(X)                                                                                      \
    X(NxrpcPassThroughReq) X(NxrpcPassThroughRsp) X(NxrpcPassThroughRspData)                                         \
    X(WirekitPassThroughReq) X(WirekitPassThroughRsp) X(WirekitPassThroughRspData)                                   \
    X(BatchPassThroughReq) X(BatchSendData) X(BatchPassThroughRsp) X(BatchReturnData) X(BatchPassThroughRspData)     \
    X(CredCfgCond)                                                                                                   \
    X(DagPassThroughReq) X(DagPassThroughRsp) X(DagPassThroughRspData)                                               \
    X(SdkPassThrough) X(SdkPassThroughResponse) X(SdkPassThroughResponseData)

RECORDKEYS_INSTANTIATE(PassThrough, PASS_THROUGH_RECORDS)

namespace recordkeys {
using PassThroughFamilies = ::testing::Types<protocol::WirekitPassThroughReq, protocol::BatchPassThroughReq,
                                             protocol::BatchPassThroughRspData, protocol::DagPassThroughReq,
                                             protocol::SdkPassThrough>;
INSTANTIATE_TYPED_TEST_SUITE_P(PassThrough, RecordFrameworkEdgeCases, PassThroughFamilies, RecordNameGenerator);
} // namespace recordkeys

using namespace protocol;
using recordtest::read;
using recordtest::written;

TEST(PassThroughRecords, ListAndKeyTableNameTheSameRecords)
{
    recordkeys::expectSameRecords(recordkeys::passThroughRecordKeys(), recordkeys::PassThroughRecordNames());
}

TEST(PassThroughRecords, DefaultRequestWritesBothEncodingsAsRawAndKeepsThemOnAnEmptyObject)
{
    WirekitPassThroughReq request;
    EXPECT_EQ(written(request), R"({"func":"","command":0,"resourceNo":0,"count":0,"outBufferLen":0,)"
                                R"("condBuffer":"","condBufferEncoding":"raw","inBuffer":"","inBufferEncoding":"raw"})");
    read(request, "{}");
    EXPECT_EQ(request.condBufferEncoding, "raw");
    EXPECT_EQ(request.inBufferEncoding, "raw");
    EXPECT_TRUE(request.presentKeys.empty());
}

TEST(PassThroughRecords, EncodingOfAnotherTypeOverwritesRawWithEmpty)
{
    WirekitPassThroughReq request;
    read(request, R"({"inBufferEncoding":5})");
    EXPECT_EQ(request.inBufferEncoding, "");
    EXPECT_EQ(request.condBufferEncoding, "raw");
    EXPECT_EQ(request.presentKeys, std::unordered_set<std::string>{"inBufferEncoding"});
}

TEST(PassThroughRecords, AnswerEncodingsStartEmpty)
{
    WirekitPassThroughRsp wirekit;
    EXPECT_EQ(wirekit.outBufferEncoding, "");
    EXPECT_EQ(wirekit.statusBufferEncoding, "");
    BatchReturnData batch;
    EXPECT_EQ(batch.outBufferEncoding, "");
    EXPECT_EQ(batch.statusBufferEncoding, "");
    BatchSendData element;
    EXPECT_EQ(element.inBufferEncoding, "raw");
    BatchPassThroughReq request;
    EXPECT_EQ(request.condBufferEncoding, "raw");
}

TEST(PassThroughRecords, BatchWithoutElementsWritesAnEmptyList)
{
    BatchPassThroughReq request;
    request.guid = "g";
    const std::string text = written(request);
    EXPECT_NE(text.find(R"("batchSendDataList":[])"), std::string::npos) << text;
    EXPECT_EQ(text.rfind(R"("batchSendDataList":[]})"), text.size() - 23) << "the list comes last";
}

TEST(PassThroughRecords, BatchElementsAreWrittenWithoutTheirRootKey)
{
    BatchPassThroughReq request;
    request.batchSendDataList.resize(2);
    request.batchSendDataList[0].id = "1";
    request.batchSendDataList[1].id = "2";
    request.batchSendDataList[1].inBufferEncoding = "base64";
    EXPECT_STREQ(request.batchSendDataList[0].rootName(), "batchSendData");
    const std::string text = written(request);
    EXPECT_NE(text.find(R"("batchSendDataList":[{"id":"1","inBuffer":"","inBufferEncoding":"raw"},)"
                        R"({"id":"2","inBuffer":"","inBufferEncoding":"base64"}])"),
              std::string::npos)
        << text;
    EXPECT_EQ(text.find("batchSendData\""), std::string::npos) << text;

    BatchPassThroughReq again;
    read(again, text);
    ASSERT_EQ(again.batchSendDataList.size(), 2u);
    EXPECT_EQ(again.batchSendDataList[1].id, "2");
    EXPECT_EQ(again.batchSendDataList[1].inBufferEncoding, "base64");
    EXPECT_EQ(again.batchSendDataList[1].presentKeys.size(), 3u);
}

TEST(PassThroughRecords, WrapperWithoutItsAnswerHoldsADefaultAnswer)
{
    WirekitPassThroughRspData data;
    read(data, R"({"outBuffer":"x","other":{"outBuffer":"y"}})");
    EXPECT_EQ(data.wirekitPassThroughRsp.outBuffer, "");
    EXPECT_EQ(data.wirekitPassThroughRsp.outBufferEncoding, "");
    EXPECT_EQ(data.wirekitPassThroughRsp.statusBuffer, "");
    EXPECT_EQ(data.wirekitPassThroughRsp.statusBufferEncoding, "");
    EXPECT_TRUE(data.presentKeys.empty());
    EXPECT_EQ(written(data), R"({"wirekitPassThroughRsp":{"outBuffer":"","outBufferEncoding":"",)"
                             R"("statusBuffer":"","statusBufferEncoding":""}})");
}

TEST(PassThroughRecords, WrappersTakeTheirAnswerUnderTheAnswersNameWithASmallFirstLetter)
{
    recordtest::Json json = recordtest::parse(
        R"({"wirekitPassThroughRsp":{"outBuffer":"w","statusBufferEncoding":"raw"},)"
        R"("batchPassThroughRsp":{"guid":"g","isFinish":true,"batchReturnDataList":[{"id":"1","code":"0-0"}]},)"
        R"("dagPassThroughRsp":{"outBuffer":"d","statusBuffer":"s"},)"
        R"("sdkPassThroughResponse":{"outBufferBase64":"QUJD"}})");
    const WirekitPassThroughRspData wirekit(json.get());
    EXPECT_EQ(wirekit.wirekitPassThroughRsp.outBuffer, "w");
    EXPECT_EQ(wirekit.wirekitPassThroughRsp.statusBufferEncoding, "raw");
    const BatchPassThroughRspData batch(json.get());
    EXPECT_EQ(batch.batchPassThroughRsp.guid, "g");
    EXPECT_TRUE(batch.batchPassThroughRsp.isFinish);
    ASSERT_EQ(batch.batchPassThroughRsp.batchReturnDataList.size(), 1u);
    EXPECT_EQ(batch.batchPassThroughRsp.batchReturnDataList[0].code, "0-0");
    const DagPassThroughRspData dag(json.get());
    EXPECT_EQ(dag.dagPassThroughRsp.outBuffer, "d");
    EXPECT_EQ(dag.dagPassThroughRsp.statusBuffer, "s");
    const SdkPassThroughResponseData sdk(json.get());
    EXPECT_EQ(sdk.sdkPassThroughResponse.outBufferBase64, "QUJD");
}

TEST(PassThroughRecords, PayloadsAreCarriedAsTheyStand)
{
    // Neither decoded nor encoded: a payload named base-64 that isn't stays as it is.
    const std::string payload = "<a b=\"1\">\xE4\xB8\xAD\r\n\t\\</a>";
    SdkPassThrough sdk;
    sdk.func = "NET_DVR_GetDVRConfig";
    sdk.inBufferBase64 = payload;
    DagPassThroughReq dag;
    dag.condBuffer = payload;
    dag.inBuffer = payload;
    WirekitPassThroughReq wirekit;
    wirekit.condBuffer = payload;
    wirekit.inBuffer = payload;
    wirekit.inBufferEncoding = "hex";

    SdkPassThrough sdkAgain;
    read(sdkAgain, written(sdk));
    EXPECT_EQ(sdkAgain.inBufferBase64, payload);
    EXPECT_EQ(sdkAgain.func, "NET_DVR_GetDVRConfig");
    DagPassThroughReq dagAgain;
    read(dagAgain, written(dag));
    EXPECT_EQ(dagAgain.condBuffer, payload);
    EXPECT_EQ(dagAgain.inBuffer, payload);
    WirekitPassThroughReq wirekitAgain;
    read(wirekitAgain, written(wirekit));
    EXPECT_EQ(wirekitAgain.inBuffer, payload);
    EXPECT_EQ(wirekitAgain.inBufferEncoding, "hex");
}

TEST(PassThroughRecords, RequestsAcceptEverythingAndLeaveTheMessageAlone)
{
    WirekitPassThroughReq wirekit;
    BatchPassThroughReq batch;
    BatchSendData element;
    DagPassThroughReq dag;
    SdkPassThrough sdk;
    CredCfgCond condition;
    for (IInboundData* request : std::initializer_list<IInboundData*>{&wirekit, &batch, &element, &dag, &sdk,
                                                                     &condition}) {
        std::string error = "untouched";
        EXPECT_TRUE(request->validate(error)) << request->rootName();
        EXPECT_EQ(error, "untouched") << request->rootName();
    }
}

TEST(PassThroughRecords, CredentialConditionKeepsTheCapitalOfItsRootKey)
{
    CredCfgCond condition;
    EXPECT_STREQ(condition.rootName(), "CredCfgCond");
    read(condition, R"({"TOTALNUM":3,"enableCardReader":"true"})");
    EXPECT_EQ(condition.totalNum, 3);
    EXPECT_EQ(condition.enableCardReader, "true");
}

TEST(PassThroughRecords, RecordsBuiltOnTheirOwnReadFromTheirConstructor)
{
    recordtest::Json json = recordtest::parse(R"({"func":"f","command":9,"commandType":4,"channelNo":2})");
    const WirekitPassThroughReq wirekit(json.get());
    EXPECT_EQ(wirekit.func, "f");
    EXPECT_EQ(wirekit.command, 9);
    EXPECT_EQ(wirekit.inBufferEncoding, "raw");
    const SdkPassThrough sdk(json.get());
    EXPECT_EQ(sdk.commandType, 4);
    EXPECT_EQ(sdk.channelNo, 2);
    const DagPassThroughReq fromNull(nullptr);
    EXPECT_EQ(fromNull.command, 0);
    EXPECT_TRUE(fromNull.presentKeys.empty());
}
