// Every page given no device: loading it, and its timer's ticks, ask nothing, leave every
// timer stopped so that nothing polls, and log the missing device once per page.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "AcWirelessStatusWidget.h"
#include "ApDeviceStatusWidget.h"
#include "ApInfoListWidget.h"
#include "BasicWirelessInfoWidget.h"
#include "ClientListInfoWidget.h"
#include "DeviceStatusWidget.h"
#include "FiberPanelStatusWidget.h"
#include "POEPortStatusWidget.h"
#include "PPPoEStatusWidget.h"
#include "PortStatisticWidget.h"
#include "PortStatusWidget.h"
#include "WirelessStatusWidget.h"
#include "support/LogCapture.h"
#include "support/PageAccess.h"

namespace {

using velmora::CDeviceStatusOptionBase;

struct PageMaker {
    const char* className;
    std::function<CDeviceStatusOptionBase*()> make;
};

template <class Page>
PageMaker maker(const char* className)
{
    return {className, [] { return new Page(nullptr); }};
}

std::vector<PageMaker> allPages()
{
    using namespace velmora;
    return {
        maker<CDeviceStatusWidget>("velmora::CDeviceStatusWidget"),
        maker<CPortStatusWidget>("velmora::CPortStatusWidget"),
        maker<CPortStatisticWidget>("velmora::CPortStatisticWidget"),
        maker<CPOEPortStatusWidget>("velmora::CPOEPortStatusWidget"),
        maker<CApDeviceStatusWidget>("velmora::CApDeviceStatusWidget"),
        maker<CWirelessStatusWidget>("velmora::CWirelessStatusWidget"),
        maker<CAcWirelessStatusWidget>("velmora::CAcWirelessStatusWidget"),
        maker<CApInfoListWidget>("velmora::CApInfoListWidget"),
        maker<CClientListInfoWidget>("velmora::CClientListInfoWidget"),
        maker<CBasicWirelessInfoWidget>("velmora::CBasicWirelessInfoWidget"),
        maker<CPPPoEStatusWidget>("velmora::CPPPoEStatusWidget"),
        maker<CFiberPanelStatusWidget>("velmora::CFiberPanelStatusWidget"),
    };
}

int countLines(const velmora::test::LogCapture& log, const std::string& message)
{
    const auto lines = log.lines();
    return static_cast<int>(std::count_if(lines.begin(), lines.end(),
                                          [&](const velmora::test::LogLine& line) { return line.message == message; }));
}

} // namespace

TEST(PagesWithoutADevice, LoadsAndTicksAskNothingStopTheTimerAndLogOnce)
{
    for (const PageMaker& page : allPages()) {
        SCOPED_TRACE(page.className);
        velmora::test::LogCapture log;
        std::unique_ptr<CDeviceStatusOptionBase> widget(page.make());
        ASSERT_TRUE(widget);
        EXPECT_STREQ(widget->metaObject()->className(), page.className);
        const QList<QTimer*> timers = widget->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
        // A tick before any load: a page whose timer runs from its construction never got one.
        for (QTimer* timer : timers)
            QMetaObject::invokeMethod(timer, "timeout");
        velmora::CDeviceStatusOptionBaseTestAccess::showStatus(widget.get());
        widget->showStatusPublic();
        velmora::CDeviceStatusOptionBaseTestAccess::showStatus(widget.get());
        for (QTimer* timer : timers)
            QMetaObject::invokeMethod(timer, "timeout");
        QCoreApplication::processEvents();
        for (QTimer* timer : timers)
            EXPECT_FALSE(timer->isActive()) << "a page without a device keeps polling";
        EXPECT_EQ(countLines(log, std::string(page.className) + " has no device; nothing is loaded."), 1);
    }
}
