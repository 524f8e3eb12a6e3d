#include "PageSnapshots.h"

#include <QAbstractButton>
#include <QDir>
#include <QEventLoop>
#include <QMetaObject>
#include <QPixmap>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QThreadPool>
#include <QTimer>
#include <cjson/cJSON.h>

#include "DeviceStatusFactory.h"
#include "DeviceStatusOptionBase.h"
#include "Quillon/WirelessRecords.h"
#include "SwitchDeviceStatusWidget.h"
#include "TarvexGUIToolkit/TreeView.h"
#include "logical/interface/ParamInterface.h"

namespace velmora {
namespace viewer {

namespace {

// A background job (the managed AP list reads on the global pool) has this long to end.
constexpr int kBackgroundJobWaitMs = 20000;

TarvexGUIToolkit::CTreeView* optionTree(CSwitchDeviceStatusWidget& dialog)
{
    return dialog.findChild<TarvexGUIToolkit::CTreeView*>("m_pItemTreeView");
}

QString pngPath(const QString& dir, const QString& prefix, int row, int key)
{
    return QDir(dir).filePath(QString("%1_%2_%3.png").arg(prefix).arg(row).arg(key));
}

} // namespace

protocol::SwitchCapabilities capabilitiesFromJson(const std::string& json)
{
    cJSON* root = cJSON_Parse(json.c_str());
    protocol::SwitchCapabilities capabilities(root);
    cJSON_Delete(root);
    return capabilities;
}

void settle(int ms)
{
    QThreadPool::globalInstance()->waitForDone(kBackgroundJobWaitMs);
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
    // A job's queued hand-over may have started another job; let that end as well.
    QThreadPool::globalInstance()->waitForDone(kBackgroundJobWaitMs);
    QEventLoop rest;
    QTimer::singleShot(0, &rest, &QEventLoop::quit);
    rest.exec();
}

QString snapshotCurrent(CSwitchDeviceStatusWidget& dialog, const QString& dir, const QString& prefix,
                        QStringList* problems)
{
    TarvexGUIToolkit::CTreeView* tree = optionTree(dialog);
    const QModelIndex current = tree ? tree->currentIndex() : QModelIndex();
    const int row = current.isValid() ? current.row() : -1;
    const int key = current.isValid() ? current.data(Qt::UserRole).toInt() : 0;
    const QString path = pngPath(dir, prefix, row, key);
    if (!dialog.grab().save(path, "PNG")) {
        if (problems)
            problems->append(QString("could not write %1").arg(path));
        return QString();
    }
    return path;
}

QStringList snapshotRows(CSwitchDeviceStatusWidget& dialog, const QString& dir, const QString& prefix,
                         int settleMs, QStringList* problems)
{
    QStringList written;
    TarvexGUIToolkit::CTreeView* tree = optionTree(dialog);
    if (!tree || !tree->model()) {
        if (problems)
            problems->append(QString("%1: the dialog has no option tree (unknown device?)").arg(prefix));
        return written;
    }
    if (tree->model()->rowCount() == 0 && problems)
        problems->append(QString("%1: no rows for this device").arg(prefix));

    for (int row = 0; row < tree->model()->rowCount(); ++row) {
        const QModelIndex index = tree->model()->index(row, 0);
        tree->setCurrentIndex(index);
        emit tree->SignalClicked(index);
        settle(settleMs);
        const QString path = pngPath(dir, prefix, row, index.data(Qt::UserRole).toInt());
        if (dialog.grab().save(path, "PNG"))
            written.append(path);
        else if (problems)
            problems->append(QString("could not write %1").arg(path));
    }
    return written;
}

bool openApView(CSwitchDeviceStatusWidget& dialog, const std::string& deviceId, const QString& apIp,
                int settleMs, QString* error)
{
    const std::string emptyAnswer;
    Quillon::ApInfoList apInfoList(emptyAnswer);
    if (!ParamInterface::getApInfoList(apInfoList, deviceId)) {
        if (error)
            *error = "the controller did not answer its AP list";
        return false;
    }
    const Quillon::ApInfo* chosen = nullptr;
    for (const Quillon::ApInfo& apInfo : apInfoList.apList) {
        if (apIp.isEmpty() || QString::fromStdString(apInfo.ipAddress) == apIp) {
            chosen = &apInfo;
            break;
        }
    }
    if (!chosen) {
        if (error)
            *error = apIp.isEmpty() ? QString("the controller lists no AP") : QString("no AP %1").arg(apIp);
        return false;
    }
    const QString ip = QString::fromStdString(chosen->ipAddress);
    const QString mac = QString::fromStdString(chosen->macAddress);

    // The road of a user: the managed AP list row, then the list's signal for the AP.
    TarvexGUIToolkit::CTreeView* tree = optionTree(dialog);
    auto* backButton = dialog.findChild<QAbstractButton*>("m_pBackButton");
    if (tree && tree->model()) {
        for (int row = 0; row < tree->model()->rowCount(); ++row) {
            const QModelIndex index = tree->model()->index(row, 0);
            if (index.data(Qt::UserRole).toInt() != OptionApList)
                continue;
            tree->setCurrentIndex(index);
            emit tree->SignalClicked(index);
            settle(settleMs);
            auto* stack = dialog.findChild<QStackedWidget*>("m_pStackedWidget");
            QWidget* page = stack ? stack->currentWidget() : nullptr;
            if (page && page->metaObject()->indexOfSignal("signalUpdateToApStatus(QString,QString)") >= 0)
                QMetaObject::invokeMethod(page, "signalUpdateToApStatus", Qt::DirectConnection,
                                          Q_ARG(QString, ip), Q_ARG(QString, mac));
            break;
        }
    }
    // Without AP groups the dialog does not listen to the list: go through its slot.
    if (!backButton || backButton->isHidden())
        QMetaObject::invokeMethod(&dialog, "onUpdateToApStatus", Qt::DirectConnection, Q_ARG(QString, ip),
                                  Q_ARG(QString, mac));
    settle(settleMs);
    return true;
}

bool pressBack(CSwitchDeviceStatusWidget& dialog, int settleMs)
{
    auto* backButton = dialog.findChild<QAbstractButton*>("m_pBackButton");
    if (!backButton || backButton->isHidden())
        return false;
    backButton->click();
    settle(settleMs);
    return true;
}

QString fileSafe(const QString& id)
{
    QString safe = id;
    safe.replace(QRegularExpression("[^A-Za-z0-9._-]"), "_");
    return safe;
}

} // namespace viewer
} // namespace velmora
