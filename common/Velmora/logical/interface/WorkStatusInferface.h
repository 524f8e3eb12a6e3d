#pragma once
// Process-wide access to the port work state of the device last chosen with initMode.
// Older switches answer one plain request with every port; newer ones serve a paged search.
// Callers get one complete SwitchesWorkState either way and can't tell which road was taken.
#include <cstdint>
#include <string>

#include "JSONStruct/Switch/SwitchJSONStruct.h"
#include "Plinth/Noncopyable.h"
#include "Quillon/SwitchRecords.h"

namespace velmora {

class WorkStatusInferface : public Plinth::CNoncopyable {
public:
    // The instance, created on first use; null only when that creation failed.
    static WorkStatusInferface* getInstance();

    // Chooses the road for `deviceGuid`; every later query goes to that device.
    void initMode(const std::string& deviceGuid, protocol::SwitchCapabilities capability);

    // Replaces the port list of `state` with the device's; false when a request failed (the
    // pages read before the failure stay in `state`).
    bool queryWorkState(Quillon::SwitchesWorkState& state);

private:
    friend struct WorkStatusInstanceHolder;
    WorkStatusInferface() = default;
    ~WorkStatusInferface() = default;

    int m_bBatchMode = 0;        // the device serves the paged search
    int32_t m_nMaxResults = -1;  // page size of the search, from the device's capability
    std::string m_strDeviceGuid; // the device of the last initMode
    bool m_bModeLocked = false;  // when set initMode does nothing; nothing sets it
};

} // namespace velmora
