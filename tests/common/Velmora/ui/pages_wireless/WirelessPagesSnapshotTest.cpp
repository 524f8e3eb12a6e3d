// The wireless pages in the status dialog, end to end on the emulated site: every row of a
// stand-alone AP and of a controller, the walk from the controller's AP list into one AP
// (a click on its name) and back, each step rendered to a PNG file under
// <build>/snapshots/pages_wireless for people to look at.
#include <QAbstractButton>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QStackedWidget>
#include <QTableView>
#include <QTest>
#include <cstdlib>
#include <optional>
#include <gtest/gtest.h>

#include "support/Snapshot.h"

#include "ApDeviceStatusWidget.h"
#include "ApInfoListWidget.h"
#include "ClientListInfoWidget.h"
#include "RfInfoTab.h"
#include "SwitchDeviceStatusWidget.h"
#include "TarvexGUIToolkit/TabWidget.h"
#include "TarvexGUIToolkit/TreeView.h"
#include "WirelessPagesTestFleet.h"

using velmora::CSwitchDeviceStatusWidget;
using velmora::test::WirelessPageTest;
using velmora::test::waitUntil;

namespace {

void snapshot(QWidget& widget, const QString& name)
{
    velmora::test::writeSnapshot(widget, "pages_wireless", name);
}

struct Dialog {
    TarvexGUIToolkit::CTreeView* tree = nullptr;
    QStackedWidget* stack = nullptr;
    QAbstractButton* back = nullptr;
    QLabel* name = nullptr;
};

Dialog partsOf(CSwitchDeviceStatusWidget& dialog)
{
    Dialog d;
    d.tree = dialog.findChild<TarvexGUIToolkit::CTreeView*>("m_pItemTreeView");
    d.stack = dialog.findChild<QStackedWidget*>("m_pStackedWidget");
    d.back = dialog.findChild<QAbstractButton*>("m_pBackButton");
    d.name = dialog.findChild<QLabel*>("deviceName");
    EXPECT_TRUE(d.tree && d.stack && d.back && d.name);
    return d;
}

std::vector<int> keysOf(const Dialog& d)
{
    std::vector<int> keys;
    for (int r = 0; r < d.tree->model()->rowCount(); ++r)
        keys.push_back(d.tree->model()->index(r, 0).data(Qt::UserRole).toInt());
    return keys;
}

// Lets the AP list's read on the pool end and reach the table.
void settle()
{
    waitUntil([] { return QThreadPool::globalInstance()->activeThreadCount() == 0; });
    QTest::qWait(50);
    waitUntil([] { return QThreadPool::globalInstance()->activeThreadCount() == 0; });
    QCoreApplication::processEvents();
}

void clickRow(const Dialog& d, int row)
{
    const QModelIndex index = d.tree->model()->index(row, 0);
    d.tree->setCurrentIndex(index);
    emit d.tree->SignalClicked(index);
    settle();
}

// Every row of the dialog, one picture each.
void snapshotRows(CSwitchDeviceStatusWidget& dialog, const QString& prefix)
{
    const Dialog d = partsOf(dialog);
    for (int row = 0; row < d.tree->model()->rowCount(); ++row) {
        clickRow(d, row);
        const int key = d.tree->model()->index(row, 0).data(Qt::UserRole).toInt();
        snapshot(dialog, QString("%1_row%2_key%3").arg(prefix).arg(row).arg(key));
    }
}

class WirelessPagesSnapshotTest : public WirelessPageTest {
protected:
    std::unique_ptr<CSwitchDeviceStatusWidget> openDialog(const std::string& name)
    {
        auto dialog = std::make_unique<CSwitchDeviceStatusWidget>(fleet().id(name), fleet().capabilities(name), nullptr);
        dialog->resize(1100, 760);
        dialog->show();
        settle();
        return dialog;
    }
};

} // namespace

TEST_F(WirelessPagesSnapshotTest, EveryPageOfAStandAloneAp)
{
    for (const char* name : {"ap", "ap-quiet"}) {
        auto dialog = openDialog(name);
        const Dialog d = partsOf(*dialog);
        EXPECT_EQ(keysOf(d), (std::vector<int>{1, 7, 11}));
        snapshotRows(*dialog, name);
        dialog->hide();
    }
}

