// The base of every page: device and capabilities arrive after construction; the host's
// entry does nothing unless a page overrides it.
#include <gtest/gtest.h>

#include <QMetaMethod>
#include <QWidget>

#include "DeviceStatusOptionBase.h"
#include "support/PageAccess.h"

using velmora::CDeviceStatusOptionBase;

namespace {

class CountingPage : public CDeviceStatusOptionBase {
public:
    explicit CountingPage(QWidget* parent)
        : CDeviceStatusOptionBase(parent)
    {
    }
    int loads = 0;
    const protocol::SwitchCapabilities& capability() const { return m_capability; }
    const std::shared_ptr<tarvex7300::IAbstractDevice>& device() const { return m_pDevice; }

protected:
    void showStatus() override { ++loads; }
};

class NamedDevice : public tarvex7300::IAbstractDevice {
public:
    explicit NamedDevice(std::string id)
        : m_id(std::move(id))
    {
    }
    std::string getDeviceId() const override { return m_id; }
    tarvex7300::Device::DeviceCategory getDeviceCategory() const override { return tarvex7300::Device::Switch; }
    std::string getDeviceModel() const override { return "model"; }
    std::string getDeviceName() const override { return "name"; }

private:
    std::string m_id;
};

} // namespace

TEST(DeviceStatusOptionBase, StartsWithoutDeviceAndWithDefaultCapabilities)
{
    QWidget parent;
    CountingPage page(&parent);
    EXPECT_EQ(page.parentWidget(), &parent);
    EXPECT_EQ(page.windowType(), Qt::Widget);
    EXPECT_FALSE(page.isWindow());
    EXPECT_EQ(page.device(), nullptr);
    const protocol::SwitchCapabilities defaults;
    EXPECT_EQ(page.capability().supportWorkStatusBatch, defaults.supportWorkStatusBatch);
    EXPECT_EQ(page.capability().switchPriority, -1);
    EXPECT_EQ(page.capability().wirelessCardID, "");
    EXPECT_FALSE(page.capability().isSupportAPGroup);
}

TEST(DeviceStatusOptionBase, ReplacesTheDeviceAndDropsTheEarlierReference)
{
    CountingPage page(nullptr);
    auto first = std::make_shared<NamedDevice>("first");
    auto second = std::make_shared<NamedDevice>("second");
    page.setDeviceBasicInfo(first);
    EXPECT_EQ(first.use_count(), 2);
    page.setDeviceBasicInfo(second);
    EXPECT_EQ(first.use_count(), 1);
    EXPECT_EQ(second.use_count(), 2);
    EXPECT_EQ(page.device()->getDeviceId(), "second");
}

TEST(DeviceStatusOptionBase, ReplacesTheCapabilities)
{
    CountingPage page(nullptr);
    protocol::SwitchCapabilities capability;
    capability.supportWorkStatusBatch = true;
    capability.wirelessCardID = "wlan1";
    capability.switchPriority = 3;
    capability.isSupportAPGroup = true;
    page.setDeviceCapbility(capability);
    EXPECT_TRUE(page.capability().supportWorkStatusBatch);
    EXPECT_EQ(page.capability().wirelessCardID, "wlan1");
    EXPECT_EQ(page.capability().switchPriority, 3);
    EXPECT_TRUE(page.capability().isSupportAPGroup);

    page.setDeviceCapbility(protocol::SwitchCapabilities());
    EXPECT_FALSE(page.capability().supportWorkStatusBatch);
    EXPECT_EQ(page.capability().wirelessCardID, "");
}

TEST(DeviceStatusOptionBase, TheHostEntryDoesNothingWithoutAnOverride)
{
    CountingPage page(nullptr);
    page.showStatusPublic();
    EXPECT_EQ(page.loads, 0);
    velmora::CDeviceStatusOptionBaseTestAccess::showStatus(&page);
    EXPECT_EQ(page.loads, 1);
}

TEST(DeviceStatusOptionBase, HasItsOwnMetaObjectWithoutSignalsOrSlots)
{
    const QMetaObject& meta = CDeviceStatusOptionBase::staticMetaObject;
    EXPECT_STREQ(meta.className(), "velmora::CDeviceStatusOptionBase");
    EXPECT_EQ(meta.superClass(), &QWidget::staticMetaObject);
    EXPECT_EQ(meta.methodCount(), QWidget::staticMetaObject.methodCount());
}
