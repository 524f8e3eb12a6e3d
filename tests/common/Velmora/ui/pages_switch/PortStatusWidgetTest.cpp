// The port status page: one row per wired port with its rate, duplex and flow control, read
// from the emulated switch each time the page is shown.
#include <QTimer>
#include <gtest/gtest.h>

#include "PortStatusModel.h"
#include "PortStatusWidget.h"
#include "SwitchPagesTestFleet.h"
#include "logical/interface/ParamInterface.h"

using velmora::CPortStatusModel;
using velmora::CPortStatusWidget;
using velmora::PortStatusData;
using velmora::test::SwitchPageTest;

namespace {

const char kBasicInfoPath[] = "/NXRPC/Transfers/Switches/basicInfo";
const char kWorkStatePath[] = "/NXRPC/Transfers/Switches/workState";

QAbstractItemModel* tableModel(CPortStatusWidget& page)
{
    auto* view = page.findChild<QTableView*>("m_pPortStatusTreeView");
    return view ? view->model() : nullptr;
}

QString cell(QAbstractItemModel* model, int row, int column)
{
    return model->index(row, column).data().toString();
}

Quillon::SwitchesWorkStateItem item(int portId, const std::string& link, const std::string& duplex,
                                    bool flowCtrl = true)
{
    Quillon::SwitchesWorkStateItem port;
    port.portId = portId;
    port.linkState = link;
    port.rate = "1000M";
    port.duplex = duplex;
    port.flowCtrl = flowCtrl;
    port.portType = "electrical";
    return port;
}

Quillon::CSwitchBaseInfo baseInfo()
{
    Quillon::CSwitchBaseInfo info;
    Quillon::SwitchBasePort port;
    port.portId = 1;
    port.portName = "GE1/0/1";
    info.portList.push_back(port);
    port.portId = 1;
    port.portName = "second entry of port 1";
    info.portList.push_back(port);
    port.portId = 2;
    port.portName = u8"Uplink-Ü";
    info.portList.push_back(port);
    return info;
}

class PortStatusWidgetTest : public SwitchPageTest {};

} // namespace

TEST(PortStatusModel, HasFourLeftAlignedHeaders)
{
    CPortStatusModel model(nullptr);
    ASSERT_EQ(model.columnCount(), CPortStatusModel::COLUMN_COUNT);
    const char* keys[] = {"PortName", "Rate", "Duplex", "FlowCtrl"};
    for (int c = 0; c < CPortStatusModel::COLUMN_COUNT; ++c) {
        EXPECT_EQ(model.headerData(c, Qt::Horizontal).toString(), QString(keys[c]));
        EXPECT_EQ(model.headerData(c, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), 0x81);
    }
}

TEST(PortStatusModel, ReplacesAllRows)
{
    CPortStatusModel model(nullptr);
    model.setPortStatus({{"a", "1", "2", "3", false}, {"b", "4", "5", "6", false}});
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.index(1, 3).data().toString(), QString("6"));
    model.setPortStatus({{"c", "7", "8", "9", false}});
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.index(0, 0).data().toString(), QString("c"));
    model.setPortStatus({});
    EXPECT_EQ(model.rowCount(), 0);
}

TEST(PortStatusRow, LinkedPortShowsRateDuplexAndFlowControl)
{
    const PortStatusData row = CPortStatusWidget::makePortStatusData(item(2, "connected", "duplex"), baseInfo());
    EXPECT_EQ(row.strPortName, QString::fromUtf8(u8"Uplink-Ü"));
    EXPECT_EQ(row.strRate, QString("1000M"));
    EXPECT_EQ(row.strDuplex, QString("FullDuplex"));
    EXPECT_EQ(row.strFlowCtrl, QString("OpenWSYVR9KO"));
    EXPECT_FALSE(row.bReserved);
}

TEST(PortStatusRow, DuplexTextsAreMatchedExactly)
{
    const Quillon::CSwitchBaseInfo info = baseInfo();
    EXPECT_EQ(CPortStatusWidget::makePortStatusData(item(1, "connected", "halfDuplex"), info).strDuplex,
              QString("HalfDuplex"));
    EXPECT_EQ(CPortStatusWidget::makePortStatusData(item(1, "connected", "auto"), info).strDuplex,
              QString("SinceTheNegotiation"));
    for (const char* odd : {"unknown", "Duplex", "AUTO", "halfduplex", "", "duplex "})
        EXPECT_EQ(CPortStatusWidget::makePortStatusData(item(1, "connected", odd), info).strDuplex, QString("--")) << odd;
}

TEST(PortStatusRow, UnknownDuplexKeepsRateAndFlowControl)
{
    const PortStatusData row =
        CPortStatusWidget::makePortStatusData(item(1, "connected", "unknown", false), baseInfo());
    EXPECT_EQ(row.strRate, QString("1000M"));
    EXPECT_EQ(row.strDuplex, QString("--"));
    EXPECT_EQ(row.strFlowCtrl, QString("Close"));
}

TEST(PortStatusRow, DisconnectedPortKeepsItsName)
{
    const PortStatusData row = CPortStatusWidget::makePortStatusData(item(1, "disconnected", "duplex"), baseInfo());
    EXPECT_EQ(row.strPortName, QString("GE1/0/1")); // the first entry of the port wins
    EXPECT_EQ(row.strRate, QString("--"));
    EXPECT_EQ(row.strDuplex, QString("--"));
    EXPECT_EQ(row.strFlowCtrl, QString("--"));
}

TEST(PortStatusRow, OnlyTheExactDisconnectedTextMeansDown)
{
    const PortStatusData row = CPortStatusWidget::makePortStatusData(item(1, "Disconnected", "duplex"), baseInfo());
    EXPECT_EQ(row.strRate, QString("1000M"));
    EXPECT_EQ(row.strDuplex, QString("FullDuplex"));
}

