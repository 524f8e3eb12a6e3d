// The port table of the device status page: headers, port order and the far device's type.
#include <gtest/gtest.h>
#include <vector>

#include "DeviceTypeString.h"
#include "PortDetailInfoModel.h"

using velmora::CPortDetailInfoModel;
using velmora::PortDetailInfo;

namespace {

PortDetailInfo row(int linkPort, const std::string& name, int category = 120, int classType = 0)
{
    PortDetailInfo info;
    info.strPortKey = std::string(1, static_cast<char>(linkPort & 0xFF));
    info.strPortName = name;
    info.nDeviceCategory = category;
    info.nDeviceClassType = classType;
    info.strIp = "10.0.0." + std::to_string(linkPort);
    info.strAlias = "far " + name;
    return info;
}

QString cell(const CPortDetailInfoModel& model, int r, int c)
{
    return model.data(model.index(r, c)).toString();
}

} // namespace

TEST(PortDetailInfoModel, HasFourLeftAlignedHeaders)
{
    CPortDetailInfoModel model(nullptr);
    ASSERT_EQ(model.columnCount(), CPortDetailInfoModel::COLUMN_COUNT);
    ASSERT_EQ(model.columnCount(), 4);
    const char* keys[] = {"PortName", "OppositeDeviceType", "OppositeIPAddress", "OppositeDeviceAlias"};
    for (int c = 0; c < 4; ++c) {
        EXPECT_EQ(model.headerData(c, Qt::Horizontal).toString(), QString(keys[c]));
        EXPECT_EQ(model.headerData(c, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), 129);
    }
    EXPECT_EQ(model.rowCount(), 0);
}

TEST(PortDetailInfoModel, RowsStandInPortOrderAndTheVectorIsSorted)
{
    CPortDetailInfoModel model(nullptr);
    std::vector<PortDetailInfo> rows = {row(3, "Port3"), row(200, "Port200"), row(1, "Port1"), row(2, "Port2")};
    model.setPortDetailData(rows);
    ASSERT_EQ(model.rowCount(), 4);
    EXPECT_EQ(cell(model, 0, 0), QString("Port1"));
    EXPECT_EQ(cell(model, 1, 0), QString("Port2"));
    EXPECT_EQ(cell(model, 2, 0), QString("Port3"));
    // Keys compare as unsigned bytes: 200 stands after the small numbers.
    EXPECT_EQ(cell(model, 3, 0), QString("Port200"));
    EXPECT_EQ(rows[0].strPortName, "Port1");
    EXPECT_EQ(rows[3].strPortName, "Port200");
    EXPECT_EQ(cell(model, 0, 2), QString("10.0.0.1"));
    EXPECT_EQ(cell(model, 0, 3), QString("far Port1"));
}

TEST(PortDetailInfoModel, PortsWithTheSameLowByteShareAKey)
{
    CPortDetailInfoModel model(nullptr);
    std::vector<PortDetailInfo> rows = {row(2, "Port2"), row(257, "Port257"), row(1, "Port1")};
    EXPECT_EQ(rows[1].strPortKey, std::string(1, '\x01'));
    model.setPortDetailData(rows);
    ASSERT_EQ(model.rowCount(), 3);
    // 257 and 1 share the first two places in an order that is left open.
    const QString first = cell(model, 0, 0), second = cell(model, 1, 0);
    EXPECT_TRUE((first == "Port1" && second == "Port257") || (first == "Port257" && second == "Port1"));
    EXPECT_EQ(cell(model, 2, 0), QString("Port2"));
}

TEST(PortDetailInfoModel, EncodingDevicesReadAsRecorderOrCamera)
{
    for (int classType : {1, 2, 3, 4, 5, 6, 51, 101, 201})
        EXPECT_EQ(CPortDetailInfoModel::oppositeDeviceType(0, classType), QString("NVR")) << classType;
    for (int classType : {0, 7, 50, 52, 100, 102, 200, 202, -1})
        EXPECT_EQ(CPortDetailInfoModel::oppositeDeviceType(0, classType), QString("IPC")) << classType;
}

TEST(PortDetailInfoModel, OtherCategoriesReadAsTheirTypeName)
{
    for (int category : {120, 121, 122, 124, 125, 126, 130, 1, -1, 200}) {
        EXPECT_EQ(CPortDetailInfoModel::oppositeDeviceType(category, 51),
                  velmora::deviceTypeToString(static_cast<tarvex7300::Device::DeviceCategory>(category)))
            << category;
    }
    EXPECT_EQ(CPortDetailInfoModel::oppositeDeviceType(120, 1), QString("Switchgear"));
}

TEST(PortDetailInfoModel, TypeColumnIsFilledFromTheRecord)
{
    CPortDetailInfoModel model(nullptr);
    std::vector<PortDetailInfo> rows = {row(1, "Port1", 0, 51), row(2, "Port2", 0, 7), row(3, "Port3", 120, 0)};
    model.setPortDetailData(rows);
    ASSERT_EQ(model.rowCount(), 3);
    EXPECT_EQ(cell(model, 0, 1), QString("NVR"));
    EXPECT_EQ(cell(model, 1, 1), QString("IPC"));
    EXPECT_EQ(cell(model, 2, 1), QString("Switchgear"));
}

TEST(PortDetailInfoModel, AnEmptyListEmptiesTheTable)
{
    CPortDetailInfoModel model(nullptr);
    std::vector<PortDetailInfo> rows = {row(1, "Port1")};
    model.setPortDetailData(rows);
    std::vector<PortDetailInfo> none;
    model.setPortDetailData(none);
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(model.columnCount(), 4);
}
