// The fleet window: the registry's devices listed with class, model and address, the search
// over every column, sorting, opening dialogs by double-click and Enter (two at once), and
// registry files that are missing, empty, not JSON or have entries without an id.
#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QSortFilterProxyModel>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>

#include "DeviceTypeString.h"
#include "FleetModel.h"
#include "FleetWindow.h"
#include "SwitchDeviceStatusWidget.h"
#include "TarvexGUIToolkit/TableView.h"
#include "TarvexGUIToolkit/TreeView.h"
#include "ostrand/DeviceRegistry.h"
#include "support/TestFleet.h"

using velmora::CSwitchDeviceStatusWidget;
using velmora::deviceTypeToString;
using velmora::test::EmulatorProcess;
using velmora::viewer::CFleetModel;
using velmora::viewer::CFleetWindow;

namespace {

// Names in mixed case, so that sorting shows it ignores case.
const char kFleetJson[] = R"({"name": "fleet-window-tests", "devices": [
  {"model": "QN-1062", "name": "core switch B"},
  {"model": "QN-1066", "name": "Access switch A"},
  {"model": "QN-1140", "name": "lobby AP"},
  {"model": "QN-1164", "name": "Campus controller", "apCount": 2, "groups": 0},
  {"model": "QN-1180", "name": "edge router"}
]})";

class FleetWindowFleet : public velmora::test::SharedTestFleet<FleetWindowFleet> {
public:
    FleetWindowFleet()
        : SharedTestFleet({"fleet-window-fleet.json", kFleetJson})
    {
    }
};

::testing::Environment* const kFleetEnvironment =
    ::testing::AddGlobalTestEnvironment(new velmora::test::TestFleetEnvironment<FleetWindowFleet>);

TarvexGUIToolkit::CTableView* table(CFleetWindow& window)
{
    return window.findChild<TarvexGUIToolkit::CTableView*>("m_pDeviceTable");
}

QLineEdit* searchField(CFleetWindow& window)
{
    return window.findChild<QLineEdit*>("m_pSearchEdit");
}

// The texts of one column as the table shows them, top to bottom.
QStringList shownColumn(CFleetWindow& window, int column)
{
    QAbstractItemModel* model = table(window)->model();
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts << model->index(row, column).data().toString();
    return texts;
}

QStringList sortedIgnoringCase(QStringList texts, Qt::SortOrder order)
{
    std::stable_sort(texts.begin(), texts.end(), [order](const QString& a, const QString& b) {
        const int compared = QString::compare(a, b, Qt::CaseInsensitive);
        return order == Qt::AscendingOrder ? compared < 0 : compared > 0;
    });
    return texts;
}

// The shown row whose name is `name`; -1 when none.
int rowOfName(CFleetWindow& window, const QString& name)
{
    return shownColumn(window, CFleetModel::COLUMN_NAME).indexOf(name);
}

class FleetWindowTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(fleet().isRunning()) << fleet().error();
        ostrand::CDeviceRegistry::instance().setPath(fleet().emulator().registryPath());
    }
    void TearDown() override { ostrand::CDeviceRegistry::instance().setPath(fleet().emulator().registryPath()); }

    static FleetWindowFleet& fleet() { return FleetWindowFleet::instance(); }
};