TEST(PortStatusRow, PortWithoutBasicInformationHasAnEmptyName)
{
    const PortStatusData row = CPortStatusWidget::makePortStatusData(item(9, "connected", "auto"), baseInfo());
    EXPECT_TRUE(row.strPortName.isEmpty());
    EXPECT_EQ(row.strDuplex, QString("SinceTheNegotiation"));
}

TEST_F(PortStatusWidgetTest, FormIsATableAloneWithoutTimer)
{
    CPortStatusWidget page(nullptr);
    EXPECT_EQ(page.objectName(), QString("UiPortStatusWidget"));
    EXPECT_EQ(page.size(), QSize(624, 425));
    EXPECT_EQ(page.windowTitle(), QString("CActiveDeviceDialog"));
    auto* view = page.findChild<TarvexGUIToolkit::CTableView*>("m_pPortStatusTreeView");
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_EQ(view->columnWidth(0), 150);
    EXPECT_NE(qobject_cast<CPortStatusModel*>(view->model()), nullptr);
    EXPECT_TRUE(page.findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly).isEmpty());
}

TEST_F(PortStatusWidgetTest, RowsFollowTheWorkStateOfTheDevice)
{
    for (const char* name : {"edge", "batch", "core"}) {
        SCOPED_TRACE(name);
        CPortStatusWidget page(nullptr);
        fleet().open(page, name);
        showStatus(page);

        Quillon::CSwitchBaseInfo info(std::string{});
        ASSERT_TRUE(velmora::ParamInterface::getSwitchBasicInfoConfig(info, fleet().id(name)));
        Quillon::SwitchesWorkState state(std::string{});
        ASSERT_TRUE(velmora::WorkStatusInferface::getInstance()->queryWorkState(state));
        ASSERT_FALSE(state.portList.empty());

        QAbstractItemModel* model = tableModel(page);
        ASSERT_NE(model, nullptr);
        ASSERT_EQ(model->rowCount(), static_cast<int>(state.portList.size()));
        int down = 0, up = 0;
        for (size_t i = 0; i < state.portList.size(); ++i) {
            const Quillon::SwitchesWorkStateItem& port = state.portList[i];
            const int r = static_cast<int>(i);
            std::string expectedName;
            for (const Quillon::SwitchBasePort& p : info.portList) {
                if (p.portId == port.portId) {
                    expectedName = p.portName;
                    break;
                }
            }
            EXPECT_EQ(cell(model, r, 0), QString::fromStdString(expectedName));
            EXPECT_FALSE(cell(model, r, 0).isEmpty());
            if (port.linkState == "disconnected") {
                ++down;
                EXPECT_EQ(cell(model, r, 1), QString("--"));
                EXPECT_EQ(cell(model, r, 2), QString("--"));
                EXPECT_EQ(cell(model, r, 3), QString("--"));
            } else {
                ++up;
                EXPECT_EQ(cell(model, r, 1), QString::fromStdString(port.rate));
                EXPECT_NE(cell(model, r, 2), QString("--"));
                EXPECT_EQ(cell(model, r, 3), port.flowCtrl ? QString("OpenWSYVR9KO") : QString("Close"));
            }
        }
        EXPECT_GT(up, 0);
        if (std::string(name) == "core") { // the chassis has free ports
            EXPECT_GT(down, 0);
        }
    }
}

TEST_F(PortStatusWidgetTest, WirelessPortHasNoRow)
{
    CPortStatusWidget page(nullptr);
    fleet().open(page, "wireless-port");
    showStatus(page);
    Quillon::SwitchesWorkState state(std::string{});
    ASSERT_TRUE(velmora::WorkStatusInferface::getInstance()->queryWorkState(state));
    int wireless = 0;
    for (const Quillon::SwitchesWorkStateItem& port : state.portList)
        wireless += port.portType == "wireless" ? 1 : 0;
    ASSERT_EQ(wireless, 1);
    QAbstractItemModel* model = tableModel(page);
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(model->rowCount(), static_cast<int>(state.portList.size()) - 1);
    for (int r = 0; r < model->rowCount(); ++r)
        EXPECT_NE(cell(model, r, 0), QString("GE1/0/11"));
}

TEST_F(PortStatusWidgetTest, EachShowReadsAgainAndAFailureKeepsTheTable)
{
    CPortStatusWidget page(nullptr);
    fleet().open(page, "edge");
    showStatus(page);
    QAbstractItemModel* model = tableModel(page);
    ASSERT_NE(model, nullptr);
    const int rows = model->rowCount();
    ASSERT_GT(rows, 0);
    const QString firstName = cell(model, 0, 0);

    emulator().clearRequestLog();
    ASSERT_TRUE(emulator().setFault(fleet().id("edge"), kBasicInfoPath, velmora::test::EmulatorProcess::Fault::httpStatus(500)));
    showStatus(page);
    EXPECT_EQ(model->rowCount(), rows);
    EXPECT_EQ(cell(model, 0, 0), firstName);
    // The work state is not asked for once the basic information failed.
    for (const std::string& line : fleet().requestLines("edge"))
        EXPECT_EQ(line.find(kWorkStatePath), std::string::npos) << line;

    emulator().clearFaults();
    ASSERT_TRUE(emulator().setFault(fleet().id("edge"), kWorkStatePath, velmora::test::EmulatorProcess::Fault::httpStatus(503)));
    showStatus(page);
    EXPECT_EQ(model->rowCount(), rows);

    emulator().clearFaults();
    emulator().clearRequestLog();
    showStatus(page);
    EXPECT_EQ(model->rowCount(), rows);
    EXPECT_FALSE(fleet().requestLines("edge").empty());
}
