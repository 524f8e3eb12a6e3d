// Per-column filters and sorting of the toolkit's proxy.
#include <QStringList>
#include <gtest/gtest.h>

#include "TarvexGUIToolkit/MutilColumnFilterProxyModel.h"
#include "TarvexGUIToolkit/StandardItem.h"
#include "TarvexGUIToolkit/StandardItemModel.h"

using TarvexGUIToolkit::CMutilColumnFilterProxyModel;
using TarvexGUIToolkit::CStandardItem;

namespace {

enum Column { INDEX_COLUMN, MAC_COLUMN, TYPE_COLUMN, RATE_COLUMN, COLUMN_COUNT };

struct Client {
    int number;
    const char* mac;
    const char* type;
    const char* rate;
};

// A client-list-like table: a running number stored as an integer, then texts.
const Client kClients[] = {
    {1, "00:1b:63:00:00:01", "Apple, Inc.", "100Mbps"},
    {2, "3c:5a:b4:00:00:02", "Google, Inc.", "2Mbps"},
    {10, "00:1b:63:00:00:03", "Apple, Inc.", "10Mbps"},
    {3, "00:00:0c:00:00:04", "Cisco Systems, Inc", "2Mbps"},
    {20, "f4:bd:9e:00:00:05", "Cisco Systems, Inc", "100Mbps"},
};

class MutilColumnFilterProxyModel : public ::testing::Test {
protected:
    void SetUp() override
    {
        model.SetHorizontalHeader({"Index", "MAC", "Type", "Rate"});
        fill(std::begin(kClients), std::end(kClients));
        proxy.setDynamicSortFilter(false);
        proxy.setSourceModel(&model);
        proxy.setSortRole(Qt::DisplayRole);
    }

    void fill(const Client* begin, const Client* end)
    {
        model.removeRows(0, model.rowCount());
        for (const Client* client = begin; client != end; ++client) {
            auto* number = new CStandardItem;
            number->setData(client->number, Qt::DisplayRole);
            model.appendRow({number, new CStandardItem(client->mac), new CStandardItem(client->type),
                             new CStandardItem(client->rate)});
        }
    }

    // The proxy's rows, top to bottom, as the texts of one column.
    QStringList column(int which) const
    {
        QStringList texts;
        for (int row = 0; row < proxy.rowCount(); ++row)
            texts << proxy.index(row, which).data().toString();
        return texts;
    }

    TarvexGUIToolkit::CStandardItemModel model;
    CMutilColumnFilterProxyModel proxy;
};

} // namespace

TEST_F(MutilColumnFilterProxyModel, NoFilterShowsEveryRow)
{
    EXPECT_EQ(proxy.rowCount(), 5);
    EXPECT_TRUE(proxy.GetFilteredColumns().isEmpty());
}

TEST_F(MutilColumnFilterProxyModel, OneColumnFilterKeepsRowsContainingTheText)
{
    proxy.SetColumnFilter(TYPE_COLUMN, "cisco");
    EXPECT_EQ(column(INDEX_COLUMN), QStringList({"3", "20"}));
    EXPECT_TRUE(proxy.HasColumnFilter(TYPE_COLUMN));
}

TEST_F(MutilColumnFilterProxyModel, CaseSensitiveFilterMatchesCaseExactly)
{
    proxy.SetColumnFilter(TYPE_COLUMN, "cisco", Qt::CaseSensitive);
    EXPECT_EQ(proxy.rowCount(), 0);
    proxy.SetColumnFilter(TYPE_COLUMN, "Cisco", Qt::CaseSensitive);
    EXPECT_EQ(proxy.rowCount(), 2);
}

TEST_F(MutilColumnFilterProxyModel, RowMustMatchEveryColumnFilter)
{
    proxy.SetColumnFilter(MAC_COLUMN, "00:");
    proxy.SetColumnFilter(RATE_COLUMN, "100Mbps");
    EXPECT_EQ(column(INDEX_COLUMN), QStringList({"1", "20"}));

    proxy.SetColumnFilter(TYPE_COLUMN, "Apple");
    EXPECT_EQ(column(INDEX_COLUMN), QStringList({"1"}));
    EXPECT_EQ(proxy.GetFilteredColumns(), QList<int>({MAC_COLUMN, TYPE_COLUMN, RATE_COLUMN}));
}

TEST_F(MutilColumnFilterProxyModel, FiltersMatchTheTextOfNumbers)
{
    proxy.SetColumnFilterRegularExpression(INDEX_COLUMN, QRegularExpression("^[12]$"));
    EXPECT_EQ(column(MAC_COLUMN), QStringList({"00:1b:63:00:00:01", "3c:5a:b4:00:00:02"}));
}

TEST_F(MutilColumnFilterProxyModel, TextFilterIsLiteralNotAPattern)
{
    model.appendRow({new CStandardItem("6"), new CStandardItem("mac"), new CStandardItem("A.B (test)"),
                     new CStandardItem("1Mbps")});
    proxy.SetColumnFilter(TYPE_COLUMN, "A.B (");
    EXPECT_EQ(column(INDEX_COLUMN), QStringList({"6"}));
}