TEST_F(FleetWindowTest, ListsEveryRegistryDeviceWithItsClassModelAndAddress)
{
    CFleetWindow window;
    window.show();
    const std::vector<EmulatorProcess::Device>& devices = fleet().emulator().devices();
    ASSERT_EQ(devices.size(), 5u);
    EXPECT_EQ(table(window)->model()->rowCount(), 5);
    EXPECT_EQ(window.countText(), "5 of 5 devices");
    EXPECT_TRUE(window.problemText().isEmpty()) << window.problemText().toStdString();

    const auto entry = ostrand::CDeviceRegistry::instance().find(fleet().id("lobby AP"));
    ASSERT_TRUE(entry.has_value());
    const int row = rowOfName(window, "lobby AP");
    ASSERT_GE(row, 0);
    QAbstractItemModel* model = table(window)->model();
    EXPECT_EQ(model->index(row, CFleetModel::COLUMN_CLASS).data().toString(),
              deviceTypeToString(static_cast<tarvex7300::Device::DeviceCategory>(entry->category)));
    EXPECT_EQ(model->index(row, CFleetModel::COLUMN_MODEL).data().toString(), "QN-1140");
    EXPECT_EQ(model->index(row, CFleetModel::COLUMN_ADDRESS).data().toString(),
              QString("%1:%2").arg(QString::fromStdString(entry->address)).arg(entry->port));
    EXPECT_EQ(CFleetModel::deviceId(model->index(row, CFleetModel::COLUMN_ADDRESS)),
              QString::fromStdString(entry->id));

    const QStringList headers = {"Name", "Class", "Model", "Address"};
    for (int column = 0; column < CFleetModel::COLUMN_COUNT; ++column)
        EXPECT_EQ(model->headerData(column, Qt::Horizontal).toString(), headers.at(column));
}

TEST_F(FleetWindowTest, SearchFiltersOnAnyColumnIgnoringCaseAndShowsTheNumber)
{
    CFleetWindow window;
    window.show();

    searchField(window)->setText("SWITCH");
    EXPECT_EQ(sortedIgnoringCase(shownColumn(window, CFleetModel::COLUMN_NAME), Qt::AscendingOrder),
              QStringList({"Access switch A", "core switch B"}));
    EXPECT_EQ(window.countText(), "2 of 5 devices");

    searchField(window)->setText("qn-1180");
    EXPECT_EQ(shownColumn(window, CFleetModel::COLUMN_NAME), QStringList({"edge router"}));
    EXPECT_EQ(window.countText(), "1 of 5 devices");

    const auto ap = ostrand::CDeviceRegistry::instance().find(fleet().id("lobby AP"));
    ASSERT_TRUE(ap.has_value());
    const QString apClass = deviceTypeToString(static_cast<tarvex7300::Device::DeviceCategory>(ap->category));
    searchField(window)->setText(apClass);
    const QStringList classes = shownColumn(window, CFleetModel::COLUMN_CLASS);
    EXPECT_TRUE(shownColumn(window, CFleetModel::COLUMN_NAME).contains("lobby AP"));
    for (const QString& shown : classes)
        EXPECT_TRUE(shown.contains(apClass, Qt::CaseInsensitive)) << shown.toStdString();

    searchField(window)->setText(QString("127.0.0.1:%1").arg(ap->port));
    EXPECT_TRUE(shownColumn(window, CFleetModel::COLUMN_NAME).contains("lobby AP"));

    searchField(window)->setText("no such device");
    EXPECT_EQ(table(window)->model()->rowCount(), 0);
    EXPECT_EQ(window.countText(), "0 of 5 devices");

    searchField(window)->clear();
    EXPECT_EQ(table(window)->model()->rowCount(), 5);
    EXPECT_EQ(window.countText(), "5 of 5 devices");
}

TEST_F(FleetWindowTest, SortsByAnyColumnBothWaysAndKeepsTheOrderAfterAReload)
{
    CFleetWindow window;
    window.show();
    const QStringList names = shownColumn(window, CFleetModel::COLUMN_NAME);
    EXPECT_EQ(names, sortedIgnoringCase(names, Qt::AscendingOrder)) << "opens sorted by name";
    EXPECT_EQ(names.first(), "Access switch A");

    // A click on a header sorts by that column; a second click turns the order round.
    QHeaderView* header = table(window)->horizontalHeader();
    const QPoint modelHeader(header->sectionViewportPosition(CFleetModel::COLUMN_MODEL) + 5, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, modelHeader);
    const Qt::SortOrder first = header->sortIndicatorOrder();
    QStringList models = shownColumn(window, CFleetModel::COLUMN_MODEL);
    EXPECT_EQ(header->sortIndicatorSection(), CFleetModel::COLUMN_MODEL);
    EXPECT_EQ(models, sortedIgnoringCase(models, first));
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, modelHeader);
    const Qt::SortOrder second = header->sortIndicatorOrder();
    EXPECT_NE(first, second);
    models = shownColumn(window, CFleetModel::COLUMN_MODEL);
    EXPECT_EQ(models, sortedIgnoringCase(models, second));

    table(window)->sortByColumn(CFleetModel::COLUMN_NAME, Qt::DescendingOrder);
    window.reloadRegistry();
    const QStringList reloaded = shownColumn(window, CFleetModel::COLUMN_NAME);
    EXPECT_EQ(reloaded, sortedIgnoringCase(reloaded, Qt::DescendingOrder));
    EXPECT_EQ(reloaded.first(), "lobby AP");
}

