#include "DeviceStatusOptionBase.h"

namespace velmora {

CDeviceStatusOptionBase::CDeviceStatusOptionBase(QWidget* parent)
    : QWidget(parent)
{
}

CDeviceStatusOptionBase::~CDeviceStatusOptionBase() = default;

void CDeviceStatusOptionBase::setDeviceBasicInfo(std::shared_ptr<tarvex7300::IAbstractDevice> device)
{
    m_pDevice = std::move(device);
}

void CDeviceStatusOptionBase::setDeviceCapbility(protocol::SwitchCapabilities capability)
{
    m_capability = std::move(capability);
}

void CDeviceStatusOptionBase::showStatusPublic()
{
}

} // namespace velmora
