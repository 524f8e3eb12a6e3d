#include "DeviceStatusOptionBase.h"

#include <QTimer>

#include "Plinth/Log.h"
#include "Plinth/Singleton.h"
#include "Plinth/StringUtil.h"

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

bool CDeviceStatusOptionBase::hasDevice(QTimer* timer)
{
    if (m_pDevice)
        return true;
    if (timer && timer->isActive())
        timer->stop();
    if (!m_bNoDeviceLogged) {
        m_bNoDeviceLogged = true;
        Plinth::CSingleton<Plinth::details::CLog>::Instance().Error(
            "", Plinth::StringUtil::FormatString("%s has no device; nothing is loaded.", metaObject()->className()),
            PLINTH_LOCATION);
    }
    return false;
}

void CDeviceStatusOptionBase::showStatusPublic()
{
}

} // namespace velmora
