// Named row values of the toolkit's item model, its header set-up and its items.
#include <QSortFilterProxyModel>
#include <memory>
#include <gtest/gtest.h>

#include "TarvexGUIToolkit/StandardItem.h"
#include "TarvexGUIToolkit/StandardItemModel.h"

using TarvexGUIToolkit::CStandardItem;
using TarvexGUIToolkit::CStandardItemModel;

namespace {

constexpr int kIpKey = 0x101;
constexpr int kMacKey = 0x102;
enum Column { MODEL_COLUMN, NAME_COLUMN, IP_COLUMN, MAC_COLUMN, STATE_COLUMN, COLUMN_COUNT };

// A managed-AP-like table: the IP and MAC columns are named by keys.
class ApTableModel : public CStandardItemModel {
public:
    ApTableModel()
    {
        SetHorizontalHeader({"Model", "Name", "IP", "MAC", "State"}, 0x81);
        AddMapping(kIpKey, IP_COLUMN);
        AddMapping(kMacKey, MAC_COLUMN);
    }

    void addAp(const QString& model, const QString& name, const QString& ip, const QString& mac, const QString& state)
    {
        auto* ipItem = new CStandardItem(ip);
        // The IP item also carries both values in the key roles, as the AP list does.
        ipItem->setData(ip, kIpKey);
        ipItem->setData(mac, kMacKey);
        appendRow({new CStandardItem(model), new CStandardItem(name), ipItem, new CStandardItem(mac),
                   new CStandardItem(state)});
    }
};

class StandardItemModel : public ::testing::Test {
protected:
    void SetUp() override
    {
        model.addAp("AP-100", "hall", "192.168.1.10", "aa:bb:cc:00:00:01", "online");
        model.addAp("AP-200", QString::fromUtf8("大厅"), "192.168.1.11", "aa:bb:cc:00:00:02", "offline");
    }
    ApTableModel model;
};

} // namespace

TEST_F(StandardItemModel, KeyIsReadFromAnyCellOfTheRow)
{
    for (int column = 0; column < COLUMN_COUNT; ++column) {
        const QModelIndex index = model.index(1, column);
        EXPECT_EQ(model.GetData(index, kIpKey).toString(), "192.168.1.11") << column;
        EXPECT_EQ(model.GetData(index, kMacKey).toString(), "aa:bb:cc:00:00:02") << column;
        EXPECT_EQ(index.data(kIpKey).toString(), "192.168.1.11") << column;
        EXPECT_EQ(index.data(kMacKey).toString(), "aa:bb:cc:00:00:02") << column;
    }
    EXPECT_EQ(model.index(0, 0).data(kIpKey).toString(), "192.168.1.10");
}

TEST_F(StandardItemModel, KeyIsReadThroughAProxy)
{
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    proxy.sort(NAME_COLUMN, Qt::DescendingOrder);
    // "大厅" sorts after "hall", so it comes first in descending order.
    EXPECT_EQ(proxy.index(0, MODEL_COLUMN).data(kIpKey).toString(), "192.168.1.11");
    const QModelIndex source = proxy.mapToSource(proxy.index(1, STATE_COLUMN));
    EXPECT_EQ(model.GetData(source, kMacKey).toString(), "aa:bb:cc:00:00:01");
}

TEST_F(StandardItemModel, KeyReadsOtherRolesOfItsColumn)
{
    model.item(0, IP_COLUMN)->setData(QString("tooltip"), Qt::ToolTipRole);
    EXPECT_EQ(model.GetData(model.index(0, STATE_COLUMN), kIpKey, Qt::ToolTipRole).toString(), "tooltip");
}

TEST_F(StandardItemModel, UnknownKeyOrIndexGivesNothing)
{
    EXPECT_FALSE(model.GetData(model.index(0, 0), 0x1ff).isValid());
    EXPECT_FALSE(model.index(0, 0).data(0x1ff).isValid());
    EXPECT_FALSE(model.GetData(QModelIndex(), kIpKey).isValid());
    EXPECT_FALSE(model.HasMapping(0x1ff));
    EXPECT_EQ(model.GetMappingColumn(0x1ff), -1);
}

