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

TEST(ClientModelTest, PrivateAddressKeepsItsVendorTextAndSaysWhyInItsTooltip)
{
    const QString tip = "A private (randomised) address: it belongs to no vendor.";
    // The locally administered bit set, group bit clear: second hex digit 2, 6, A or E,
    // upper or lower case, with dashes or colons.
    const QStringList privateMacs = {"02-11-22-33-44-55", "16:11:22:33:44:55", "DA-11-22-33-44-55",
                                     "fe:11:22:33:44:55", "aA-BB-CC-00-00-01"};
    std::vector<ClientInfo> rows;
    for (const QString& mac : privateMacs)
        rows.push_back({mac, "192.168.1.20", "", "-50dBm", "1.000Mbps", "1.000Mbps", "00:01:00"});
    // A universal address, and one whose only the group bit is set, have no such tooltip.
    rows.push_back({"00-1B-63-00-00-01", "192.168.1.21", "Apple, Inc.", "", "", "", ""});
    rows.push_back({"01-00-5E-00-00-01", "192.168.1.22", "", "", "", "", ""});
    CClientModel model(nullptr);
    model.setClientInfo(rows);
    ASSERT_EQ(model.rowCount(), 7);
    for (int row = 0; row < 5; ++row) {
        EXPECT_EQ(model.index(row, CClientModel::MAC).data(Qt::ToolTipRole).toString(), tip) << row;
        EXPECT_EQ(model.index(row, CClientModel::TERMINAL_TYPE).data(Qt::ToolTipRole).toString(), tip) << row;
        // The vendor column says what it said before.
        EXPECT_EQ(model.index(row, CClientModel::TERMINAL_TYPE).data().toString(), "--") << row;
    }
    for (int row = 5; row < 7; ++row) {
        EXPECT_FALSE(model.index(row, CClientModel::MAC).data(Qt::ToolTipRole).isValid()) << row;
        EXPECT_FALSE(model.index(row, CClientModel::TERMINAL_TYPE).data(Qt::ToolTipRole).isValid()) << row;
    }
    EXPECT_EQ(model.index(5, CClientModel::TERMINAL_TYPE).data().toString(), "Apple, Inc.");

    for (QChar digit : QString("26AEae"))
        EXPECT_TRUE(CClientModel::isPrivateAddress(QString("0%1:00:00:00:00:01").arg(digit))) << digit.toLatin1();
    for (QChar digit : QString("013457899BCDFbf"))
        EXPECT_FALSE(CClientModel::isPrivateAddress(QString("0%1:00:00:00:00:01").arg(digit))) << digit.toLatin1();
    EXPECT_FALSE(CClientModel::isPrivateAddress(""));
    EXPECT_FALSE(CClientModel::isPrivateAddress("zz:00:00:00:00:00"));
}
