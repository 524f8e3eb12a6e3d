#include "DeviceStatusFactory.h"

#include <QObject>
#include <new>
#include <string>

#include "DeviceStatusItemModel.h"
#include "DeviceStatusOptionBase.h"
#include "Plinth/Log.h"
#include "Plinth/StringUtil.h"
#include "Quillon/SwitchRecords.h"
#include "logical/interface/ParamInterface.h"

// The page classes that this build holds. A family of pages turns its rows on by listing its
// file pairs in its pages_*.cmake: once every part of velmora_ui is read, dialog.cmake
// looks for each page class's source among the target's sources and writes this header,
// with VELMORA_HAS_PAGE_<class> 1 and the class's header for every page built, 0 for the
// others. A row whose page is not built is neither offered nor made.
#include "DeviceStatusPages.h"

namespace velmora {

namespace {

using PageCreator = CDeviceStatusOptionBase* (*)(QWidget* parent);

template <class Page>
CDeviceStatusOptionBase* createPage(QWidget* parent)
{
    return new (std::nothrow) Page(parent);
}

// VELMORA_PAGE(Class): the creator of a page class that this build holds, null otherwise.
#define VELMORA_PAGE(Class) VELMORA_PAGE_SELECT(VELMORA_HAS_PAGE_##Class, Class)
#define VELMORA_PAGE_SELECT(built, Class) VELMORA_PAGE_PASTE(built, Class)
#define VELMORA_PAGE_PASTE(built, Class) VELMORA_PAGE_IF_##built(Class)
#define VELMORA_PAGE_IF_1(Class) (&createPage<Class>)
#define VELMORA_PAGE_IF_0(Class) nullptr

struct OptionPage {
    int key;
    const char* titleKey; // translated in the generic QObject context
    PageCreator create;
};

// Keys 1 and 10 share a title but are different pages: the device's own, and that of an AP
// seen through its controller.
const OptionPage kOptionPages[] = {
    {OptionDeviceStatus, QT_TRANSLATE_NOOP("QObject", "DeviceStatus"), VELMORA_PAGE(CDeviceStatusWidget)},
    {OptionPanelState, QT_TRANSLATE_NOOP("QObject", "PanelState"), VELMORA_PAGE(CFiberPanelStatusWidget)},
    {OptionBasicWireless, QT_TRANSLATE_NOOP("QObject", "BasicWirelessConfiguration"), VELMORA_PAGE(CBasicWirelessInfoWidget)},
    {OptionPortStatus, QT_TRANSLATE_NOOP("QObject", "PortStatus"), VELMORA_PAGE(CPortStatusWidget)},
    {OptionPortStatistic, QT_TRANSLATE_NOOP("QObject", "ThePortStatistical"), VELMORA_PAGE(CPortStatisticWidget)},
    {OptionPoePortStatus, QT_TRANSLATE_NOOP("QObject", "POEPortState"), VELMORA_PAGE(CPOEPortStatusWidget)},
    {OptionWirelessStatus, QT_TRANSLATE_NOOP("QObject", "BasicWirelessStateYrmZymEu"), VELMORA_PAGE(CWirelessStatusWidget)},
    {OptionPPPoEStatus, QT_TRANSLATE_NOOP("QObject", "ConnectedToTheStateMffDqXn"), VELMORA_PAGE(CPPPoEStatusWidget)},
    {OptionAcWirelessStatus, QT_TRANSLATE_NOOP("QObject", "StateOfTheWireless"), VELMORA_PAGE(CAcWirelessStatusWidget)},
    {OptionApDeviceStatus, QT_TRANSLATE_NOOP("QObject", "DeviceStatus"), VELMORA_PAGE(CApDeviceStatusWidget)},
    {OptionClientList, QT_TRANSLATE_NOOP("QObject", "ClientListxBJDUZFw"), VELMORA_PAGE(CClientListInfoWidget)},
    {OptionApList, QT_TRANSLATE_NOOP("QObject", "ManagingAPListsAizrsShK"), VELMORA_PAGE(CApInfoListWidget)},
};

#undef VELMORA_PAGE
#undef VELMORA_PAGE_SELECT
#undef VELMORA_PAGE_PASTE
#undef VELMORA_PAGE_IF_1
#undef VELMORA_PAGE_IF_0

const OptionPage* findOption(int key)
{
    for (const OptionPage& option : kOptionPages) {
        if (option.key == key)
            return &option;
    }
    return nullptr;
}

void addOption(std::map<int, QString>& items, int key)
{
    if (const OptionPage* option = findOption(key))
        items[key] = QObject::tr(option->titleKey);
}

} // namespace

CDeviceStatusFactory::CDeviceStatusFactory(std::shared_ptr<tarvex7300::IAbstractDevice> device,
                                           const protocol::SwitchCapabilities& capability)
    : m_pDevice(std::move(device))
    , m_capability(capability)
{
}

CDeviceStatusFactory::~CDeviceStatusFactory()
{
    for (auto& [key, page] : m_pages) {
        delete page;
        page = nullptr;
    }
}

void CDeviceStatusFactory::updateDeviceInfo(std::shared_ptr<tarvex7300::IAbstractDevice> device,
                                            const protocol::SwitchCapabilities& capability)
{
    m_pDevice = std::move(device);
    m_capability = capability;
}

void CDeviceStatusFactory::setDeviceItem(CDeviceStatusItemModel* model)
{
    if (!model)
        return;
    std::map<int, QString> items;
    if (!deviceOptionItems(items))
        return;
    model->setOptionItems(offeredItems(items));
}

void CDeviceStatusFactory::setApDeviceItem(CDeviceStatusItemModel* model)
{
    if (!model)
        return;
    model->setOptionItems(offeredItems(apOptionItems()));
}

bool CDeviceStatusFactory::deviceOptionItems(std::map<int, QString>& items)
{
    switch (static_cast<int>(m_pDevice->getDeviceCategory())) {
    case tarvex7300::Device::Switch:
    case tarvex7300::Device::EnterpriseRouter:
        addOption(items, OptionDeviceStatus);
        addOption(items, OptionPortStatus);
        addOption(items, OptionPortStatistic);
        if (devicePowersPorts())
            addOption(items, OptionPoePortStatus);
        return true;
    case tarvex7300::Device::WirelessBridge:
        addOption(items, OptionDeviceStatus);
        addOption(items, OptionBasicWireless);
        addOption(items, OptionPortStatus);
        addOption(items, OptionPortStatistic);
        return true;
    case tarvex7300::Device::FiberConverter:
        addOption(items, OptionDeviceStatus);
        if (m_capability.supportCrateSlotStatus)
            addOption(items, OptionPanelState);
        addOption(items, OptionPortStatus);
        if (m_capability.supportPortStatistic)
            addOption(items, OptionPortStatistic);
        return true;
    case tarvex7300::Device::WirelessController:
        addOption(items, OptionDeviceStatus);
        addOption(items, OptionPPPoEStatus);
        if (m_capability.isSupportAPGroup)
            addOption(items, OptionAcWirelessStatus);
        addOption(items, OptionApList);
        return true;
    case tarvex7300::Device::WirelessAP:
        addOption(items, OptionDeviceStatus);
        addOption(items, OptionWirelessStatus);
        addOption(items, OptionClientList);
        return true;
    case tarvex7300::Device::WirelessRouter:
        addOption(items, OptionDeviceStatus);
        addOption(items, OptionPPPoEStatus);
        return true;
    default:
        // 123, 127 to 129 (129 is named like an AP but has no rows) and everything outside
        // 120 to 130: no row list at all.
        return false;
    }
}

std::map<int, QString> CDeviceStatusFactory::apOptionItems()
{
    std::map<int, QString> items;
    addOption(items, OptionApDeviceStatus);
    addOption(items, OptionClientList);
    return items;
}

std::map<int, QString> CDeviceStatusFactory::offeredItems(const std::map<int, QString>& items)
{
    std::map<int, QString> offered;
    for (const auto& [key, title] : items) {
        if (hasPageClass(key))
            offered.emplace_hint(offered.end(), key, title);
    }
    return offered;
}

bool CDeviceStatusFactory::hasPageClass(int key)
{
    const OptionPage* option = findOption(key);
    return option && option->create;
}

bool CDeviceStatusFactory::devicePowersPorts()
{
    // After a failed query the flag keeps the value of the empty record.
    const std::string emptyAnswer;
    Quillon::PortPoeInfoListCap poeCapability(emptyAnswer);
    if (!ParamInterface::getPortPoeInfoListCap(poeCapability, m_pDevice->getDeviceId())) {
        Plinth::CSingleton<Plinth::details::CLog>::Instance().Warn(
            "", Plinth::StringUtil::FormatString("Failed to getPortPoeInfoListCap"), PLINTH_LOCATION);
    }
    return poeCapability.isSupportPoe;
}

CDeviceStatusOptionBase* CDeviceStatusFactory::getOptionPage(int key, QWidget* parent)
{
    CDeviceStatusOptionBase* page = nullptr;
    const auto found = m_pages.find(key);
    if (found != m_pages.end()) {
        page = found->second;
        if (!page)
            return nullptr;
    } else {
        // Keys outside 1 to 12, and those whose page this build doesn't hold, have no creator.
        const OptionPage* option = findOption(key);
        if (!option || !option->create)
            return nullptr;
        page = option->create(parent);
        if (!page)
            return nullptr;
        m_pages[key] = page;
    }
    // Pages get device and capabilities after construction, anew at every look-up.
    page->setDeviceBasicInfo(m_pDevice);
    page->setDeviceCapbility(m_capability);
    return page;
}

CDeviceStatusOptionBase* CDeviceStatusFactory::findOptionPage(int key)
{
    const auto found = m_pages.find(key);
    return found != m_pages.end() ? found->second : nullptr;
}

} // namespace velmora
