// The option tree's model: one flat row per option, in key order, with the key in UserRole.
#include <gtest/gtest.h>

#include "DeviceStatusItemModel.h"
#include "TarvexGUIToolkit/StandardItem.h"

using velmora::CDeviceStatusItemModel;

namespace {
std::vector<std::pair<int, QString>> rowsOf(const CDeviceStatusItemModel& model)
{
    std::vector<std::pair<int, QString>> rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        rows.emplace_back(index.data(Qt::UserRole).toInt(), index.data(Qt::DisplayRole).toString());
    }
    return rows;
}
} // namespace

TEST(DeviceStatusItemModel, MakesOneRowPerEntryInKeyOrder)
{
    CDeviceStatusItemModel model;
    std::map<int, QString> items;
    items[12] = "ManagingAPListsAizrsShK";
    items[1] = "DeviceStatus";
    items[8] = "ConnectedToTheStateMffDqXn";
    model.setOptionItems(items);

    const std::vector<std::pair<int, QString>> expected = {
        {1, "DeviceStatus"}, {8, "ConnectedToTheStateMffDqXn"}, {12, "ManagingAPListsAizrsShK"}};
    EXPECT_EQ(rowsOf(model), expected);
    EXPECT_EQ(model.columnCount(), 1);
}

TEST(DeviceStatusItemModel, StoresTheKeyAsAnInteger)
{
    CDeviceStatusItemModel model;
    model.setOptionItems({{4, "PortStatus"}});
    const QVariant key = model.index(0, 0).data(Qt::UserRole);
    EXPECT_EQ(key.userType(), QMetaType::Int);
    EXPECT_EQ(key.toInt(), 4);
    EXPECT_EQ(Qt::UserRole, 256);
}

TEST(DeviceStatusItemModel, UsesToolkitItems)
{
    CDeviceStatusItemModel model;
    model.setOptionItems({{1, "DeviceStatus"}});
    ASSERT_NE(model.item(0), nullptr);
    EXPECT_EQ(model.item(0)->type(), TarvexGUIToolkit::CStandardItem::kItemType);
    EXPECT_FALSE(model.item(0)->isEditable());
}

TEST(DeviceStatusItemModel, ReplacesEveryEarlierRow)
{
    CDeviceStatusItemModel model;
    model.setOptionItems({{1, "DeviceStatus"}, {4, "PortStatus"}, {5, "ThePortStatistical"}});
    model.setOptionItems({{10, "DeviceStatus"}, {11, "ClientListxBJDUZFw"}});
    const std::vector<std::pair<int, QString>> expected = {{10, "DeviceStatus"}, {11, "ClientListxBJDUZFw"}};
    EXPECT_EQ(rowsOf(model), expected);
}

TEST(DeviceStatusItemModel, AnEmptyMapLeavesTheModelEmpty)
{
    CDeviceStatusItemModel model;
    model.setOptionItems({{1, "DeviceStatus"}});
    model.setOptionItems({});
    EXPECT_EQ(model.rowCount(), 0);
}

TEST(DeviceStatusItemModel, HasAMetaObjectOfItsOwn)
{
    CDeviceStatusItemModel model;
    EXPECT_STREQ(model.metaObject()->className(), "velmora::CDeviceStatusItemModel");
    EXPECT_STREQ(model.metaObject()->superClass()->className(), "TarvexGUIToolkit::CStandardItemModel");
}
