// The forms and request bodies of the switch records.
#include "Quillon/SwitchRecords.h"

#include "SwitchFields.h"

QUILLON_SWITCH_RECORDS(QUILLON_RECORD_IMPL)

std::string Quillon::SwitchesWorkStateSearchCond::createXml() const
{
    return detail::toXml(*this);
}
