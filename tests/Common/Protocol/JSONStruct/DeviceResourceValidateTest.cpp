// The checks that the device and resource requests run before they are sent: the first
// failing check of each, its message, the order of the checks, passing records, and the
// message that adding a device leaves behind when it succeeds in two of its modes.
#include <gtest/gtest.h>

#include <string>

#include "JSONStruct/Device/DeviceJSONStruct.h"
#include "JSONStruct/Resource/ResourceJSONStruct.h"
#include "RecordTestSupport.h"

using namespace recordtest;

namespace {

struct Outcome {
    bool ok;
    std::string error;
};

template <class Record>
Outcome validated(const std::string& text, const std::string& errorBefore = "old")
{
    Record record;
    read(record, text);
    Outcome outcome{false, errorBefore};
    outcome.ok = record.validate(outcome.error);
    return outcome;
}

Outcome addDevice(const std::string& members)
{
    return validated<protocol::DeviceAddReq>("{" + members + "}");
}

// `base` with some of its members given other values: of two equal keys the first wins.
std::string with(const std::string& overrides, const std::string& base)
{
    return overrides + "," + base;
}

// A request by address that passes every check.
const std::string kByAddress = R"("addMode":0,"alias":"Gate","addressList":["10.0.0.2"],"port":8000,)"
                               R"("username":"admin","password":"pw")";
// By domain: port 80 and a device text.
const std::string kByDomain = R"("addMode":3,"alias":"Gate","addressList":["gate.example"],"port":80,)"
                              R"("deviceInfo":"gate","username":"admin","password":"pw")";
// By registration: a device text, no user.
const std::string kByRegistration = R"("addMode":6,"alias":"Gate","deviceInfo":"reg-01")";
// By serial number, without the domain service.
const std::string kBySerial = R"("addMode":7,"shortSerialNo":"A1B2C3D4E","verificationCode":"ABCDEF")";
// By serial number with the domain service and a user.
const std::string kBySerialWithDomain = with(R"("enableDDNS":true,"username":"admin","password":"pw")", kBySerial);

} // namespace

TEST(DeviceAddReqValidate, WithoutAnAddModeFailsWithAnEmptyMessage)
{
    const Outcome outcome = addDevice(R"("alias":"Gate","username":"admin")");
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ(outcome.error, "");
    // A default record has seen no key at all.
    protocol::DeviceAddReq record;
    std::string error = "old";
    EXPECT_FALSE(record.validate(error));
    EXPECT_EQ(error, "");
}

TEST(DeviceAddReqValidate, UnknownAddMode)
{
    for (int mode : {1, 2, 4, 5, 8, -1}) {
        const Outcome outcome = addDevice(R"("addMode":)" + std::to_string(mode));
        EXPECT_FALSE(outcome.ok) << mode;
        EXPECT_EQ(outcome.error, "Unknown addMode value.") << mode;
    }
}

TEST(DeviceAddReqValidate, PassingRecordsOfEveryMode)
{
    Outcome outcome = addDevice(kByAddress);
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "");
    outcome = addDevice(kByDomain);
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "");
    outcome = addDevice(with(R"("deviceInfo":"camera-01")", kBySerialWithDomain));
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "");
    // Several addresses at once need no alias.
    outcome = addDevice(R"("addMode":0,"addressList":["10.0.0.2","10.0.0.3"],"port":8000,"username":"a","password":"p")");
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "");
}

TEST(DeviceAddReqValidate, SerialModeCanSucceedWithTheUnknownModeMessageLeftBehind)
{
    Outcome outcome = addDevice(with(R"("username":"")", kBySerial));
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "Unknown addMode value.");
    // In registration mode the device text's format check runs last and clears it again.
    outcome = addDevice(kByRegistration);
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "");
    // With the domain service, a device text equal to the short serial number passes too.
    outcome = addDevice(with(R"("deviceInfo":"A1B2C3D4E")", kBySerialWithDomain));
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "Unknown addMode value.");
    // Mode 7 checks no address list and no offline counts.
    outcome = addDevice(with(R"("isOffline":true,"offlineCameras":99)", kBySerial));
    EXPECT_TRUE(outcome.ok);
}

TEST(DeviceAddReqValidate, SerialModeChecksSerialCodeAndMappingModeInThisOrder)
{
    const std::pair<std::string, std::string> cases[] = {
        {R"("addMode":7,"verificationCode":"")", "shortSerialNo can't be empty!"},
        {R"("addMode":7,"shortSerialNo":"A1-B2","verificationCode":"")", "shortSerialNo not match format!"},
        {R"("addMode":7,"shortSerialNo":"A1B2C3D4E5","verificationCode":"x")", "shortSerialNo not match format!"},
        {R"("addMode":7,"shortSerialNo":"A1","upnpMappingMode":5)", "verificationCode can't be empty!"},
        {R"("addMode":7,"shortSerialNo":"A1","verificationCode":"1234567890123")",
         "verificationCode not match format!"},
        {R"("addMode":7,"shortSerialNo":"A1","verificationCode":"x","upnpMappingMode":2,"alias":"")",
         "Unknown upnpMappingMode value."},
    };
    for (const auto& [members, message] : cases) {
        const Outcome outcome = addDevice(members);
        EXPECT_FALSE(outcome.ok) << members;
        EXPECT_EQ(outcome.error, message) << members;
    }
}

