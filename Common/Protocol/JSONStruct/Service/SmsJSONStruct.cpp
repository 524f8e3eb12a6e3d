#include "JSONStruct/Service/SmsJSONStruct.h"

#include "JSONStruct/Validators.h"

namespace protocol {

PROTOCOL_DEFINE_RECORD(SmsAddInfo,
    PROTOCOL_FIELD(alias),
    PROTOCOL_FIELD(ipList),
    PROTOCOL_FIELD(port))

PROTOCOL_DEFINE_RECORD(SmsResult,
    PROTOCOL_FIELD(alias),
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(code))

PROTOCOL_DEFINE_RECORD(SmsResponse,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(alias),
    PROTOCOL_FIELD(ip),
    PROTOCOL_FIELD(port))

PROTOCOL_DEFINE_RECORD(SmsGuidList,
    PROTOCOL_FIELD(guidList))

PROTOCOL_DEFINE_RECORD(SmsModificationReq,
    PROTOCOL_FIELD(alias),
    PROTOCOL_FIELD(ip),
    PROTOCOL_FIELD(port))

PROTOCOL_DEFINE_RECORD(SmsResponseData,
    PROTOCOL_FIELD(smsResponse))

PROTOCOL_DEFINE_RECORD(SmsResponseListData,
    PROTOCOL_FIELD(smsResponseList))

PROTOCOL_DEFINE_RECORD(SmsResultListData,
    PROTOCOL_FIELD(smsResultList))

// Unlike the status request, an absent list fails only as an empty one.
bool SmsGuidList::validate(std::string& error)
{
    return checkListNotEmpty(error, "guidList", guidList);
}

// A change names at least one field; the port is taken as it comes.
bool SmsModificationReq::validate(std::string& error)
{
    return checkAnyFieldExists(error, *this) && checkFormatIfSent(error, *this, "alias", alias, "^.{1,32}$")
        && checkFormatIfSent(error, *this, "ip", ip, "^.{1,64}$");
}

} // namespace protocol