TEST_F(FleetWindowTest, DoubleClickAndEnterOpenTwoDialogsSideBySide)
{
    CFleetWindow window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    TarvexGUIToolkit::CTableView* view = table(window);

    const int coreRow = rowOfName(window, "core switch B");
    ASSERT_GE(coreRow, 0);
    const QRect coreCell = view->visualRect(view->model()->index(coreRow, CFleetModel::COLUMN_NAME));
    ASSERT_TRUE(view->viewport()->rect().contains(coreCell.center()));
    // A double-click is a click followed by a second press that the platform marks as double.
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, coreCell.center());
    EXPECT_TRUE(window.openDialogs().isEmpty()) << "one click only selects";
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, coreCell.center());
    ASSERT_EQ(window.openDialogs().size(), 1);

    const int accessRow = rowOfName(window, "Access switch A");
    ASSERT_GE(accessRow, 0);
    view->setCurrentIndex(view->model()->index(accessRow, CFleetModel::COLUMN_MODEL));
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Return);

    const QList<CSwitchDeviceStatusWidget*> dialogs = window.openDialogs();
    ASSERT_EQ(dialogs.size(), 2);
    EXPECT_EQ(dialogs.at(0)->getDeviceGuid(), fleet().id("core switch B"));
    EXPECT_EQ(dialogs.at(1)->getDeviceGuid(), fleet().id("Access switch A"));
    for (CSwitchDeviceStatusWidget* dialog : dialogs) {
        EXPECT_TRUE(dialog->isVisible());
        auto* tree = dialog->findChild<TarvexGUIToolkit::CTreeView*>("m_pItemTreeView");
        ASSERT_NE(tree, nullptr);
        EXPECT_EQ(tree->currentIndex().row(), 0) << "each dialog shows its first page";
        EXPECT_NE(dialog->getDeviceStatusWidget(), nullptr);
    }
    EXPECT_NE(dialogs.at(0)->pos(), dialogs.at(1)->pos()) << "the second dialog does not hide the first";

    // The device of an open dialog is brought to the front, not opened twice.
    EXPECT_EQ(window.openDevice(QString::fromStdString(fleet().id("core switch B"))), dialogs.at(0));
    EXPECT_EQ(window.openDialogs().size(), 2);

    // A closed dialog leaves the list; closing the window closes the rest.
    dialogs.at(0)->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window.openDialogs().size(), 1);
    window.close();
    EXPECT_TRUE(window.openDialogs().isEmpty());
}

TEST_F(FleetWindowTest, EnterInTheSearchFieldOpensTheOnlyDeviceLeft)
{
    CFleetWindow window;
    window.show();
    searchField(window)->setText("edge");
    QTest::keyClick(searchField(window), Qt::Key_Return);
    const QList<CSwitchDeviceStatusWidget*> dialogs = window.openDialogs();
    ASSERT_EQ(dialogs.size(), 1);
    EXPECT_EQ(dialogs.at(0)->getDeviceGuid(), fleet().id("edge router"));
    window.close();
}

TEST_F(FleetWindowTest, TheDeviceMenuReloadsTheRegistry)
{
    CFleetWindow window;
    ASSERT_NE(window.deviceMenu(), nullptr);
    QAction* reload = nullptr;
    for (QAction* action : window.deviceMenu()->actions()) {
        if (action->objectName() == "m_pReloadAction")
            reload = action;
    }
    ASSERT_NE(reload, nullptr);

    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath("one-device.json");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"({"devices": [{"id": "only-one", "name": "only one", "category": 120, "model": "QN-1066"}]})");
    file.close();
    ostrand::CDeviceRegistry::instance().setPath(path.toStdString());
    EXPECT_EQ(table(window)->model()->rowCount(), 5) << "the window shows what it read until told to reload";
    reload->trigger();
    EXPECT_EQ(shownColumn(window, CFleetModel::COLUMN_NAME), QStringList({"only one"}));
    EXPECT_EQ(window.countText(), "1 of 1 devices");
}

