#include "AcWirelessStatusWidget.h"

#include <QHeaderView>
#include <QHideEvent>
#include <QTimer>
#include <new>
#include <unordered_map>

#include "AcSSIDStatusModel.h"
#include "Plinth/Log.h"
#include "Plinth/StringUtil.h"
#include "TarvexGUIToolkit/MutilColumnFilterProxyModel.h"
#include "TarvexGUIToolkit/StringConvert.h"
#include "logical/interface/ParamInterface.h"

namespace velmora {

namespace {

constexpr int kRefreshSeconds = 45;

const int kColumnWidths[] = {200, 100, 100, 100, 100};

Plinth::details::CLog& logger()
{
    return Plinth::CSingleton<Plinth::details::CLog>::Instance();
}

QString fromUtf8(const std::string& text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

} // namespace

CAcWirelessStatusWidget::CAcWirelessStatusWidget(QWidget* parent)
    : CDeviceStatusOptionBase(parent)
    , m_pProxyModel(nullptr)
    , m_pSSIDModel(new (std::nothrow) CAcSSIDStatusModel(this))
    , m_apGroupList(std::string())
    , m_pRefreshTimer(new (std::nothrow) QTimer(this))
{
    ui.setupUi(this);
    if (m_pSSIDModel) {
        m_pProxyModel = new (std::nothrow) TarvexGUIToolkit::CMutilColumnFilterProxyModel(this);
        if (m_pProxyModel) {
            m_pProxyModel->setDynamicSortFilter(false);
            m_pProxyModel->setSourceModel(m_pSSIDModel);
            m_pProxyModel->setSortRole(Qt::DisplayRole);
            ui.m_pConnectedDeviceTreeView->setModel(m_pProxyModel);
        }
    }
    for (int column = 0; column < static_cast<int>(std::size(kColumnWidths)); ++column)
        ui.m_pConnectedDeviceTreeView->setColumnWidth(column, kColumnWidths[column]);
    ui.m_pConnectedDeviceTreeView->setSortingEnabled(true);
    ui.m_pConnectedDeviceTreeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    ui.m_pConnectedDeviceTreeView->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
    // The text form of the signal: the group name is what the page works with.
    connect(ui.m_pGroupComBox, SIGNAL(currentIndexChanged(QString)), this, SLOT(onGroupChange(QString)));
    if (m_pRefreshTimer)
        connect(m_pRefreshTimer, &QTimer::timeout, this, &CAcWirelessStatusWidget::onRefreshWirelessPortInfo);
}

void CAcWirelessStatusWidget::showStatus()
{
    if (!hasDevice(m_pRefreshTimer))
        return;
    if (m_pRefreshTimer && !m_pRefreshTimer->isActive()) {
        m_pRefreshTimer->stop();
        m_pRefreshTimer->start(kRefreshSeconds * 1000);
    }
    getApGroupList();
    updateGroupComBox();
    showGroupSSID(ui.m_pGroupComBox->currentText().toStdString());
}

void CAcWirelessStatusWidget::hideEvent(QHideEvent*)
{
    if (m_pRefreshTimer && m_pRefreshTimer->isActive())
        m_pRefreshTimer->stop();
}

void CAcWirelessStatusWidget::onRefreshWirelessPortInfo()
{
    if (!hasDevice(m_pRefreshTimer))
        return;
    getApGroupList();
    updateGroupComBox();
    showGroupSSID(ui.m_pGroupComBox->currentText().toStdString());
}

void CAcWirelessStatusWidget::onGroupChange(QString strApGroup)
{
    if (strApGroup.isEmpty())
        return;
    ui.m_pGroupComBox->setCurrentText(strApGroup);
    showGroupSSID(strApGroup.toStdString());
}

void CAcWirelessStatusWidget::getApGroupList()
{
    Quillon::AcCapabilities capabilities{std::string()};
    if (!ParamInterface::getAcCapabilities(capabilities, m_pDevice->getDeviceId()))
        logger().Info("", Plinth::StringUtil::FormatString("call getAcCapabilities failed"), PLINTH_LOCATION);

    // The AC answers one of the two forms; neither falls back to the other.
    Quillon::APGroupBSSList groups{std::string()};
    if (capabilities.isSupportSearchAPGroup) {
        if (!ParamInterface::PostAPGroupBssParaCfg(groups, m_pDevice->getDeviceId())) {
            logger().Info("", Plinth::StringUtil::FormatString("call PostAPGroupBssParaCfg failed"), PLINTH_LOCATION);
            return;
        }
    } else if (!ParamInterface::GetAPGroupBSSList(groups, m_pDevice->getDeviceId())) {
        logger().Info("", Plinth::StringUtil::FormatString("call GetAPGroupBSSList failed"), PLINTH_LOCATION);
        return;
    }
    m_apGroupList = groups;
}

void CAcWirelessStatusWidget::updateGroupComBox()
{
    TarvexGUIToolkit::CComboBox* combo = ui.m_pGroupComBox;
    const QString remembered = combo->currentText();
    // The clear reports an empty group, which onGroupChange ignores.
    combo->clear();
    if (!m_apGroupList.groupList.empty()) {
        disconnect(combo, SIGNAL(currentIndexChanged(QString)), this, SLOT(onGroupChange(QString)));
        for (const Quillon::APGroupBSS& group : m_apGroupList.groupList) {
            const QString name = fromUtf8(group.groupName);
            combo->AddItem(name, name, QVariant());
        }
        connect(combo, SIGNAL(currentIndexChanged(QString)), this, SLOT(onGroupChange(QString)));
    }
    int index = 0;
    if (!remembered.isEmpty()) {
        const int found = combo->findData(remembered, Qt::DisplayRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (found >= 0)
            index = found;
    }
    combo->setCurrentIndex(index);
}

void CAcWirelessStatusWidget::showGroupSSID(std::string strGroupName)
{
    if (!m_pSSIDModel)
        return;
    std::unordered_map<int, AcSSIDStatusInfo> rows;
    // Groups of one name add up; the entries of one SSID on several bands share its index.
    for (const Quillon::APGroupBSS& group : m_apGroupList.groupList) {
        if (group.groupName != strGroupName)
            continue;
        for (const Quillon::APGroupBssParaCfg& bss : group.bssList) {
            auto found = rows.find(bss.ssidIndex);
            if (found == rows.end()) {
                AcSSIDStatusInfo row;
                row.nSSIDIndex = bss.ssidIndex;
                found = rows.emplace(bss.ssidIndex, row).first;
            }
            AcSSIDStatusInfo& row = found->second;
            row.strSSID = fromUtf8(bss.ssid);
            const QString state = bss.enabled ? tr("OpenWSYVR9KO") : tr("NotAllow");
            switch (bss.band) {
            case 0:
                row.strState24G = state;
                // The security mode is taken from the 2.4 GHz entry only.
                row.strSecurity = bss.securityMode == "none"
                                      ? tr("None")
                                      : TarvexGUIToolkit::ConvertToUnicode(bss.securityMode, nullptr);
                break;
            case 1:
                row.strState5G1 = state;
                break;
            case 2:
                row.strState5G2 = state;
                break;
            default:
                break;
            }
        }
    }
    m_pSSIDModel->setSSIDInfo(rows);
    if (m_pProxyModel)
        m_pProxyModel->sort(m_pProxyModel->sortColumn(), m_pProxyModel->sortOrder());
}

} // namespace velmora
