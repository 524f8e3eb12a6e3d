#pragma once
// The APs that a controller manages, with the number online. The list is read on Qt's
// global thread pool, so that a controller with many APs never blocks the window; a click
// on an AP's name asks the dialog for the view of that AP.
#include <QString>
#include <memory>

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
    // Waits for the one read that may be talking to the controller, never for a read that
    // has not started: that one finds the page gone and does nothing.
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
    struct FetchState;
    void startFetch();
    static void fetchApInfoLists(const std::shared_ptr<FetchState>& state);
    void setLinkColor(CApInfoListModel* model, const Quillon::ApInfoList& list);

    Ui::CApInfoListWidget ui;
    CApInfoListModel* m_pApInfoListModel;
    TarvexGUIToolkit::CMutilColumnFilterProxyModel* m_pProxyModel;
    QTimer* m_pRefreshTimer;
    // What the page and its read on the pool share, with the lock that guards it; the read
    // holds it too, so it outlives the page.
    std::shared_ptr<FetchState> m_pFetch;
    Quillon::ApInfoList m_apInfoList; // the list shown, of the last read; GUI thread only
};

} // namespace velmora