TEST_F(MutilColumnFilterProxyModel, RemovingFiltersBringsRowsBack)
{
    proxy.SetColumnFilter(TYPE_COLUMN, "Apple");
    proxy.SetColumnFilter(RATE_COLUMN, "10Mbps");
    EXPECT_EQ(proxy.rowCount(), 1);
    proxy.RemoveColumnFilter(RATE_COLUMN);
    EXPECT_EQ(proxy.rowCount(), 2);
    proxy.SetColumnFilter(TYPE_COLUMN, QString());
    EXPECT_EQ(proxy.rowCount(), 5);
    EXPECT_FALSE(proxy.HasColumnFilter(TYPE_COLUMN));

    proxy.SetColumnFilter(TYPE_COLUMN, "Apple");
    proxy.SetColumnFilter(MAC_COLUMN, "03");
    proxy.ClearColumnFilters();
    EXPECT_EQ(proxy.rowCount(), 5);
}

TEST_F(MutilColumnFilterProxyModel, InvalidExpressionRemovesTheFilter)
{
    proxy.SetColumnFilter(TYPE_COLUMN, "Apple");
    proxy.SetColumnFilterRegularExpression(TYPE_COLUMN, QRegularExpression("(unclosed"));
    EXPECT_FALSE(proxy.HasColumnFilter(TYPE_COLUMN));
    EXPECT_EQ(proxy.rowCount(), 5);
}

TEST_F(MutilColumnFilterProxyModel, FilterOnAMissingColumnSeesAnEmptyText)
{
    proxy.SetColumnFilter(COLUMN_COUNT + 3, "x");
    EXPECT_EQ(proxy.rowCount(), 0);
    proxy.SetColumnFilterRegularExpression(COLUMN_COUNT + 3, QRegularExpression("^$"));
    EXPECT_EQ(proxy.rowCount(), 5);
}

TEST_F(MutilColumnFilterProxyModel, FiltersReadTheFilterRole)
{
    model.item(0, TYPE_COLUMN)->setData("laptop", Qt::UserRole);
    proxy.setFilterRole(Qt::UserRole);
    proxy.SetColumnFilter(TYPE_COLUMN, "laptop");
    EXPECT_EQ(column(INDEX_COLUMN), QStringList({"1"}));
}

TEST_F(MutilColumnFilterProxyModel, OwnFilterAppliesOnTop)
{
    proxy.SetColumnFilter(TYPE_COLUMN, "Cisco");
    proxy.setFilterKeyColumn(RATE_COLUMN);
    proxy.setFilterFixedString("100");
    EXPECT_EQ(column(INDEX_COLUMN), QStringList({"20"}));
}

TEST_F(MutilColumnFilterProxyModel, NumbersSortAsNumbers)
{
    proxy.sort(INDEX_COLUMN, Qt::AscendingOrder);
    EXPECT_EQ(column(INDEX_COLUMN), QStringList({"1", "2", "3", "10", "20"}));
    proxy.sort(INDEX_COLUMN, Qt::DescendingOrder);
    EXPECT_EQ(column(INDEX_COLUMN), QStringList({"20", "10", "3", "2", "1"}));
}

TEST_F(MutilColumnFilterProxyModel, TextsSortAsTexts)
{
    proxy.sort(RATE_COLUMN, Qt::AscendingOrder);
    EXPECT_EQ(column(RATE_COLUMN), QStringList({"100Mbps", "100Mbps", "10Mbps", "2Mbps", "2Mbps"}));
    proxy.sort(TYPE_COLUMN, Qt::DescendingOrder);
    EXPECT_EQ(column(TYPE_COLUMN).first(), "Google, Inc.");
    EXPECT_EQ(column(TYPE_COLUMN).last(), "Apple, Inc.");
}

TEST_F(MutilColumnFilterProxyModel, SortingAndFilteringTogether)
{
    proxy.SetColumnFilterRegularExpression(MAC_COLUMN, QRegularExpression("^(00|f4):"));
    proxy.sort(INDEX_COLUMN, Qt::DescendingOrder);
    EXPECT_EQ(column(INDEX_COLUMN), QStringList({"20", "10", "3", "1"}));
    const QModelIndex source = proxy.mapToSource(proxy.index(0, MAC_COLUMN));
    EXPECT_EQ(source.row(), 4);
}

TEST_F(MutilColumnFilterProxyModel, ResortAfterRefreshKeepsTheUsersOrder)
{
    proxy.sort(INDEX_COLUMN, Qt::DescendingOrder);
    // A refresh replaces every row; with dynamic sorting off the table re-sorts on request.
    const Client refreshed[] = {{1, "a", "x", "1"}, {5, "b", "y", "2"}, {3, "c", "z", "3"}};
    fill(std::begin(refreshed), std::end(refreshed));
    proxy.sort(proxy.sortColumn(), proxy.sortOrder());
    EXPECT_EQ(proxy.sortColumn(), INDEX_COLUMN);
    EXPECT_EQ(column(INDEX_COLUMN), QStringList({"5", "3", "1"}));
}

TEST_F(MutilColumnFilterProxyModel, EmptyTextsFirstCellsWithoutDataLast)
{
    model.item(1, TYPE_COLUMN)->setText(QString());
    model.item(3, TYPE_COLUMN)->setData(QVariant(), Qt::DisplayRole);
    proxy.sort(TYPE_COLUMN, Qt::AscendingOrder);
    EXPECT_EQ(column(INDEX_COLUMN), QStringList({"2", "1", "10", "20", "3"}));
}
