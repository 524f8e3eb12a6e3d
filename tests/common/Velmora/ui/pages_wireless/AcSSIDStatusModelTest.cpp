// The SSID table of a controller's AP group: columns, headers and the cells of a row.
#include <gtest/gtest.h>

#include "QtPrinters.h"
#include <set>

#include "AcSSIDStatusModel.h"

using velmora::AcSSIDStatusInfo;
using velmora::CAcSSIDStatusModel;

TEST(AcSSIDStatusModelTest, HeadersNameTheThreeBands)
{
    CAcSSIDStatusModel model(nullptr);
    ASSERT_EQ(model.columnCount(), CAcSSIDStatusModel::COLUMN_COUNT);
    ASSERT_EQ(model.columnCount(), 5);
    const char* headers[] = {"SSID", "GHZFrequencyBandJxjGQbMf", "GHZFrequencyBandtaVmJsgCA",
                             "GHZFrequencyBandxmrbPirNUV", "SecurityMode"};
    for (int column = 0; column < 5; ++column) {
        EXPECT_EQ(model.headerData(column, Qt::Horizontal).toString(), headers[column]);
        EXPECT_EQ(model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), 0x81);
    }
}

TEST(AcSSIDStatusModelTest, OneRowPerEntryWithoutTheSpareText)
{
    CAcSSIDStatusModel model(nullptr);
    std::unordered_map<int, AcSSIDStatusInfo> rows;
    rows[1] = {1, "Corp", "OpenWSYVR9KO", "NotAllow", "", "spare", "WPA2-enterprise"};
    rows[3] = {3, "Staff-5G", "", "OpenWSYVR9KO", "OpenWSYVR9KO", "", ""};
    model.setSSIDInfo(rows);
    ASSERT_EQ(model.rowCount(), 2);
    std::set<QString> ssids;
    for (int row = 0; row < 2; ++row) {
        ssids.insert(model.index(row, 0).data().toString());
        for (int column = 0; column < 5; ++column)
            EXPECT_NE(model.index(row, column).data().toString(), "spare");
        if (model.index(row, 0).data().toString() == "Corp") {
            EXPECT_EQ(model.index(row, 1).data().toString(), "OpenWSYVR9KO");
            EXPECT_EQ(model.index(row, 2).data().toString(), "NotAllow");
            EXPECT_EQ(model.index(row, 3).data().toString(), "");
            EXPECT_EQ(model.index(row, 4).data().toString(), "WPA2-enterprise");
        }
    }
    EXPECT_EQ(ssids, (std::set<QString>{"Corp", "Staff-5G"}));
    model.setSSIDInfo({});
    EXPECT_EQ(model.rowCount(), 0);
}
