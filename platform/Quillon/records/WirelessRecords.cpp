// The forms and request bodies of the wireless records.
#include "Quillon/WirelessRecords.h"

#include "WirelessFields.h"

QUILLON_WIRELESS_RECORDS(QUILLON_RECORD_IMPL)

// Request bodies of the searches on "?format=json" paths are JSON.
std::string Quillon::ApInfoSearchCond::Make() const { return detail::toJson(*this); }
std::string Quillon::APGroupBssSearchCond::Make() const { return detail::toJson(*this); }
std::string Quillon::TerminalInfoSearchCond::Make() const { return detail::toJson(*this); }
std::string Quillon::BssParaCfgSearchCond::Make() const { return detail::toJson(*this); }
std::string Quillon::CBridgeRegion::createXml() const { return detail::toXml(*this); }
