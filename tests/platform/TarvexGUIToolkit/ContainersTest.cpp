// The toolkit's scroll area and tab widget.
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <gtest/gtest.h>

#include "TarvexGUIToolkit/ScrollArea.h"
#include "TarvexGUIToolkit/TabWidget.h"

TEST(ScrollArea, ItsWidgetFillsTheArea)
{
    TarvexGUIToolkit::CScrollArea area;
    auto* contents = new QWidget;
    new QGridLayout(contents);
    area.setWidget(contents);
    area.resize(500, 400);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&area));
    EXPECT_TRUE(area.widgetResizable());
    EXPECT_EQ(area.frameShape(), QFrame::NoFrame);
    EXPECT_EQ(contents->size(), area.viewport()->size());
}

TEST(ScrollArea, ScrollsAWidgetTallerThanTheArea)
{
    TarvexGUIToolkit::CScrollArea area;
    auto* contents = new QWidget;
    contents->setMinimumHeight(2000);
    area.setWidget(contents);
    area.resize(300, 200);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&area));
    EXPECT_GT(area.verticalScrollBar()->maximum(), 0);
}

TEST(TabWidget, ClearingKeepsThePages)
{
    TarvexGUIToolkit::CTabWidget tabs;
    QPointer<QWidget> first = new QLabel("2.4 GHz", &tabs);
    QPointer<QWidget> second = new QLabel("5 GHz", &tabs);
    tabs.addTab(first, "2.4GHz");
    tabs.addTab(second, "5GHz");
    ASSERT_EQ(tabs.count(), 2);
    tabs.clear();
    EXPECT_EQ(tabs.count(), 0);
    EXPECT_FALSE(first.isNull());
    EXPECT_FALSE(second.isNull());
    tabs.addTab(second, "5GHz");
    EXPECT_EQ(tabs.currentWidget(), second.data());
}

TEST(TabWidget, TabBarTakesAStyleSheet)
{
    TarvexGUIToolkit::CTabWidget tabs;
    tabs.tabBar()->setStyleSheet("QTabBar::tab{ min-width: 90px;}");
    tabs.addTab(new QWidget, "2.4GHz");
    tabs.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&tabs));
    EXPECT_GE(tabs.tabBar()->tabRect(0).width(), 90);
}
