// The checks that request records run in validate(): results, messages and which of them
// clear an older message.
#include <gtest/gtest.h>

#include "JSONStruct/Topology/TopologyJSONStruct.h"
#include "JSONStruct/Validators.h"
#include "RecordTestSupport.h"

using namespace protocol;

TEST(Validators, EnumValueOfIntegersAndStrings)
{
    std::string error = "old";
    EXPECT_TRUE(checkEnumValue(error, "addMode", 3, {0, 3, 6, 7}));
    EXPECT_EQ(error, "");
    EXPECT_FALSE(checkEnumValue(error, "addMode", 5, {0, 3, 6, 7}));
    EXPECT_EQ(error, "Unknown addMode value.");
    EXPECT_TRUE(checkEnumValue(error, "method", std::string("local"), {"local", "refresh"}));
    EXPECT_EQ(error, "");
    EXPECT_FALSE(checkEnumValue(error, "method", std::string("Local"), {"local", "refresh"}));
    EXPECT_EQ(error, "Unknown method value.");
}

TEST(Validators, ListNotEmpty)
{
    std::string error = "old";
    EXPECT_TRUE(checkListNotEmpty(error, "addressList", std::vector<std::string>{"a"}));
    EXPECT_EQ(error, "");
    EXPECT_FALSE(checkListNotEmpty(error, "addressList", std::vector<std::string>{}));
    EXPECT_EQ(error, "addressList can't be empty!");
    EXPECT_FALSE(checkListNotEmpty(error, "channelIdxList", std::vector<int32_t>{}));
    EXPECT_EQ(error, "channelIdxList can't be empty!");
    EXPECT_TRUE(checkListNotEmpty(error, "channelIdxList", std::vector<int32_t>{0}));
}

TEST(Validators, StringNotEmpty)
{
    std::string error = "old";
    EXPECT_TRUE(checkStringNotEmpty(error, "username", "u"));
    EXPECT_EQ(error, "");
    EXPECT_FALSE(checkStringNotEmpty(error, "username", ""));
    EXPECT_EQ(error, "username can't be empty!");
}

TEST(Validators, RangeLeavesAnOlderTextOnSuccess)
{
    std::string error = "older text";
    const int32_t port = 80;
    EXPECT_TRUE(checkRange(error, "port", port, 1, 65535));
    EXPECT_EQ(error, "older text");
    const int32_t low = 0;
    EXPECT_FALSE(checkRange(error, "port", low, 1, 65535));
    EXPECT_EQ(error, "port is lesser than 1.");
    const int32_t high = 65536;
    EXPECT_FALSE(checkRange(error, "port", high, 1, 65535));
    EXPECT_EQ(error, "port is greater than 65535.");
    EXPECT_TRUE(checkRange(error, "port", high, 65536, 65536));
    EXPECT_EQ(error, "port is greater than 65535.");
}

TEST(Validators, RangeOfSignedEightBitValues)
{
    std::string error;
    const int8_t dash = '-';
    EXPECT_FALSE(checkRange(error, "deviceInfo", dash, 97, 122));
    EXPECT_EQ(error, "deviceInfo is lesser than 97.");
    const int8_t letter = 'q';
    EXPECT_TRUE(checkRange(error, "deviceInfo", letter, 97, 122));
    const int8_t high = static_cast<int8_t>(0xE4);
    EXPECT_FALSE(checkRange(error, "deviceInfo", high, 97, 122));
    EXPECT_EQ(error, "deviceInfo is lesser than 97.");
}

TEST(Validators, FieldPresence)
{
    PeerNode peer;
    recordtest::read(peer, R"({"GUID":"x","linkPort":1})");
    std::string error = "old";
    EXPECT_TRUE(checkFieldExists(error, peer, "guid", true));
    EXPECT_EQ(error, "");
    EXPECT_FALSE(checkFieldExists(error, peer, "portName", true));
    EXPECT_EQ(error, "portName field not exist!");
    error = "old";
    EXPECT_FALSE(checkFieldExists(error, peer, "portName", false));
    EXPECT_EQ(error, "");

    error = "old";
    EXPECT_TRUE(checkAllFieldsExist(error, peer, {"guid", "linkPort"}));
    EXPECT_EQ(error, "");
    EXPECT_FALSE(checkAllFieldsExist(error, peer, {"guid", "portType", "portName"}));
    EXPECT_EQ(error, "portType field not exist!");

    EXPECT_TRUE(checkAnyFieldExists(error, peer));
    EXPECT_EQ(error, "");
    PeerNode empty;
    recordtest::read(empty, R"({"other":1})");
    EXPECT_FALSE(checkAnyFieldExists(error, empty));
    EXPECT_EQ(error, "no field exist!");
}

TEST(Validators, FormatMatchesTheWholeValue)
{
    std::string error = "old";
    EXPECT_TRUE(checkFormat(error, "shortSerialNo", "AB12", "^[a-zA-Z0-9]{1,9}$"));
    EXPECT_EQ(error, "");
    EXPECT_FALSE(checkFormat(error, "shortSerialNo", "AB-12", "^[a-zA-Z0-9]{1,9}$"));
    EXPECT_EQ(error, "shortSerialNo not match format!");
    EXPECT_FALSE(checkFormat(error, "shortSerialNo", "", "^.*$"));
    EXPECT_EQ(error, "shortSerialNo can't be empty!");
    EXPECT_FALSE(checkFormat(error, "deviceInfo", "abc", "[a-z]"));
    EXPECT_EQ(error, "deviceInfo not match format!");
    EXPECT_FALSE(checkFormat(error, "deviceInfo", "abc", "(unclosed"));
    EXPECT_EQ(error, "deviceInfo not match format!");
}

TEST(Validators, InvalidCharacterMessageKeepsItsCodePage)
{
    std::string error = "older text";
    EXPECT_TRUE(checkNoInvalidChar(error, "alias", "camera 1"));
    EXPECT_EQ(error, "older text");
    for (const char* bad : {"a/b", "a\\b", "a:b", "a*b", "a?b", "a\"b", "a<b", "a>b", "a|b", "a\xE2\x80\x9C" "b"}) {
        EXPECT_FALSE(checkNoInvalidChar(error, "alias", bad)) << bad;
        EXPECT_EQ(error, "alias contain invalid char [/:*?\xA1\xB0<>|].");
    }
}

TEST(Validators, NameChecksEmptinessCharactersAndLength)
{
    std::string error = "old";
    EXPECT_TRUE(checkName(error, "alias", std::string(32, 'n')));
    EXPECT_EQ(error, "");
    EXPECT_FALSE(checkName(error, "alias", std::string(33, 'n')));
    EXPECT_EQ(error, "alias length is greater than 32.");
    EXPECT_FALSE(checkName(error, "alias", ""));
    EXPECT_EQ(error, "alias can't be empty!");
    EXPECT_FALSE(checkName(error, "alias", "a|b"));
    EXPECT_EQ(error, "alias contain invalid char [/:*?\xA1\xB0<>|].");
}
