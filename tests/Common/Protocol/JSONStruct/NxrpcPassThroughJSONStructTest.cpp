// The NXRPC pass-through pair: defaults, key order, the capitalised present key and the
// answer wrapper.
#include <gtest/gtest.h>

#include "JSONStruct/PassThrough/NxrpcPassThroughJSONStruct.h"
#include "RecordTestSupport.h"

using namespace protocol;
using recordtest::read;
using recordtest::written;

TEST(NxrpcPassThrough, DefaultRequestWritesInTheServiceOrder)
{
    NxrpcPassThroughReq request;
    EXPECT_EQ(written(request),
              R"({"requestUrl":"","inBuffer":"","picBuffer":"","jsonBuffer":"","inBufferEncoding":"raw",)"
              R"("outBufferEncoding":"raw","recvTimeOut":15000,"numOfMultiPart":0,"forceEncrypt":false,"operateType":""})");
    EXPECT_STREQ(request.rootName(), "nxrpcPassThroughReq");
    std::string error = "untouched";
    EXPECT_TRUE(request.validate(error));
    EXPECT_EQ(error, "untouched");
}

TEST(NxrpcPassThrough, EncodingsStayRawWhenAbsentAndAreOverwrittenWhenPresent)
{
    NxrpcPassThroughReq request;
    read(request, "{}");
    EXPECT_EQ(request.inBufferEncoding, "raw");
    EXPECT_EQ(request.outBufferEncoding, "raw");
    read(request, R"({"inBufferEncoding":5})");
    EXPECT_EQ(request.inBufferEncoding, "");
    EXPECT_EQ(request.outBufferEncoding, "raw");
}

TEST(NxrpcPassThrough, OperateTypeIsNotedWithACapital)
{
    NxrpcPassThroughReq request;
    read(request, R"({"operateType":"query","requestUrl":"GET /NXRPC/System/status\r\n"})");
    EXPECT_EQ(request.operateType, "query");
    EXPECT_EQ(request.requestUrl, "GET /NXRPC/System/status\r\n");
    EXPECT_EQ(request.presentKeys.count("OperateType"), 1u);
    EXPECT_EQ(request.presentKeys.count("operateType"), 0u);
    EXPECT_EQ(request.presentKeys.count("requestUrl"), 1u);
}

TEST(NxrpcPassThrough, RequestCarriesPayloadsUntouched)
{
    NxrpcPassThroughReq request;
    request.requestUrl = "POST /NXRPC/Transfers/Switches/workState/search\r\n";
    request.inBuffer = "<?xml version=\"1.0\"?>\n<a>\xE4\xB8\xAD</a>";
    request.recvTimeOut = 2000;
    request.forceEncrypt = true;
    NxrpcPassThroughReq again;
    read(again, written(request));
    EXPECT_EQ(again.requestUrl, request.requestUrl);
    EXPECT_EQ(again.inBuffer, request.inBuffer);
    EXPECT_EQ(again.recvTimeOut, 2000);
    EXPECT_TRUE(again.forceEncrypt);
}

TEST(NxrpcPassThrough, AnswerWrapperWithoutAnswerHoldsDefaults)
{
    NxrpcPassThroughRspData data;
    read(data, R"({"other":{"outBuffer":"x"}})");
    EXPECT_EQ(data.nxrpcPassThroughRsp.outBuffer, "");
    EXPECT_EQ(data.nxrpcPassThroughRsp.statusBuffer, "");
    EXPECT_EQ(written(data), R"({"nxrpcPassThroughRsp":{"outBuffer":"","statusBuffer":""}})");
    read(data, R"({"nxrpcPassThroughRsp":{"outBuffer":"<a/>","statusBuffer":"HTTP/1.1 200 OK"}})");
    EXPECT_EQ(data.nxrpcPassThroughRsp.outBuffer, "<a/>");
    EXPECT_EQ(data.nxrpcPassThroughRsp.statusBuffer, "HTTP/1.1 200 OK");
}
