#include "SwitchDeviceStatusWidget.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QMargins>
#include <QModelIndex>
#include <new>

#include "DeviceStatusFactory.h"
#include "DeviceStatusItemModel.h"
#include "DeviceStatusOptionBase.h"
#include "FormatRunTime.h"
#include "Plinth/Log.h"
#include "Plinth/StringUtil.h"
#include "Quillon/SwitchRecords.h"
#include "Quillon/WirelessRecords.h"
#include "logical/interface/ParamInterface.h"
#include "logical/interface/WorkStatusInferface.h"
#include "ostrand/DeviceManagerDelegate.h"
#include "ui_UiSwitchDeviceStatusWidget.h"

// The page classes of this build (see DeviceStatusFactory.cpp). The dialog talks to four
// of them by name: the device status page for the host, and the AP list, AP status and
// client list pages for the walk from a controller to one of its APs.
#include "DeviceStatusPages.h"

namespace velmora {

namespace {

Plinth::details::CLog& logger()
{
    return Plinth::CSingleton<Plinth::details::CLog>::Instance();
}

QString fromUtf8(const std::string& text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

// On a controller with AP groups, the managed AP list is the fourth row of the device view
// (options 1, 8, 9, 12); the back button returns to it by number.
constexpr int kApListRow = 3;

// The size the dialog opens with, smaller than the form's own.
constexpr int kDialogWidth = 920;
constexpr int kDialogHeight = 700;

} // namespace

CSwitchDeviceStatusWidget::CSwitchDeviceStatusWidget(const std::string& deviceGuid,
                                                     const protocol::SwitchCapabilities& capability,
                                                     QWidget* parent)
    : TarvexGUIToolkit::CBaseDialog(parent)
    , m_pUi(nullptr)
    , m_pCurrentPage(nullptr)
    , m_pStatusFactory(nullptr)
    , m_pItemModel(nullptr)
    , m_capability(capability)
{
    if (!setUpForm())
        return;

    m_strDeviceGuid = deviceGuid;
    if (!lookUpDevice())
        return;

    m_pUi->m_pItemTreeView->setHeaderHidden(true);
    m_pUi->m_pItemTreeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    showDeviceName(fromUtf8(m_pDevice->getDeviceName()));

    m_pItemModel = new (std::nothrow) CDeviceStatusItemModel();
    if (m_pItemModel) {
        m_pUi->m_pItemTreeView->setModel(m_pItemModel);
        m_pStatusFactory = new (std::nothrow) CDeviceStatusFactory(m_pDevice, m_capability);
        if (m_pStatusFactory)
            m_pStatusFactory->setDeviceItem(m_pItemModel);
    }

    initWorkStatusMode();
    showRunTime();
    connectForm();
    // The first page comes up by the same road as a user's click.
    clickRow(0);
}

CSwitchDeviceStatusWidget::CSwitchDeviceStatusWidget(QWidget* parent)
    : TarvexGUIToolkit::CBaseDialog(parent)
    , m_pUi(nullptr)
    , m_pCurrentPage(nullptr)
    , m_pStatusFactory(nullptr)
    , m_pItemModel(nullptr)
{
    if (!setUpForm())
        return;
    m_pUi->m_pItemTreeView->setHeaderHidden(true);
    m_pUi->m_pItemTreeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    connectForm();
}

CSwitchDeviceStatusWidget::~CSwitchDeviceStatusWidget()
{
    // The factory deletes every page it made, before Qt would delete the dialog's children.
    delete m_pStatusFactory;
    delete m_pUi;
    delete m_pItemModel;
    m_pStatusFactory = nullptr;
    m_pUi = nullptr;
    m_pItemModel = nullptr;
}

void CSwitchDeviceStatusWidget::initDeviceInfo(const std::string& deviceGuid,
                                               const protocol::SwitchCapabilities& capability)
{
    if (!m_pUi)
        return;
    m_capability = capability;
    m_strDeviceGuid = deviceGuid;
    if (!lookUpDevice())
        return;

    showDeviceName(fromUtf8(m_pDevice->getDeviceName()));
    m_pUi->m_pBackButton->hide();
    if (ensureModelAndFactory())
        m_pStatusFactory->setDeviceItem(m_pItemModel);

    initWorkStatusMode();
    showRunTime();
    clickRow(0);
}

std::string CSwitchDeviceStatusWidget::getDeviceGuid()
{
    return m_strDeviceGuid;
}

CDeviceStatusWidget* CSwitchDeviceStatusWidget::getDeviceStatusWidget()
{
#if VELMORA_HAS_PAGE_CDeviceStatusWidget
    if (m_pStatusFactory)
        return dynamic_cast<CDeviceStatusWidget*>(m_pStatusFactory->findOptionPage(OptionDeviceStatus));
#endif
    return nullptr;
}

void CSwitchDeviceStatusWidget::onModelIndexChanged(const QModelIndex& index)
{
    if (!index.isValid() || !m_pUi || !m_pStatusFactory)
        return;

    const int key = index.data(Qt::UserRole).toInt();
    CDeviceStatusOptionBase* page = m_pStatusFactory->getOptionPage(key, this);

    // The AP pages learn which AP they show before they are shown.
    if (key == OptionApDeviceStatus) {
#if VELMORA_HAS_PAGE_CApDeviceStatusWidget
        if (auto* apPage = dynamic_cast<CApDeviceStatusWidget*>(page))
            apPage->setApIP(m_strApIp);
#endif
    } else if (key == OptionClientList) {
#if VELMORA_HAS_PAGE_CClientListInfoWidget
        if (auto* clientPage = dynamic_cast<CClientListInfoWidget*>(page))
            clientPage->setApInfo(m_strApMac, m_strApIp);
#endif
    }
    if (!page)
        return;

    if (page != m_pCurrentPage) {
        m_pUi->m_pStackedWidget->addWidget(page);
        m_pUi->m_pStackedWidget->setCurrentWidget(page);
        m_pCurrentPage = page;
    }
    // Every click reloads, also on the row already selected.
    page->showStatus();

    if (m_pDevice && m_pDevice->getDeviceCategory() == tarvex7300::Device::WirelessController
        && m_capability.isSupportAPGroup && key == OptionApList) {
#if VELMORA_HAS_PAGE_CApInfoListWidget
        // A plain connection at every such click: they pile up until onUpdateToApStatus
        // takes them all away.
        if (auto* apList = dynamic_cast<CApInfoListWidget*>(page))
            connect(apList, &CApInfoListWidget::signalUpdateToApStatus, this,
                    &CSwitchDeviceStatusWidget::onUpdateToApStatus);
#endif
    }
}

void CSwitchDeviceStatusWidget::onUpdateToApStatus(const QString& apIp, const QString& apMac)
{
    if (!m_pUi)
        return;
    m_strApIp = apIp;
    m_strApMac = apMac;
#if VELMORA_HAS_PAGE_CApInfoListWidget
    if (auto* apList = dynamic_cast<CApInfoListWidget*>(m_pCurrentPage))
        disconnect(apList, &CApInfoListWidget::signalUpdateToApStatus, this,
                   &CSwitchDeviceStatusWidget::onUpdateToApStatus);
#endif
    m_pUi->m_pBackButton->show();
    showDeviceName(apIp);
    if (!m_pDevice)
        return;

    if (ensureModelAndFactory())
        m_pStatusFactory->setApDeviceItem(m_pItemModel);
    initWorkStatusMode();
    showApRunTime();
    clickRow(0);
}

void CSwitchDeviceStatusWidget::onUpdateToAcStatus()
{
    if (!m_pUi)
        return;
    m_pUi->m_pBackButton->hide();
    if (!m_pDevice)
        return;

    showDeviceName(fromUtf8(m_pDevice->getDeviceName()));
    if (ensureModelAndFactory())
        m_pStatusFactory->setDeviceItem(m_pItemModel);
    initWorkStatusMode();
    showRunTime();
    clickRow(kApListRow);
}

bool CSwitchDeviceStatusWidget::setUpForm()
{
    m_pUi = new (std::nothrow) Ui_UiSwitchDeviceStatusWidget;
    if (!m_pUi) {
        logger().Error("", Plinth::StringUtil::FormatString("struct Ui_UiSwitchDeviceStatusWidget failed."),
                    PLINTH_LOCATION);
        return false;
    }
    m_pUi->setupUi(GetSetUpUiWidget());

    SetTitle(tr("DeviceStatus"));
    SetCloseBtnVisible(true);
    resize(kDialogWidth, kDialogHeight);
    m_pUi->m_pBackButton->hide();
    return true;
}

void CSwitchDeviceStatusWidget::connectForm()
{
    connect(m_pUi->m_pItemTreeView, &TarvexGUIToolkit::CTreeView::SignalClicked, this,
            &CSwitchDeviceStatusWidget::onModelIndexChanged);
    connect(m_pUi->m_pBackButton, &QAbstractButton::clicked, this, &CSwitchDeviceStatusWidget::onUpdateToAcStatus);
}

bool CSwitchDeviceStatusWidget::lookUpDevice()
{
    ostrand::CDeviceManagerDelegate deviceManagerDelegate;
    m_pDevice = deviceManagerDelegate.createDeviceCopy(m_strDeviceGuid);
    if (!m_pDevice) {
        logger().Error("", Plinth::StringUtil::FormatString("call deviceManagerDelegate.createDeviceCopy failed."),
                    PLINTH_LOCATION);
        return false;
    }
    return true;
}

void CSwitchDeviceStatusWidget::showDeviceName(const QString& name)
{
    QLabel* label = m_pUi->deviceName;
    const QString text = tr("Device") + " " + name;
    label->setText(text);
    // The label's width is fixed: a name too long for it is cut, so the whole line is
    // given in the tooltip then.
    label->ensurePolished();
    const QMargins margins = label->contentsMargins();
    const int room = label->maximumWidth() - margins.left() - margins.right();
    label->setToolTip(label->fontMetrics().horizontalAdvance(text) > room ? text : QString());
}

bool CSwitchDeviceStatusWidget::ensureModelAndFactory()
{
    if (!m_pItemModel)
        m_pItemModel = new (std::nothrow) CDeviceStatusItemModel();
    if (!m_pStatusFactory)
        m_pStatusFactory = new (std::nothrow) CDeviceStatusFactory(m_pDevice, m_capability);
    if (!m_pItemModel || !m_pStatusFactory)
        return false;
    m_pUi->m_pItemTreeView->setModel(m_pItemModel);
    m_pStatusFactory->updateDeviceInfo(m_pDevice, m_capability);
    return true;
}

void CSwitchDeviceStatusWidget::initWorkStatusMode()
{
    if (WorkStatusInferface* workStatus = WorkStatusInferface::getInstance())
        workStatus->initMode(m_pDevice->getDeviceId(), m_capability);
}

void CSwitchDeviceStatusWidget::clickRow(int row)
{
    TarvexGUIToolkit::CTreeView* tree = m_pUi->m_pItemTreeView;
    const QModelIndex index = tree->model() ? tree->model()->index(row, 0) : QModelIndex();
    tree->setCurrentIndex(index);
    emit tree->SignalClicked(index);
}

void CSwitchDeviceStatusWidget::showRunTime()
{
    Quillon::DeviceStatus status(static_cast<_xmlNode*>(nullptr));
    if (!ParamInterface::getSwitchDeviceStatus(status, m_pDevice->getDeviceId()))
        return;
    m_pUi->runTime->setText(tr("RunTime") + " " + formatRunTime(status.deviceUpTime));
}

void CSwitchDeviceStatusWidget::showApRunTime()
{
    const std::string emptyAnswer;
    Quillon::ApInfoList apInfoList(emptyAnswer);
    if (!ParamInterface::getApInfoList(apInfoList, m_pDevice->getDeviceId())) {
        logger().Error("", Plinth::StringUtil::FormatString("Failed to get Ap Info List."), PLINTH_LOCATION);
        return;
    }
    const std::string apIp = m_strApIp.toStdString();
    for (const Quillon::ApInfo& apInfo : apInfoList.apList) {
        if (apInfo.ipAddress == apIp) {
            m_pUi->runTime->setText(tr("RunTime") + " " + formatRunTime(apInfo.runTime));
            return;
        }
    }
}

} // namespace velmora
