// Copy and CSV export of the toolkit's table: what a person pastes into a ticket or opens
// in a spreadsheet, in the order and with the columns the table shows.
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHeaderView>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "TarvexGUIToolkit/MutilColumnFilterProxyModel.h"
#include "TarvexGUIToolkit/StandardItem.h"
#include "TarvexGUIToolkit/StandardItemModel.h"
#include "TarvexGUIToolkit/TableView.h"

using TarvexGUIToolkit::CMutilColumnFilterProxyModel;
using TarvexGUIToolkit::CStandardItem;
using TarvexGUIToolkit::CTableView;

namespace {

struct Row {
    const char* name;
    const char* ip;
    const char* note;
};

// Names with a comma, quotes, a line break and Chinese text; one row the filter drops.
const Row kRows[] = {
    {"core, west", "10.0.0.3", "rack 1"},
    {"say \"hi\"", "10.0.0.1", "two\nlines"},
    {"接入交换机", "10.0.0.2", "楼层 3"},
    {"dropped", "192.168.1.9", "x"},
};

class TableViewExport : public ::testing::Test {
protected:
    void SetUp() override
    {
        model.SetHorizontalHeader({"Name", "IP", "Note"});
        for (const Row& row : kRows)
            model.appendRow({new CStandardItem(QString::fromUtf8(row.name)), new CStandardItem(row.ip),
                             new CStandardItem(QString::fromUtf8(row.note))});
        proxy.setDynamicSortFilter(false);
        proxy.setSourceModel(&model);
        proxy.SetColumnFilter(1, "10.0.0.");
        proxy.sort(1, Qt::DescendingOrder);
        view.setModel(&proxy);
    }

    void selectRow(int row)
    {
        view.selectionModel()->select(proxy.index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    TarvexGUIToolkit::CStandardItemModel model;
    CMutilColumnFilterProxyModel proxy;
    CTableView view;
};

QByteArray readAll(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

} // namespace

TEST_F(TableViewExport, CsvHasHeaderAndEveryShownRowInSortOrderWithQuoting)
{
    const QString expected = QString::fromUtf8("Name,IP,Note\r\n"
                                               "\"core, west\",10.0.0.3,rack 1\r\n"
                                               "接入交换机,10.0.0.2,楼层 3\r\n"
                                               "\"say \"\"hi\"\"\",10.0.0.1,\"two\nlines\"\r\n");
    EXPECT_EQ(view.CsvText(), expected);

    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString fileName = dir.filePath("clients.csv");
    QString error;
    ASSERT_TRUE(view.WriteCsv(fileName, &error)) << error.toStdString();
    EXPECT_EQ(readAll(fileName), QByteArray("\xEF\xBB\xBF") + expected.toUtf8());
    // Only the file itself is left in the folder.
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"clients.csv"});
}

TEST_F(TableViewExport, CsvLeavesOutHiddenColumnsAndFollowsTheirVisualOrder)
{
    view.setColumnHidden(2, true);
    view.horizontalHeader()->moveSection(1, 0);
    EXPECT_EQ(view.CsvText(), QString::fromUtf8("IP,Name\r\n10.0.0.3,\"core, west\"\r\n10.0.0.2,接入交换机\r\n"
                                                "10.0.0.1,\"say \"\"hi\"\"\"\r\n"));
}

TEST_F(TableViewExport, CopyPutsHeaderAndSelectedRowsTabSeparatedOnTheClipboard)
{
    selectRow(2);
    selectRow(1);
    EXPECT_EQ(view.SelectedRowsText(), QString::fromUtf8("Name\tIP\tNote\n"
                                                         "接入交换机\t10.0.0.2\t楼层 3\n"
                                                         "say \"hi\"\t10.0.0.1\ttwo lines\n"));
    view.CopyAction()->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), view.SelectedRowsText());
}

TEST_F(TableViewExport, CopyShortcutOnTheFocusedTableCopiesTheRows)
{
    view.show();
    QApplication::setActiveWindow(&view);
    view.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    selectRow(0);
    QApplication::clipboard()->setText("before");
    QTest::keySequence(&view, QKeySequence(QKeySequence::Copy));
    EXPECT_EQ(QApplication::clipboard()->text(), QString("Name\tIP\tNote\ncore, west\t10.0.0.3\track 1\n"));
}

TEST_F(TableViewExport, CopyWithoutSelectionLeavesTheClipboardAlone)
{
    QApplication::clipboard()->setText("before");
    view.CopySelectedRows();
    EXPECT_EQ(QApplication::clipboard()->text(), QString("before"));
}

TEST_F(TableViewExport, ActionsCarryThePlatformShortcuts)
{
    EXPECT_EQ(view.CopyAction()->shortcut(), QKeySequence(QKeySequence::Copy));
    EXPECT_TRUE(view.actions().contains(view.CopyAction()));
    EXPECT_TRUE(view.actions().contains(view.ExportCsvAction()));
    EXPECT_EQ(view.ExportCsvAction()->text(), QString::fromUtf8("Export CSV…"));
}

TEST_F(TableViewExport, WriteWhereNobodyCanWriteFailsWithTheErrorShownAndNoFileLeft)
{
    // Tests may run as root, who may write almost anywhere: a parent that is a regular
    // file stops everybody.
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString blocker = dir.filePath("not-a-folder");
    {
        QFile file(blocker);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("x");
    }
    const QString fileName = blocker + "/clients.csv";

    QString shown;
    QTimer closer;
    closer.setInterval(20);
    QObject::connect(&closer, &QTimer::timeout, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            shown = box->text();
            box->close();
        }
    });
    closer.start();
    EXPECT_FALSE(view.ExportCsvTo(fileName));
    closer.stop();

    EXPECT_TRUE(shown.contains(QDir::toNativeSeparators(fileName))) << shown.toStdString();
    EXPECT_TRUE(shown.startsWith("The table could not be saved to ")) << shown.toStdString();
    EXPECT_FALSE(QFileInfo::exists(fileName));
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"not-a-folder"});
    EXPECT_EQ(readAll(blocker), QByteArray("x"));

    // A folder of the kernel's: no file can be made there.
    QString error;
    EXPECT_FALSE(view.WriteCsv("/proc/velmora-clients.csv", &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_FALSE(QFileInfo::exists("/proc/velmora-clients.csv"));
}
