// The framed dialog: title bar, close button, content widget for forms, dragging, look.
#include <QApplication>
#include <QDir>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QStandardItem>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

#include "TarvexGUIToolkit/BaseDialog.h"
#include "TarvexGUIToolkit/StandardItem.h"
#include "TarvexGUIToolkit/StandardItemModel.h"
#include "TarvexGUIToolkit/TableView.h"
#include "TarvexGUIToolkit/ToolPushButton.h"
#include "TarvexGUIToolkit/TreeView.h"

using TarvexGUIToolkit::CBaseDialog;

namespace {

QLabel* titleLabel(CBaseDialog& dialog)
{
    return dialog.findChild<QLabel*>("TarvexDialogTitle");
}

QToolButton* closeButton(CBaseDialog& dialog)
{
    return dialog.findChild<QToolButton*>("TarvexDialogCloseButton");
}

QWidget* titleBar(CBaseDialog& dialog)
{
    return dialog.findChild<QWidget*>("TarvexDialogTitleBar");
}

void sendMouse(QWidget* widget, QEvent::Type type, const QPoint& pos, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, pos, widget->mapToGlobal(pos), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

} // namespace

TEST(BaseDialog, IsAFramelessWindow)
{
    CBaseDialog dialog;
    EXPECT_TRUE(dialog.windowFlags() & Qt::FramelessWindowHint);
    EXPECT_TRUE(dialog.isWindow());
}

TEST(BaseDialog, TitleShowsInTitleBarAndAsWindowTitle)
{
    CBaseDialog dialog;
    const QString title = QString::fromUtf8("设备状态");
    dialog.SetTitle(title);
    EXPECT_EQ(dialog.GetTitle(), title);
    EXPECT_EQ(dialog.windowTitle(), title);
    ASSERT_NE(titleLabel(dialog), nullptr);
    EXPECT_EQ(titleLabel(dialog)->text(), title);
}

TEST(BaseDialog, WindowTitleSetDirectlyReachesTitleBar)
{
    CBaseDialog dialog;
    dialog.setWindowTitle("Port status");
    EXPECT_EQ(dialog.GetTitle(), "Port status");
}

TEST(BaseDialog, CloseButtonVisibilityFollowsSetter)
{
    CBaseDialog dialog;
    ASSERT_NE(closeButton(dialog), nullptr);
    EXPECT_TRUE(dialog.IsCloseBtnVisible());
    dialog.SetCloseBtnVisible(false);
    EXPECT_FALSE(dialog.IsCloseBtnVisible());
    dialog.show();
    EXPECT_FALSE(closeButton(dialog)->isVisible());
    dialog.SetCloseBtnVisible(true);
    EXPECT_TRUE(dialog.IsCloseBtnVisible());
    EXPECT_TRUE(closeButton(dialog)->isVisible());
}

TEST(BaseDialog, CloseButtonRejectsTheDialog)
{
    CBaseDialog dialog;
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    QTest::mouseClick(closeButton(dialog), Qt::LeftButton);
    EXPECT_EQ(rejected.count(), 1);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST(BaseDialog, ContentWidgetLiesBelowTheTitleBar)
{
    CBaseDialog dialog;
    QWidget* content = dialog.GetSetUpUiWidget();
    ASSERT_NE(content, nullptr);
    EXPECT_TRUE(dialog.isAncestorOf(content));
    EXPECT_EQ(content, dialog.GetSetUpUiWidget());

    auto* layout = new QGridLayout(content);
    auto* label = new QLabel("form", content);
    layout->addWidget(label, 0, 0);
    dialog.resize(500, 300);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    EXPECT_GE(content->geometry().top(), CBaseDialog::kTitleBarHeight);
    EXPECT_EQ(titleBar(dialog)->height(), CBaseDialog::kTitleBarHeight);
    EXPECT_TRUE(label->isVisible());
}

TEST(BaseDialog, OpensWithTheSizeTheFormGaveItsWidget)
{
    CBaseDialog dialog;
    // What setupUi() does with the form's geometry.
    // (Qt caps a window's first size at two thirds of the screen; this form fits.)
    dialog.GetSetUpUiWidget()->resize(420, 260);
    new QGridLayout(dialog.GetSetUpUiWidget());
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    EXPECT_EQ(dialog.GetSetUpUiWidget()->size(), QSize(420, 260));
}

TEST(BaseDialog, ExplicitResizeWinsOverFormSize)
{
    CBaseDialog dialog;
    dialog.GetSetUpUiWidget()->resize(1033, 752);
    new QGridLayout(dialog.GetSetUpUiWidget());
    dialog.resize(920, 700);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    EXPECT_EQ(dialog.size(), QSize(920, 700));
}

TEST(BaseDialog, DraggingTheTitleBarMovesTheWindow)
{
    // A window system may take the move over (and a window manager may place windows).
    if (QGuiApplication::platformName() != "offscreen")
        GTEST_SKIP() << "moves by hand only on the offscreen platform";
    CBaseDialog dialog;
    dialog.resize(400, 300);
    dialog.move(100, 100);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    const QPoint start = dialog.pos();
    QWidget* bar = titleBar(dialog);
    const QPoint grab(60, 20);
    sendMouse(bar, QEvent::MouseButtonPress, grab, Qt::LeftButton, Qt::LeftButton);
    sendMouse(bar, QEvent::MouseMove, grab + QPoint(30, 15), Qt::NoButton, Qt::LeftButton);
    sendMouse(bar, QEvent::MouseButtonRelease, grab + QPoint(30, 15), Qt::LeftButton, Qt::NoButton);
    EXPECT_EQ(dialog.pos(), start + QPoint(30, 15));

    // A move without a press moves nothing.
    sendMouse(bar, QEvent::MouseMove, grab + QPoint(80, 80), Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(dialog.pos(), start + QPoint(30, 15));
}

TEST(BaseDialog, DrawsADarkTitleBarAboveLightContent)
{
    CBaseDialog dialog;
    dialog.SetTitle("Device status");
    QWidget* content = dialog.GetSetUpUiWidget();
    auto* grid = new QGridLayout(content);
    grid->setContentsMargins(24, 16, 24, 24);

    auto* back = new TarvexGUIToolkit::CToolPushButton(content);
    back->setIcon(QIcon(":/TarvexGUIToolkit/Dialog/Images/Dialog/PreviousPage.png"));
    back->setIconSize(QSize(16, 16));
    back->setFixedSize(64, 32);
    back->setText("Return");
    grid->addWidget(back, 0, 0);

    TarvexGUIToolkit::CStandardItemModel options;
    for (const char* option : {"Device status", "Port status", "Port statistics", "PoE status"})
        options.appendRow(new TarvexGUIToolkit::CStandardItem(option));
    auto* tree = new TarvexGUIToolkit::CTreeView(content);
    tree->setHeaderHidden(true);
    tree->setFixedWidth(180);
    tree->setModel(&options);
    tree->setCurrentIndex(options.index(0, 0));
    grid->addWidget(tree, 1, 0);

    TarvexGUIToolkit::CStandardItemModel ports;
    ports.SetHorizontalHeader({"Port", "Rate", "Duplex", "Flow control"}, 0x81);
    for (int port = 1; port <= 8; ++port) {
        QList<QStandardItem*> row;
        row << new TarvexGUIToolkit::CStandardItem(QString("GE1/0/%1").arg(port))
            << new TarvexGUIToolkit::CStandardItem(port % 3 ? "1000M" : "100M")
            << new TarvexGUIToolkit::CStandardItem("Full") << new TarvexGUIToolkit::CStandardItem("Off");
        ports.appendRow(row);
    }
    auto* table = new TarvexGUIToolkit::CTableView(content);
    table->setModel(&ports);
    table->selectRow(2);
    grid->addWidget(table, 1, 1);

    dialog.resize(720, 420);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    const QImage image = dialog.grab().toImage();
    if (const QByteArray folder = qgetenv("VELMORA_SNAPSHOT_DIR"); !folder.isEmpty())
        image.save(QDir(QString::fromLocal8Bit(folder)).filePath("BaseDialog.png"));

    const QColor bar = image.pixelColor(8, CBaseDialog::kTitleBarHeight / 2);
    const QColor page = image.pixelColor(8, CBaseDialog::kTitleBarHeight + 8);
    EXPECT_LT(bar.lightness(), 60);
    EXPECT_GT(page.lightness(), 180);
}