TEST_F(StandardItemModel, OtherRolesReadTheCellItself)
{
    EXPECT_EQ(model.index(1, NAME_COLUMN).data().toString(), QString::fromUtf8("大厅"));
    EXPECT_EQ(model.index(0, STATE_COLUMN).data(Qt::DisplayRole).toString(), "online");
    EXPECT_FALSE(model.index(0, STATE_COLUMN).data(0x103).isValid());
}

TEST_F(StandardItemModel, StandardRolesCannotBeKeys)
{
    EXPECT_FALSE(model.AddMapping(Qt::DisplayRole, NAME_COLUMN));
    EXPECT_FALSE(model.AddMapping(Qt::ToolTipRole, NAME_COLUMN));
    EXPECT_FALSE(model.AddMapping(0x110, -1));
    EXPECT_EQ(model.index(0, STATE_COLUMN).data().toString(), "online");
}

TEST_F(StandardItemModel, MappingsCanBeReplacedAndRemoved)
{
    EXPECT_TRUE(model.AddMapping(kIpKey, NAME_COLUMN));
    EXPECT_EQ(model.GetMappingColumn(kIpKey), NAME_COLUMN);
    EXPECT_EQ(model.index(0, 0).data(kIpKey).toString(), "hall");

    model.RemoveMapping(kIpKey);
    EXPECT_FALSE(model.HasMapping(kIpKey));
    // Unmapped, the role reads the item itself again: only the IP item carries it.
    EXPECT_FALSE(model.index(0, 0).data(kIpKey).isValid());
    EXPECT_EQ(model.index(0, IP_COLUMN).data(kIpKey).toString(), "192.168.1.10");

    EXPECT_EQ(model.GetMappingKeys(), QList<int>{kMacKey});
    model.ClearMappings();
    EXPECT_TRUE(model.GetMappingKeys().isEmpty());
}

TEST_F(StandardItemModel, KeyOnAMissingColumnGivesNothing)
{
    ASSERT_TRUE(model.AddMapping(0x120, 40));
    EXPECT_FALSE(model.index(0, 0).data(0x120).isValid());
}

TEST_F(StandardItemModel, HeaderSetUpFixesColumnsLabelsAndAlignment)
{
    EXPECT_EQ(model.columnCount(), COLUMN_COUNT);
    EXPECT_EQ(model.headerData(MAC_COLUMN, Qt::Horizontal).toString(), "MAC");
    for (int column = 0; column < COLUMN_COUNT; ++column)
        EXPECT_EQ(model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), 0x81);
}

TEST(StandardItem, IsReadOnlyAndClonesItsKind)
{
    CStandardItem item(QString::fromUtf8("端口"));
    EXPECT_FALSE(item.isEditable());
    EXPECT_EQ(item.type(), CStandardItem::kItemType);
    item.setData(7, Qt::UserRole);
    std::unique_ptr<QStandardItem> copy(item.clone());
    EXPECT_EQ(copy->type(), CStandardItem::kItemType);
    EXPECT_EQ(copy->text(), QString::fromUtf8("端口"));
    EXPECT_EQ(copy->data(Qt::UserRole).toInt(), 7);
    EXPECT_FALSE(copy->isEditable());
}

TEST(StandardItem, ItemPrototypeMakesToolkitItems)
{
    CStandardItemModel model;
    model.setItemPrototype(new CStandardItem);
    model.setRowCount(1);
    model.setColumnCount(1);
    model.setData(model.index(0, 0), "made by the model");
    ASSERT_NE(model.item(0, 0), nullptr);
    EXPECT_EQ(model.item(0, 0)->type(), CStandardItem::kItemType);
}
