// Items of the toolkit's combo box carry a text, a data value and a free second value.
#include <QSignalSpy>
#include <gtest/gtest.h>

#include "TarvexGUIToolkit/ComboBox.h"

using TarvexGUIToolkit::CComboBox;

TEST(ComboBox, AddItemKeepsTextDataAndUserData)
{
    CComboBox box;
    const QString ssid = QString::fromUtf8("办公室-5G");
    box.AddItem(ssid, ssid, QVariant());
    box.AddItem("Guest", 42, QString("guest-vlan"));

    ASSERT_EQ(box.count(), 2);
    EXPECT_EQ(box.itemText(0), ssid);
    EXPECT_EQ(box.itemData(0), QVariant(ssid));
    EXPECT_FALSE(box.GetItemUserData(0).isValid());
    EXPECT_EQ(box.itemData(0, Qt::ToolTipRole).toString(), ssid);

    EXPECT_EQ(box.itemText(1), "Guest");
    EXPECT_EQ(box.itemData(1).toInt(), 42);
    EXPECT_EQ(box.itemData(1, CComboBox::ItemDataRole).toInt(), 42);
    EXPECT_EQ(box.GetItemUserData(1).toString(), "guest-vlan");

    EXPECT_FALSE(box.GetItemUserData(2).isValid());
    EXPECT_FALSE(box.GetItemUserData(-1).isValid());
}

TEST(ComboBox, FirstItemBecomesCurrentAndFiresOnce)
{
    CComboBox box;
    // The pages listen to the text form of the signal, by name.
    QSignalSpy changed(&box, SIGNAL(currentIndexChanged(QString)));
    QVariant dataSeenBySlot;
    QObject::connect(&box, QOverload<int>::of(&QComboBox::currentIndexChanged),
                     [&box, &dataSeenBySlot](int) { dataSeenBySlot = box.currentData(); });

    box.AddItem("alpha", "alpha-data", QVariant());
    box.AddItem("beta", "beta-data", QVariant());

    EXPECT_EQ(box.currentIndex(), 0);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed.at(0).at(0).toString(), "alpha");
    EXPECT_EQ(dataSeenBySlot.toString(), "alpha-data");
}

TEST(ComboBox, ItemsAreFoundByTheirShownText)
{
    CComboBox box;
    for (const char* ssid : {"Office", "office", "Lab"})
        box.AddItem(ssid, ssid, QVariant());
    EXPECT_EQ(box.findData("office", Qt::DisplayRole, Qt::MatchExactly | Qt::MatchCaseSensitive), 1);
    EXPECT_EQ(box.findData("Lab", Qt::DisplayRole, Qt::MatchExactly | Qt::MatchCaseSensitive), 2);
    EXPECT_EQ(box.findData("LAB", Qt::DisplayRole, Qt::MatchExactly | Qt::MatchCaseSensitive), -1);
}

TEST(ComboBox, ClearedBoxStartsOverAtTheNextItem)
{
    CComboBox box;
    box.AddItem("one", "one", QVariant());
    box.clear();
    EXPECT_EQ(box.currentIndex(), -1);
    box.AddItem("two", "two", QVariant());
    EXPECT_EQ(box.currentText(), "two");
    EXPECT_EQ(box.currentData().toString(), "two");
}

TEST(ComboBox, GrowsWithItsLongestItem)
{
    CComboBox box;
    const int emptyWidth = box.sizeHint().width();
    EXPECT_GE(emptyWidth, box.fontMetrics().horizontalAdvance(QString(CComboBox::kMinimumContentsLength, 'x')));
    box.AddItem("a", "a", QVariant());
    box.show();
    box.AddItem("a-very-long-ssid-name-of-the-guest-network", "x", QVariant());
    EXPECT_GT(box.sizeHint().width(), emptyWidth);
}
