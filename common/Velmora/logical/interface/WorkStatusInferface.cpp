#include "logical/interface/WorkStatusInferface.h"

#include <atomic>
#include <new>

#include <boost/thread/locks.hpp>
#include <boost/thread/mutex.hpp>

#include "Plinth/GuidUtil.h"
#include "Plinth/Log.h"
#include "logical/interface/PagedItems.h"
#include "logical/interface/ParamInterface.h"

namespace velmora {

// Owns the process-wide instance and deletes it at process exit.
struct WorkStatusInstanceHolder {
    std::atomic<WorkStatusInferface*> instance{nullptr};

    ~WorkStatusInstanceHolder() { delete instance.load(std::memory_order_acquire); }
};

WorkStatusInferface* WorkStatusInferface::getInstance()
{
    static WorkStatusInstanceHolder holder;
    static boost::mutex creation;

    WorkStatusInferface* instance = holder.instance.load(std::memory_order_acquire);
    if (instance != nullptr) {
        return instance;
    }
    boost::unique_lock<boost::mutex> lock(creation);
    instance = holder.instance.load(std::memory_order_relaxed);
    if (instance == nullptr) {
        instance = new (std::nothrow) WorkStatusInferface();
        holder.instance.store(instance, std::memory_order_release);
    }
    return instance;
}

void WorkStatusInferface::initMode(const std::string& deviceGuid, protocol::SwitchCapabilities capability)
{
    if (m_bModeLocked) {
        return;
    }
    m_strDeviceGuid = deviceGuid;
    m_bBatchMode = capability.supportWorkStatusBatch;
    if (!m_bBatchMode) {
        return; // the page size of an earlier batch device stays
    }
    Quillon::SwitchesWorkStateSearchCap cap(std::string{});
    if (!ParamInterface::getSwitchesWorkStateSearchAbility(cap, deviceGuid)) {
        // The batch road stays on with the page size known so far (-1 before any device).
        Plinth::CSingleton<Plinth::details::CLog>::Instance().Error("", "Failed to getSwitchesWorkStateSearchAbility",
                                                                     PLINTH_LOCATION);
        return;
    }
    m_nMaxResults = cap.maxResults;
}

bool WorkStatusInferface::queryWorkState(Quillon::SwitchesWorkState& state)
{
    state.portList.clear();
    if (!m_bBatchMode) {
        return ParamInterface::getSwitchesWorkState(state, m_strDeviceGuid);
    }

    Quillon::SwitchesWorkStateSearchCond condition;
    condition.searchID = Plinth::GuidUtil::CreateGuid();
    condition.maxResults = m_nMaxResults;
    condition.searchResultPosition = 0;
    PagedItems<Quillon::SwitchesWorkStateItem> pages(state.portList);
    for (;;) {
        Quillon::SwitchesWorkStateSearchRes result(std::string{});
        if (!ParamInterface::getSwitchesWorkStateEx(result, condition, m_strDeviceGuid)) {
            pages.flush(); // the pages read so far stay in `state`
            return false;
        }
        pages.add(result.portList);
        if (result.responseStatus != "MORE") {
            pages.flush();
            return true;
        }
        // With no page size known (-1) the position walks backwards; the device decides.
        condition.searchResultPosition += m_nMaxResults;
    }
}

} // namespace velmora
