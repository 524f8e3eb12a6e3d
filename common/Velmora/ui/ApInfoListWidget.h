#pragma once
// The APs that a controller manages, with the number online. The list is read on Qt's
// global thread pool, so that a controller with many APs never blocks the window; a click
// on an AP's name asks the dialog for the view of that AP.
#include <QFuture>
#include <QList>
#include <QString>
#include <memory>
#include <mutex>

#include "DeviceStatusOptionBase.h"
#include "Quillon/WirelessRecords.h"
#include "ui_CApInfoListWidget.h"

class QHideEvent;
class QModelIndex;
class QTimer;

namespace TarvexGUIToolkit {
class CMutilColumnFilterProxyModel;
}

namespace velmora {

class CApInfoListModel;

class CApInfoListWidget : public CDeviceStatusOptionBase {
    Q_OBJECT
public:
    explicit CApInfoListWidget(QWidget* parent);
    // Waits for reads still running on the pool: they write into this page.
    ~CApInfoListWidget() override;

signals:
    // A read has ended; emitted on the pool thread, handled on the GUI thread.
    void signalUpdateData();
    // The user clicked the device name of an AP.
    void signalUpdateToApStatus(const QString& strApIP, const QString& strApMac);

protected:
    void showStatus() override;
    void hideEvent(QHideEvent* event) override;

protected slots:
    void onRefreshPortStatisticData();
    void onUpdateData();
    void OnTableViewItemClicked(const QModelIndex& Index);

private:
    void startFetch();
    void fetchApInfoList(const std::shared_ptr<tarvex7300::IAbstractDevice>& device);
    void setLinkColor(CApInfoListModel* model, const Quillon::ApInfoList& list);

    Ui::CApInfoListWidget ui;
    CApInfoListModel* m_pApInfoListModel;
    TarvexGUIToolkit::CMutilColumnFilterProxyModel* m_pProxyModel;
    QTimer* m_pRefreshTimer;
    std::mutex m_mutex;             // held while a read rewrites m_apInfoList, and while it is shown
    Quillon::ApInfoList m_apInfoList; // the list of the last read
    QList<QFuture<void>> m_fetches;   // reads started and maybe not ended
};

} // namespace velmora