TEST_F(WirelessPagesSnapshotTest, EveryPageOfAControllerAndTheWalkIntoOneOfItsAps)
{
    auto dialog = openDialog("ac-search");
    const Dialog d = partsOf(*dialog);
    const std::vector<int> keys = keysOf(d);
    ASSERT_GE(keys.size(), 3u);
    EXPECT_EQ(keys.front(), 1);
    EXPECT_NE(std::find(keys.begin(), keys.end(), 9), keys.end());
    EXPECT_EQ(keys.back(), 12);
    snapshotRows(*dialog, "ac-search");

    // The managed AP list, and a click on the name of an AP with three radios and terminals.
    const int listRow = static_cast<int>(keys.size()) - 1;
    clickRow(d, listRow);
    auto* list = qobject_cast<velmora::CApInfoListWidget*>(d.stack->currentWidget());
    ASSERT_NE(list, nullptr);
    auto* view = list->findChild<QTableView*>("m_pPortStatisticsTreeView");
    ASSERT_TRUE(waitUntil([&] { return view->model()->rowCount() > 0; }));
    const std::vector<Quillon::AcTerminalInfo> terminals = fleet().terminals("ac-search");
    std::optional<Quillon::ApInfo> ap;
    for (const Quillon::ApInfo& candidate : fleet().managedAps("ac-search")) {
        if (candidate.rfList.size() != 3 || candidate.state != "online" || ap)
            continue;
        for (const auto& t : terminals)
            if (t.apMacAddress == candidate.macAddress && !ap)
                ap = candidate;
    }
    ASSERT_TRUE(ap.has_value());
    int row = -1;
    for (int r = 0; r < view->model()->rowCount(); ++r)
        if (view->model()->index(r, 1).data().toString() == QString::fromUtf8(ap->deviceName.c_str()))
            row = r;
    ASSERT_GE(row, 0);
    view->scrollTo(view->model()->index(row, 1));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier,
                      view->visualRect(view->model()->index(row, 1)).center());
    settle();

    // The AP view: back button, the AP's address as the name, its two rows.
    EXPECT_FALSE(d.back->isHidden());
    EXPECT_TRUE(d.name->text().endsWith(QString::fromStdString(ap->ipAddress)));
    EXPECT_EQ(keysOf(d), (std::vector<int>{10, 11}));
    auto* apPage = qobject_cast<velmora::CApDeviceStatusWidget*>(d.stack->currentWidget());
    ASSERT_NE(apPage, nullptr);
    auto* radios = apPage->findChild<TarvexGUIToolkit::CTabWidget*>();
    ASSERT_NE(radios, nullptr);
    EXPECT_EQ(radios->count(), 3);
    EXPECT_EQ(radios->tabText(1), "GHZFrequencyBandtaVmJsgCA");
    snapshot(*dialog, "ac-search_ap_row0_key10");
    radios->setCurrentIndex(1);
    snapshot(*dialog, "ac-search_ap_row0_key10_5g1");

    clickRow(d, 1);
    auto* clients = qobject_cast<velmora::CClientListInfoWidget*>(d.stack->currentWidget());
    ASSERT_NE(clients, nullptr);
    auto* clientTabs = clients->findChild<TarvexGUIToolkit::CTabWidget*>();
    ASSERT_NE(clientTabs, nullptr);
    EXPECT_GT(clientTabs->count(), 0);
    EXPECT_FALSE(clientTabs->isHidden());
    snapshot(*dialog, "ac-search_ap_row1_key11");

    // Back to the controller, on its AP list.
    d.back->click();
    settle();
    EXPECT_TRUE(d.back->isHidden());
    EXPECT_EQ(keysOf(d), keys);
    EXPECT_EQ(d.tree->currentIndex().row(), 3);
    EXPECT_EQ(d.stack->currentWidget(), list);
    snapshot(*dialog, "ac-search_back");
    dialog->hide();
}

TEST_F(WirelessPagesSnapshotTest, TheClientListWithoutDataAndTheControllerWithoutGroups)
{
    auto dialog = openDialog("ac-nogroups");
    const Dialog d = partsOf(*dialog);
    const std::vector<int> keys = keysOf(d);
    EXPECT_EQ(std::find(keys.begin(), keys.end(), 9), keys.end());
    snapshotRows(*dialog, "ac-nogroups");
    dialog->hide();

    // An AP that is off line has no terminals: the client list shows its no-data frame.
    const std::vector<Quillon::ApInfo> aps = fleet().managedAps("ac-search");
    const Quillon::ApInfo* offline = nullptr;
    for (const auto& ap : aps)
        if (ap.state == "offline" && !offline)
            offline = &ap;
    ASSERT_NE(offline, nullptr);
    velmora::CClientListInfoWidget page(nullptr);
    fleet().open(page, "ac-search");
    page.setApInfo(QString::fromStdString(offline->macAddress), QString::fromStdString(offline->ipAddress));
    page.resize(900, 700);
    page.show();
    showStatus(page);
    snapshot(page, "client-list-no-data");
    page.hide();
}