// Registry files the window must survive: written into a temporary folder of the test.
class BrokenRegistryTest : public ::testing::Test {
protected:
    void TearDown() override { ostrand::CDeviceRegistry::instance().setPath(std::string()); }

    QString writeRegistry(const QByteArray& text)
    {
        const QString path = m_dir.filePath("registry.json");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text);
        file.close();
        ostrand::CDeviceRegistry::instance().setPath(path.toStdString());
        return QDir::toNativeSeparators(path);
    }

    QTemporaryDir m_dir;
};

TEST_F(BrokenRegistryTest, AMissingFileIsToldAndNothingIsListed)
{
    const QString path = m_dir.filePath("absent.json");
    ostrand::CDeviceRegistry::instance().setPath(path.toStdString());
    CFleetWindow window;
    window.show();
    EXPECT_EQ(window.problemText(), QString("The device registry %1 does not exist.").arg(path));
    EXPECT_EQ(table(window)->model()->rowCount(), 0);
    EXPECT_EQ(window.countText(), "0 of 0 devices");
}

TEST_F(BrokenRegistryTest, AnEmptyFileIsToldAsEmpty)
{
    const QString path = writeRegistry(QByteArray());
    CFleetWindow window;
    window.show();
    EXPECT_EQ(window.problemText(), QString("The device registry %1 is empty.").arg(path));
    EXPECT_EQ(table(window)->model()->rowCount(), 0);
}

TEST_F(BrokenRegistryTest, TextThatIsNotJsonIsToldWithWhereReadingStopped)
{
    const QString path = writeRegistry("devices: [ this is not JSON");
    CFleetWindow window;
    window.show();
    EXPECT_TRUE(window.problemText().startsWith(QString("The device registry %1 could not be read: ").arg(path)))
        << window.problemText().toStdString();
    EXPECT_TRUE(window.problemText().contains("JSON syntax error")) << window.problemText().toStdString();
    EXPECT_EQ(table(window)->model()->rowCount(), 0);
    EXPECT_EQ(window.countText(), "0 of 0 devices");
}

TEST_F(BrokenRegistryTest, EntriesWithoutAnIdAreToldAndTheValidOnesStillListed)
{
    const QString path = writeRegistry(R"({"devices": [
      {"id": "sw-1", "name": "first switch", "category": 120, "model": "QN-1066", "address": "192.0.2.10"},
      {"name": "no id at all", "category": 120, "model": "QN-1062"},
      {"id": "", "name": "empty id", "category": 125, "model": "QN-1140"},
      {"id": "ap-1", "name": "an AP", "category": 125, "model": "QN-1140", "address": "192.0.2.11", "port": 8080}
    ]})");
    CFleetWindow window;
    window.show();
    EXPECT_TRUE(window.problemText().startsWith(QString("Some entries of the device registry %1 were skipped: ").arg(path)))
        << window.problemText().toStdString();
    EXPECT_TRUE(window.problemText().contains("has no \"id\"")) << window.problemText().toStdString();
    EXPECT_EQ(shownColumn(window, CFleetModel::COLUMN_NAME), QStringList({"an AP", "first switch"}));
    EXPECT_EQ(shownColumn(window, CFleetModel::COLUMN_ADDRESS), QStringList({"192.0.2.11:8080", "192.0.2.10:80"}));
    EXPECT_EQ(window.countText(), "2 of 2 devices");

    // Repairing the file and reloading clears the message.
    writeRegistry(R"({"devices": [{"id": "sw-1", "name": "first switch", "category": 120}]})");
    window.reloadRegistry();
    EXPECT_TRUE(window.problemText().isEmpty()) << window.problemText().toStdString();
    EXPECT_EQ(window.countText(), "1 of 1 devices");
}

} // namespace