TEST(DeviceAddReqValidate, AliasIsCheckedAsANameInTheOtherModes)
{
    const std::pair<std::string, std::string> cases[] = {
        {R"("addMode":0,"addressList":["a"],"username":"")", "alias can't be empty!"},
        {R"("addMode":3,"alias":"a/b","username":"")", "alias contain invalid char [/:*?\xA1\xB0<>|]."},
        {R"("addMode":6,"alias":"123456789012345678901234567890123")", "alias length is greater than 32."},
        // Two addresses lift the alias check only in mode 0.
        {R"("addMode":3,"addressList":["a","b"],"username":"")", "alias can't be empty!"},
    };
    for (const auto& [members, message] : cases) {
        const Outcome outcome = addDevice(members);
        EXPECT_FALSE(outcome.ok) << members;
        EXPECT_EQ(outcome.error, message) << members;
    }
    EXPECT_TRUE(addDevice(R"("addMode":6,"alias":"12345678901234567890123456789012","deviceInfo":"r")").ok);
}

TEST(DeviceAddReqValidate, UserAndPasswordExceptInRegistrationAndPlainSerialModes)
{
    const std::pair<std::string, std::string> cases[] = {
        {R"("addMode":0,"alias":"a","password":"")", "username can't be empty!"},
        {R"("addMode":0,"alias":"a","username":"u","addressList":[])", "password can't be empty!"},
        {R"("addMode":3,"alias":"a","username":"u")", "password can't be empty!"},
        {with(R"("enableDDNS":true)", kBySerial), "username can't be empty!"},
    };
    for (const auto& [members, message] : cases) {
        const Outcome outcome = addDevice(members);
        EXPECT_FALSE(outcome.ok) << members;
        EXPECT_EQ(outcome.error, message) << members;
    }
    EXPECT_TRUE(addDevice(with(R"("username":"","password":"")", kByRegistration)).ok);
}

TEST(DeviceAddReqValidate, AddressListAndOfflineCountsInModesZeroAndThree)
{
    const std::pair<std::string, std::string> cases[] = {
        {R"("addMode":0,"alias":"a","username":"u","password":"p","port":0)", "addressList can't be empty!"},
        {R"("addMode":3,"alias":"a","username":"u","password":"p","port":1)", "addressList can't be empty!"},
        {with(R"("isOffline":true,"offlineCameras":33,"offlineAlarmInputs":-1)", kByAddress),
         "offlineCameras is greater than 32."},
        {with(R"("isOffline":true,"offlineCameras":-1)", kByAddress), "offlineCameras is lesser than 0."},
        {with(R"("isOffline":true,"offlineCameras":32,"offlineAlarmInputs":33)", kByAddress),
         "offlineAlarmInputs is greater than 32."},
    };
    for (const auto& [members, message] : cases) {
        const Outcome outcome = addDevice(members);
        EXPECT_FALSE(outcome.ok) << members;
        EXPECT_EQ(outcome.error, message) << members;
    }
    // Counts are only checked for an offline device.
    EXPECT_TRUE(addDevice(with(R"("offlineCameras":99)", kByAddress)).ok);
    EXPECT_TRUE(addDevice(with(R"("isOffline":true,"offlineCameras":0,"offlineAlarmInputs":32)", kByAddress)).ok);
}

TEST(DeviceAddReqValidate, DomainModeWithSeveralAddressesFailsWithAnEmptyMessage)
{
    const Outcome outcome =
        addDevice(R"("addMode":3,"alias":"a","username":"u","password":"p","port":80,"addressList":["a","b"])");
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ(outcome.error, "");
}

TEST(DeviceAddReqValidate, PortByMode)
{
    const std::pair<std::string, std::string> cases[] = {
        {with(R"("port":0)", kByAddress), "port is lesser than 1."},
        {with(R"("port":65536)", kByAddress), "port is greater than 65535."},
        {with(R"("port":8080)", kByDomain), "port is not match."},
        {with(R"("deviceInfo":"")", kByDomain), "deviceInfo can't be empty!"},
        {with(R"("deviceInfo":")" + std::string(65, 'd') + "\"", kByDomain), "deviceInfo not match format!"},
        {with(R"("deviceInfo":"")", kByRegistration), "deviceInfo can't be empty!"},
        {with(R"("deviceInfo":")" + std::string(65, 'd') + "\"", kByRegistration), "deviceInfo not match format!"},
    };
    for (const auto& [members, message] : cases) {
        const Outcome outcome = addDevice(members);
        EXPECT_FALSE(outcome.ok) << members;
        EXPECT_EQ(outcome.error, message) << members;
    }
    EXPECT_TRUE(addDevice(with(R"("port":65535)", kByAddress)).ok);
    EXPECT_TRUE(addDevice(with(R"("deviceInfo":")" + std::string(64, 'd') + "\"", kByDomain)).ok);
}

