#include "ApInfoListWidget.h"

#include <QColor>
#include <QHeaderView>
#include <QHideEvent>
#include <QItemSelectionModel>
#include <QTimer>
#include <QtConcurrent/QtConcurrentRun>
#include <algorithm>
#include <new>
#include <string>

#include "ApInfoListModel.h"
#include "TarvexGUIToolkit/MutilColumnFilterProxyModel.h"
#include "logical/interface/ParamInterface.h"

namespace velmora {

namespace {

constexpr int kRefreshMs = 30 * 1000;
const QColor kLinkColour(0x43, 0x90, 0xFA, 0xFF);
const char kOnline[] = "online";

} // namespace

CApInfoListWidget::CApInfoListWidget(QWidget* parent)
    : CDeviceStatusOptionBase(parent)
    , m_pApInfoListModel(new (std::nothrow) CApInfoListModel(this))
    , m_pProxyModel(nullptr)
    , m_pRefreshTimer(new (std::nothrow) QTimer(this))
    , m_apInfoList(std::string())
{
    ui.setupUi(this);
    m_pProxyModel = new (std::nothrow) TarvexGUIToolkit::CMutilColumnFilterProxyModel(this);
    if (m_pProxyModel) {
        m_pProxyModel->setDynamicSortFilter(false);
        m_pProxyModel->setSourceModel(m_pApInfoListModel);
        m_pProxyModel->setSortRole(Qt::DisplayRole);
        ui.m_pPortStatisticsTreeView->setModel(m_pProxyModel);
    }
    ui.m_pPortStatisticsTreeView->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
    ui.m_pPortStatisticsTreeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    ui.m_pPortStatisticsTreeView->setSortingEnabled(true);
    if (m_pRefreshTimer) {
        m_pRefreshTimer->start(kRefreshMs);
        connect(m_pRefreshTimer, &QTimer::timeout, this, &CApInfoListWidget::onRefreshPortStatisticData);
    }
    // Automatic: queued, since the read emits on a pool thread.
    connect(this, &CApInfoListWidget::signalUpdateData, this, &CApInfoListWidget::onUpdateData);
    connect(ui.m_pPortStatisticsTreeView, &TarvexGUIToolkit::CTableView::SignalClicked, this,
            &CApInfoListWidget::OnTableViewItemClicked);
}

CApInfoListWidget::~CApInfoListWidget()
{
    for (QFuture<void>& fetch : m_fetches)
        fetch.waitForFinished();
}

void CApInfoListWidget::showStatus()
{
    if (m_pRefreshTimer && !m_pRefreshTimer->isActive())
        m_pRefreshTimer->start();
    startFetch();
}

void CApInfoListWidget::hideEvent(QHideEvent* event)
{
    if (m_pRefreshTimer && m_pRefreshTimer->isActive())
        m_pRefreshTimer->stop();
    QWidget::hideEvent(event);
}

void CApInfoListWidget::onRefreshPortStatisticData()
{
    startFetch();
}

void CApInfoListWidget::startFetch()
{
    m_fetches.erase(std::remove_if(m_fetches.begin(), m_fetches.end(),
                                   [](const QFuture<void>& fetch) { return fetch.isFinished(); }),
                    m_fetches.end());
    // The device is taken here, on the GUI thread, where the dialog may replace it.
    const std::shared_ptr<tarvex7300::IAbstractDevice> device = m_pDevice;
    m_fetches.append(QtConcurrent::run([this, device] { fetchApInfoList(device); }));
}

void CApInfoListWidget::fetchApInfoList(const std::shared_ptr<tarvex7300::IAbstractDevice>& device)
{
    {
        // Reads queue here when the timer fires during a long one.
        std::lock_guard<std::mutex> lock(m_mutex);
        m_apInfoList.apList.clear();
        // The answer is not looked at: after a failure the list is simply empty.
        if (device)
            ParamInterface::getApInfoList(m_apInfoList, device->getDeviceId());
    }
    emit signalUpdateData();
}

void CApInfoListWidget::onUpdateData()
{
    // A read that runs now rewrites the list and hands over again when it ends; the GUI
    // thread never waits for the device.
    std::unique_lock<std::mutex> lock(m_mutex, std::try_to_lock);
    if (!lock.owns_lock())
        return;
    if (m_pApInfoListModel) {
        m_pApInfoListModel->setApInfoList(m_apInfoList);
        if (m_capability.isSupportAPGroup)
            setLinkColor(m_pApInfoListModel, m_apInfoList);
    }
    if (m_pProxyModel)
        m_pProxyModel->sort(m_pProxyModel->sortColumn(), m_pProxyModel->sortOrder());

    const long online = std::count_if(m_apInfoList.apList.begin(), m_apInfoList.apList.end(),
                                      [](const Quillon::ApInfo& apInfo) { return apInfo.state == kOnline; });
    const size_t total = m_apInfoList.apList.size();
    lock.unlock();

    ui.m_ApCountLabel->setText(tr("NumberOfOnlineAPycQFRVlW") + "/" + tr("TotalDeviceNum") + ":");
    ui.label->setText(QString("%1/%2").arg(online).arg(total));
}

void CApInfoListWidget::OnTableViewItemClicked(const QModelIndex&)
{
    if (!m_pApInfoListModel || !m_pProxyModel)
        return;
    QItemSelectionModel* selection = ui.m_pPortStatisticsTreeView->selectionModel();
    if (!selection)
        return;
    const QModelIndex source = m_pProxyModel->mapToSource(selection->currentIndex());
    // Only the device name is a link.
    if (source.column() != CApInfoListModel::DEVICE_NAME)
        return;
    const QModelIndex first = source.sibling(source.row(), CApInfoListModel::MODEL);
    const QString ip = first.data(CApInfoListModel::kApIpKey).toString();
    const QString mac = first.data(CApInfoListModel::kApMacKey).toString();
    emit signalUpdateToApStatus(ip, mac);
}

void CApInfoListWidget::setLinkColor(CApInfoListModel* model, const Quillon::ApInfoList& list)
{
    if (!model)
        return;
    for (int row = 0; row < static_cast<int>(list.apList.size()); ++row) {
        if (QStandardItem* item = model->item(row, CApInfoListModel::DEVICE_NAME))
            item->setForeground(kLinkColour);
    }
}

} // namespace velmora
