// The client table: columns, headers, the running number and the placeholder of an unknown
// terminal type.
#include <QSortFilterProxyModel>
#include <gtest/gtest.h>

#include "QtPrinters.h"

#include "ClientModel.h"

using velmora::CClientModel;
using velmora::ClientInfo;

TEST(ClientModelTest, EightColumnsWithTheirHeaders)
{
    CClientModel model(nullptr);
    ASSERT_EQ(model.columnCount(), CClientModel::COLUMN_COUNT);
    ASSERT_EQ(model.columnCount(), 8);
    const char* headers[] = {"Index", "TheMACAddress", "IPAddress",     "TerminalType",
                             "RSSI",  "SendingRate",   "ReceivingRate", "TheConnectionTime"};
    for (int column = 0; column < 8; ++column) {
        EXPECT_EQ(model.headerData(column, Qt::Horizontal).toString(), headers[column]);
        EXPECT_EQ(model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), 0x81);
    }
}

TEST(ClientModelTest, RowsNumberedFromOneAndAnUnknownTypeAsDashes)
{
    CClientModel model(nullptr);
    model.setClientInfo({{"AA-BB-CC-00-00-01", "192.168.1.10", "Acme", "-40dBm", "1.000Mbps", "2.000Kbps", "00:00:59"},
                         {"AA-BB-CC-00-00-02", "192.168.1.11", "", "-70dBm", "3.000Kbps", "4.000Kbps", "01:01:01"}});
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.index(0, 0).data(), QVariant(1));
    EXPECT_EQ(model.index(1, 0).data(), QVariant(2));
    EXPECT_EQ(model.index(0, 0).data().type(), QVariant::Int);
    const QStringList first = {"AA-BB-CC-00-00-01", "192.168.1.10", "Acme", "-40dBm", "1.000Mbps", "2.000Kbps", "00:00:59"};
    for (int column = 1; column < 8; ++column)
        EXPECT_EQ(model.index(0, column).data().toString(), first[column - 1]);
    EXPECT_EQ(model.index(1, 3).data().toString(), "--");

    // The number belongs to the row: sorted the other way, row 2 keeps its 2.
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    proxy.sort(4, Qt::AscendingOrder);
    EXPECT_EQ(proxy.index(0, 4).data().toString(), "-40dBm");
    proxy.sort(0, Qt::DescendingOrder);
    EXPECT_EQ(proxy.index(0, 0).data(), QVariant(2));
    EXPECT_EQ(proxy.index(0, 1).data().toString(), "AA-BB-CC-00-00-02");

    // A new list numbers from 1 again.
    model.setClientInfo({{"AA-BB-CC-00-00-03", "", "", "", "", "", ""}});
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.index(0, 0).data(), QVariant(1));
}