TEST(DeviceAddReqValidate, SerialModeWithDomainServiceChecksPortMappingAndDeviceText)
{
    const std::pair<std::string, std::string> cases[] = {
        // The message names the mapping mode although the value is the port.
        {with(R"("upnpMappingMode":1,"port":0)", kBySerialWithDomain), "upnpMappingMode is lesser than 1."},
        {with(R"("upnpMappingMode":1,"port":70000)", kBySerialWithDomain), "upnpMappingMode is greater than 65535."},
        {with(R"("deviceInfo":"")", kBySerialWithDomain), "deviceInfo can't be empty!"},
        {with(R"("deviceInfo":"Camera01")", kBySerialWithDomain), "deviceInfo not match format!"},
        {with(R"("deviceInfo":"abcde")", kBySerialWithDomain), "deviceInfo not match format!"},
        {with(R"("deviceInfo":"-abcde")", kBySerialWithDomain), "deviceInfo is lesser than 97."},
        {with(R"("deviceInfo":"1abcde")", kBySerialWithDomain), "deviceInfo is lesser than 97."},
        // Ends in a hyphen: fails without a message.
        {with(R"("deviceInfo":"abcde-")", kBySerialWithDomain), ""},
    };
    for (const auto& [members, message] : cases) {
        const Outcome outcome = addDevice(members);
        EXPECT_FALSE(outcome.ok) << members;
        EXPECT_EQ(outcome.error, message) << members;
    }
    // Without mapping mode 1 the port is not looked at.
    const Outcome outcome = addDevice(with(R"("port":0,"deviceInfo":"zz-top")", kBySerialWithDomain));
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "");
    EXPECT_TRUE(addDevice(with(R"("upnpMappingMode":1,"port":8000,"deviceInfo":"a-b-c-d")", kBySerialWithDomain)).ok);
}

TEST(FalconetInfoValidate, TypeIsCheckedOnlyWhenItCame)
{
    Outcome outcome = validated<protocol::FalconetInfo>("{}");
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "old");
    outcome = validated<protocol::FalconetInfo>(R"({"type":2})");
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ(outcome.error, "Unknown type value.");
    outcome = validated<protocol::FalconetInfo>(R"({"TYPE":1})");
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "");
    // A default record with a bad type passes: nothing came.
    protocol::FalconetInfo record;
    record.type = 9;
    std::string error;
    EXPECT_TRUE(record.validate(error));
}

TEST(ChannelExtraValidate, FishEyeTypeFirstThenTheNestedFalconetDecides)
{
    Outcome outcome = validated<protocol::ChannelExtra>(R"({"fishEyeType":1,"falconetInfo":{"type":5}})");
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ(outcome.error, "Unknown fishEyeType value.");
    outcome = validated<protocol::ChannelExtra>(R"({"fishEyeType":3,"falconetInfo":{"type":5}})");
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ(outcome.error, "Unknown type value.");
    outcome = validated<protocol::ChannelExtra>(R"({"falconetInfo":{"type":5}})");
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ(outcome.error, "Unknown type value.");
    outcome = validated<protocol::ChannelExtra>(R"({"fishEyeType":2,"falconetInfo":{"type":0}})");
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "");
    outcome = validated<protocol::ChannelExtra>(R"({"fishEyeType":2})");
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "");
    // Nothing came at all: passes and leaves the older text.
    outcome = validated<protocol::ChannelExtra>("{}");
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "old");
}

TEST(DoorModificationValidate, SomeFieldThenTheNameFormat)
{
    Outcome outcome = validated<protocol::DoorModification>("{}");
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ(outcome.error, "no field exist!");
    outcome = validated<protocol::DoorModification>(R"({"name":""})");
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ(outcome.error, "name can't be empty!");
    outcome = validated<protocol::DoorModification>(R"({"name":")" + std::string(33, 'n') + "\"}");
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ(outcome.error, "name not match format!");
    outcome = validated<protocol::DoorModification>(R"({"name":")" + std::string(32, 'n') + "\"}");
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "");
    // The location alone passes, whatever it holds.
    outcome = validated<protocol::DoorModification>(R"({"location":""})");
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "");
}

TEST(CardReaderModificationValidate, NameMustComeAndNotBeEmpty)
{
    Outcome outcome = validated<protocol::CardReaderModification>("{}");
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ(outcome.error, "name field not exist!");
    outcome = validated<protocol::CardReaderModification>(R"({"name":5})");
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ(outcome.error, "name can't be empty!");
    outcome = validated<protocol::CardReaderModification>(R"({"Name":"Reader 1"})");
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "");
}

TEST(DeviceResourceValidate, RequestsWithoutChecksAcceptEverything)
{
    Outcome outcome = validated<protocol::DeviceQueryCondition>(R"({"pageNo":-5})");
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "old");
    outcome = validated<protocol::TaskInfoReq>("{}");
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(outcome.error, "old");
}
