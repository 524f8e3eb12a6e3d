// The SSID table of a stand-alone AP's band: columns, headers and the order of the cells.
#include <gtest/gtest.h>

#include "QtPrinters.h"

#include "SSIDStatusModel.h"
#include "TarvexGUIToolkit/StandardItem.h"

using velmora::CSSIDStatusModel;
using velmora::SSIDRowData;

TEST(SSIDStatusModelTest, HeadersAreLeftAndVerticallyCentred)
{
    CSSIDStatusModel model(nullptr);
    ASSERT_EQ(model.columnCount(), CSSIDStatusModel::COLUMN_COUNT);
    ASSERT_EQ(model.columnCount(), 4);
    const char* headers[] = {"SSID", "MAC", "SecurityMode", "EnableStatus"};
    for (int column = 0; column < 4; ++column) {
        EXPECT_EQ(model.headerData(column, Qt::Horizontal).toString(), headers[column]);
        EXPECT_EQ(model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), 0x81);
    }
}

TEST(SSIDStatusModelTest, TheSecurityModeStandsBeforeTheEnableState)
{
    CSSIDStatusModel model(nullptr);
    model.setSSIDInfo({{"Office", "aa:bb:cc:00:00:01", "IsEnabled", "WPA2-personal"},
                       {"Guest", "aa:bb:cc:00:00:02", "Disabled", "None"}});
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.index(0, 0).data().toString(), "Office");
    EXPECT_EQ(model.index(0, 1).data().toString(), "aa:bb:cc:00:00:01");
    EXPECT_EQ(model.index(0, 2).data().toString(), "WPA2-personal");
    EXPECT_EQ(model.index(0, 3).data().toString(), "IsEnabled");
    EXPECT_EQ(model.index(1, 3).data().toString(), "Disabled");
    EXPECT_EQ(model.item(1, 0)->type(), TarvexGUIToolkit::CStandardItem::kItemType);

    model.setSSIDInfo({});
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(model.columnCount(), 4);
}
