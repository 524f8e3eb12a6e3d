#include "ApInfoListWidget.h"

#include <QColor>
#include <QHeaderView>
#include <QHideEvent>
#include <QItemSelectionModel>
#include <QTimer>
#include <QtConcurrent/QtConcurrentRun>
#include <algorithm>
#include <condition_variable>
#include <mutex>
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

// Threads: the GUI thread (the page) and at most one task on the global pool (the read).
// Every field here is read and written only under `mutex`, and m_apInfoList only on the GUI
// thread, so the two never touch the same memory unguarded. The read talks to the controller
// without the lock and takes it only to hand the list over, so the GUI thread never waits for
// the device while the page lives.
//
// - One read at a time: a request while a read runs sets `again`, and the running task reads
//   once more when it ends. Requests are never dropped, and a controller slower than the timer
//   leaves no backlog of reads behind it.
// - The hand-over (`latest`, then the signal) happens under the lock, and the destructor clears
//   `page` under the same lock, so a read never signals a page that is going; the queued
//   signal of an earlier hand-over dies with the page's posted events.
// - The destructor waits only while `reading`: for the one read in flight. A task still waiting
//   in the pool is never run on the GUI thread; when it starts it finds `page` null and ends.
struct CApInfoListWidget::FetchState {
    std::mutex mutex;
    std::condition_variable readEnded;
    CApInfoListWidget* page = nullptr;                    // null once the page is going
    std::shared_ptr<tarvex7300::IAbstractDevice> device; // of the latest request
    bool queued = false;  // a task is in the pool, started or not
    bool reading = false; // the task is asking the controller
    bool again = false;   // a request came while a read ran
    Quillon::ApInfoList latest{std::string()};
};

CApInfoListWidget::CApInfoListWidget(QWidget* parent)
    : CDeviceStatusOptionBase(parent)
    , m_pApInfoListModel(new (std::nothrow) CApInfoListModel(this))
    , m_pProxyModel(nullptr)
    , m_pRefreshTimer(new (std::nothrow) QTimer(this))
    , m_pFetch(std::make_shared<FetchState>())
    , m_apInfoList(std::string())
{
    m_pFetch->page = this;
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
    std::unique_lock<std::mutex> lock(m_pFetch->mutex);
    m_pFetch->page = nullptr;
    m_pFetch->readEnded.wait(lock, [this] { return !m_pFetch->reading; });
}

void CApInfoListWidget::showStatus()
{
    if (!hasDevice(m_pRefreshTimer))
        return;
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
    if (!hasDevice(m_pRefreshTimer))
        return;
    {
        std::lock_guard<std::mutex> lock(m_pFetch->mutex);
        // The device is taken here, on the GUI thread, where the dialog may replace it.
        m_pFetch->device = m_pDevice;
        if (m_pFetch->queued) {
            m_pFetch->again = true;
            return;
        }
        m_pFetch->queued = true;
    }
    const std::shared_ptr<FetchState> state = m_pFetch;
    QtConcurrent::run([state] { fetchApInfoLists(state); });
}

void CApInfoListWidget::fetchApInfoLists(const std::shared_ptr<FetchState>& state)
{
    std::unique_lock<std::mutex> lock(state->mutex);
    while (state->page) {
        state->again = false;
        state->reading = true;
        const std::shared_ptr<tarvex7300::IAbstractDevice> device = state->device;
        lock.unlock();

        Quillon::ApInfoList list{std::string()};
        // The answer is not looked at: after a failure the list is simply empty.
        if (device)
            ParamInterface::getApInfoList(list, device->getDeviceId());

        lock.lock();
        state->reading = false;
        state->readEnded.notify_all();
        if (!state->page)
            break;
        state->latest = std::move(list);
        emit state->page->signalUpdateData();
        if (!state->again)
            break;
    }
    state->queued = false;
}

void CApInfoListWidget::onUpdateData()
{
    {
        // Held only for the copy: a read holds this lock just to hand over.
        std::lock_guard<std::mutex> lock(m_pFetch->mutex);
        m_apInfoList = m_pFetch->latest;
    }
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
