#include "ostrand/DeviceManagerDelegate.h"

#include <gtest/gtest.h>

#include "RegistryFile.h"
#include "ostrand/RegistryDevice.h"

namespace {

TEST(DeviceManagerDelegateTest, CopyCarriesRegistryValues)
{
    TemporaryRegistry registry;
    registry.write(R"({"devices":[{"id":"AC-01","name":"Lobby AC","category":124,"model":"NX-AC6000"}]})");

    std::shared_ptr<tarvex7300::IAbstractDevice> device = ostrand::CDeviceManagerDelegate().createDeviceCopy("AC-01");
    ASSERT_NE(device, nullptr);
    EXPECT_EQ(device->getDeviceId(), "AC-01");
    EXPECT_EQ(device->getDeviceCategory(), tarvex7300::Device::WirelessController);
    EXPECT_EQ(device->getDeviceModel(), "NX-AC6000");
    EXPECT_EQ(device->getDeviceName(), "Lobby AC");
    auto* concrete = dynamic_cast<ostrand::CRegistryDevice*>(device.get());
    ASSERT_NE(concrete, nullptr);
    EXPECT_EQ(concrete->entry().id, "AC-01");
}

TEST(DeviceManagerDelegateTest, UnknownIdGivesNull)
{
    TemporaryRegistry registry;
    registry.write(R"({"devices":[{"id":"AC-01"}]})");
    EXPECT_EQ(ostrand::CDeviceManagerDelegate().createDeviceCopy("AC-02"), nullptr);
}

TEST(DeviceManagerDelegateTest, CopyIsIndependentOfLaterChanges)
{
    TemporaryRegistry registry;
    registry.write(R"({"devices":[{"id":"SW","model":"old"}]})");
    std::shared_ptr<tarvex7300::IAbstractDevice> before = ostrand::CDeviceManagerDelegate().createDeviceCopy("SW");
    registry.write(R"({"devices":[{"id":"SW","model":"new model"}]})");
    std::shared_ptr<tarvex7300::IAbstractDevice> after = ostrand::CDeviceManagerDelegate().createDeviceCopy("SW");
    ASSERT_NE(before, nullptr);
    ASSERT_NE(after, nullptr);
    EXPECT_EQ(before->getDeviceModel(), "old");
    EXPECT_EQ(after->getDeviceModel(), "new model");
    EXPECT_EQ(before->getDeviceCategory(), tarvex7300::Device::UnknownDevice);
}

} // namespace
