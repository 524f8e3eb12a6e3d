// The toolkit's buttons: the flat icon-and-text button with the toolkit's own icons, and
// the push button.
#include <QPixmap>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include "TarvexGUIToolkit/PushButton.h"
#include "TarvexGUIToolkit/ToolPushButton.h"

TEST(ToolPushButton, ShowsItsTextBesideItsIcon)
{
    TarvexGUIToolkit::CToolPushButton button(QIcon(":/TarvexGUIToolkit/Dialog/Images/Dialog/PreviousPage.png"), "Return");
    EXPECT_EQ(button.toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    EXPECT_EQ(button.text(), "Return");
    EXPECT_FALSE(button.icon().isNull());
    EXPECT_TRUE(button.autoRaise());
}

TEST(ToolPushButton, ToolkitIconsAreInTheResourceTree)
{
    TarvexGUIToolkit::CToolPushButton button;
    for (const char* path : {":/TarvexGUIToolkit/Dialog/Images/Dialog/PreviousPage.png",
                             ":/TarvexGUIToolkit/Dialog/Images/Dialog/Close.png"}) {
        QPixmap pixmap(path);
        ASSERT_FALSE(pixmap.isNull()) << path;
        EXPECT_EQ(pixmap.size(), QSize(16, 16)) << path;
    }
}

TEST(ToolPushButton, ClickEmitsClicked)
{
    TarvexGUIToolkit::CToolPushButton button;
    button.setFixedSize(64, 32);
    button.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&button));
    QSignalSpy clicked(&button, &QToolButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicked.count(), 1);
}

TEST(PushButton, KeepsItsTextAndIsTallEnoughToClick)
{
    TarvexGUIToolkit::CPushButton button("Clear");
    EXPECT_EQ(button.text(), "Clear");
    EXPECT_GE(button.minimumHeight(), TarvexGUIToolkit::CPushButton::kMinimumHeight);
    button.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&button));
    QSignalSpy clicked(&button, &QPushButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicked.count(), 1);
}
