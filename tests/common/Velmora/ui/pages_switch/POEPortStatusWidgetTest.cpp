// The PoE page: the ports whose supply can be switched, their switch and their output power.
#include <QTimer>
#include <gtest/gtest.h>

#include "POEPortStatusModel.h"
#include "POEPortStatusWidget.h"
#include "SwitchPagesTestFleet.h"
#include "SwitchPorts.h"
#include "logical/interface/ParamInterface.h"

using velmora::CPOEPortStatusModel;
using velmora::CPOEPortStatusWidget;
using velmora::PoePortStatusData;
using velmora::test::EmulatorProcess;
using velmora::test::SwitchPageTest;

namespace {

QAbstractItemModel* tableModel(CPOEPortStatusWidget& page)
{
    auto* view = page.findChild<QTableView*>("m_pPOEPortStatusTreeView");
    return view ? view->model() : nullptr;
}

QString cell(QAbstractItemModel* model, int row, int column)
{
    return model->index(row, column).data().toString();
}

// Hand-made device answers: ports 1 to 4 can switch PoE, port 5 can't.
struct Answers {
    Quillon::PortPoeInfoList cfg;
    Quillon::PortPoeInfoListCap cap;
    Quillon::CSwitchBaseInfo info;
    Quillon::SwitchesWorkState state;

    void config(int portId, bool enable)
    {
        Quillon::PortPoeInfo item;
        item.portId = portId;
        item.poeEnable = enable;
        cfg.portList.push_back(item);
    }
    void capability(int portId, std::vector<bool> options)
    {
        Quillon::PortPoeInfoCap item;
        item.portId = portId;
        item.poeEnableOptions = options;
        cap.portList.push_back(item);
    }
    void port(int portId, float power)
    {
        Quillon::SwitchesWorkStateItem item;
        item.portId = portId;
        item.linkState = "connected";
        item.portType = "electrical";
        item.poePower = power;
        state.portList.push_back(item);
        Quillon::SwitchBasePort base;
        base.portId = portId;
        base.portName = "GE1/0/" + std::to_string(portId);
        info.portList.push_back(base);
    }
    std::vector<PoePortStatusData> rows() const
    {
        return CPOEPortStatusWidget::makePoePortStatusData(cfg, cap, info, state);
    }
};

class POEPortStatusWidgetTest : public SwitchPageTest {};

} // namespace

TEST(POEPortStatusModel, HasThreeLeftAlignedHeaders)
{
    CPOEPortStatusModel model(nullptr);
    ASSERT_EQ(model.columnCount(), CPOEPortStatusModel::COLUMN_COUNT);
    ASSERT_EQ(model.columnCount(), 3);
    const char* keys[] = {"PortName", "POESwitch", "TheOutputPower(W)"};
    for (int c = 0; c < 3; ++c) {
        EXPECT_EQ(model.headerData(c, Qt::Horizontal).toString(), QString(keys[c]));
        EXPECT_EQ(model.headerData(c, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), 0x81);
    }
}

TEST(POEPortStatusModel, SwitchColumnTellsOnOrOff)
{
    CPOEPortStatusModel model(nullptr);
    model.setPoePortStatus({{"GE1/0/1", true, "12.3"}, {"GE1/0/2", false, "--"}});
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.index(0, 1).data().toString(), QString("OpenWSYVR9KO"));
    EXPECT_EQ(model.index(1, 1).data().toString(), QString("ShutDownN1AOOJOC"));
    EXPECT_EQ(model.index(0, 2).data().toString(), QString("12.3"));
    EXPECT_EQ(model.index(1, 0).data().toString(), QString("GE1/0/2"));
    // Plain items, not the toolkit's.
    EXPECT_EQ(model.item(0, 0)->type(), int(QStandardItem::Type));
    model.setPoePortStatus({});
    EXPECT_EQ(model.rowCount(), 0);
}

TEST(POEPortRows, OnlyPortsWithTwoAllowedValuesTakePart)
{
    Answers a;
    for (int p = 1; p <= 7; ++p)
        a.port(p, 5.0f);
    for (int p = 1; p <= 7; ++p)
        a.config(p, true);
    a.capability(1, {true, false});
    a.capability(2, {false});
    a.capability(3, {true, false, true});
    a.capability(4, {});
    a.capability(5, {false, true});
    a.capability(6, {true, true});
    // Port 7 has no capability at all.
    const std::vector<PoePortStatusData> rows = a.rows();
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0].strPortName, QString("GE1/0/1"));
    EXPECT_EQ(rows[1].strPortName, QString("GE1/0/5"));
    EXPECT_EQ(rows[2].strPortName, QString("GE1/0/6"));
}

TEST(POEPortRows, PowerShowsOneDecimalOnlyWhenSwitchedOn)
{
    Answers a;
    a.port(1, 12.34f);
    a.port(2, 0.0f);
    a.port(3, 7.5f);
    a.config(1, true);
    a.config(2, true);
    a.config(3, false);
    for (int p = 1; p <= 3; ++p)
        a.capability(p, {true, false});
    const std::vector<PoePortStatusData> rows = a.rows();
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_TRUE(rows[0].bEnable);
    EXPECT_EQ(rows[0].strOutputPower, QString("12.3"));
    EXPECT_EQ(rows[1].strOutputPower, QString("0.0"));
    EXPECT_FALSE(rows[2].bEnable);
    EXPECT_EQ(rows[2].strOutputPower, QString("--")); // though the work state carries 7.5
}

TEST(POEPortRows, RowsFollowTheWorkStateOrder)
{
    Answers a;
    a.port(4, 1.0f);
    a.port(2, 2.0f);
    a.port(3, 3.0f);
    for (int p : {2, 3, 4}) {
        a.config(p, true);
        a.capability(p, {true, false});
    }
    const std::vector<PoePortStatusData> rows = a.rows();
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0].strPortName, QString("GE1/0/4"));
    EXPECT_EQ(rows[1].strPortName, QString("GE1/0/2"));
    EXPECT_EQ(rows[2].strPortName, QString("GE1/0/3"));
}

TEST(POEPortRows, ConfiguredPortMissingFromTheWorkStateHasNoRow)
{
    Answers a;
    a.port(1, 1.0f);
    a.config(1, true);
    a.config(9, true);
    a.capability(1, {true, false});
    a.capability(9, {true, false});
    const std::vector<PoePortStatusData> rows = a.rows();
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].strPortName, QString("GE1/0/1"));
}

TEST(POEPortRows, LastOfTwoConfigurationElementsWins)
{
    Answers a;
    a.port(1, 3.0f);
    a.port(2, 3.0f);
    a.config(1, true);
    a.config(1, false);
    a.config(2, false);
    a.config(2, true);
    a.capability(1, {true, false});
    a.capability(2, {true, false});
    const std::vector<PoePortStatusData> rows = a.rows();
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_FALSE(rows[0].bEnable);
    EXPECT_TRUE(rows[1].bEnable);
}

TEST(POEPortRows, PortWithoutConfigurationOrNameFallsOutOrStaysUnnamed)
{
    Answers a;
    a.port(1, 3.0f);
    a.capability(1, {true, false}); // capable, but no configuration element: no row
    Quillon::SwitchesWorkStateItem unnamed;
    unnamed.portId = 2;
    unnamed.poePower = 4.0f;
    a.state.portList.push_back(unnamed);
    a.config(2, true);
    a.capability(2, {true, false});
    const std::vector<PoePortStatusData> rows = a.rows();
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_TRUE(rows[0].strPortName.isEmpty());
    EXPECT_EQ(rows[0].strOutputPower, QString("4.0"));
}

TEST_F(POEPortStatusWidgetTest, FormIsATableAloneWithoutTimer)
{
    CPOEPortStatusWidget page(nullptr);
    EXPECT_EQ(page.objectName(), QString("UiPOEPortStatusWidget"));
    EXPECT_EQ(page.windowTitle(), QString("CActiveDeviceDialog"));
    auto* view = page.findChild<TarvexGUIToolkit::CTableView*>("m_pPOEPortStatusTreeView");
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_NE(qobject_cast<CPOEPortStatusModel*>(view->model()), nullptr);
    EXPECT_TRUE(page.findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly).isEmpty());
}

TEST_F(POEPortStatusWidgetTest, RowsAreThePoEPortsOfTheDevice)
{
    CPOEPortStatusWidget page(nullptr);
    fleet().open(page, "poe-switch");
    showStatus(page);

    const std::string id = fleet().id("poe-switch");
    Quillon::PortPoeInfoList cfg(std::string{});
    ASSERT_TRUE(velmora::ParamInterface::getPortPoeInfoCfgList(cfg, id));
    Quillon::PortPoeInfoListCap cap(std::string{});
    ASSERT_TRUE(velmora::ParamInterface::getPortPoeInfoListCap(cap, id));
    Quillon::CSwitchBaseInfo info(std::string{});
    ASSERT_TRUE(velmora::ParamInterface::getSwitchBasicInfoConfig(info, id));
    Quillon::SwitchesWorkState state(std::string{});
    ASSERT_TRUE(velmora::WorkStatusInferface::getInstance()->queryWorkState(state));

    std::map<int, bool> switchable;
    for (const Quillon::PortPoeInfoCap& c : cap.portList)
        if (c.poeEnableOptions.size() == 2)
            switchable[c.portId] = true;
    ASSERT_FALSE(switchable.empty());
    ASSERT_LT(switchable.size(), state.portList.size()) << "uplinks have no PoE";

    QAbstractItemModel* model = tableModel(page);
    ASSERT_NE(model, nullptr);
    int r = 0;
    for (const Quillon::SwitchesWorkStateItem& port : state.portList) {
        if (!switchable.count(port.portId))
            continue;
        bool enabled = false;
        for (const Quillon::PortPoeInfo& c : cfg.portList)
            if (c.portId == port.portId)
                enabled = c.poeEnable;
        ASSERT_LT(r, model->rowCount());
        EXPECT_EQ(cell(model, r, 0).toStdString(), velmora::switchPortName(info, port.portId));
        EXPECT_EQ(cell(model, r, 1), enabled ? QString("OpenWSYVR9KO") : QString("ShutDownN1AOOJOC"));
        EXPECT_EQ(cell(model, r, 2),
                  enabled ? QString::number(static_cast<double>(port.poePower), 'f', 1) : QString("--"));
        ++r;
    }
    EXPECT_EQ(model->rowCount(), r);
}

TEST_F(POEPortStatusWidgetTest, SwitchWithoutPoEListsNothing)
{
    CPOEPortStatusWidget page(nullptr);
    fleet().open(page, "plain-switch");
    showStatus(page);
    QAbstractItemModel* model = tableModel(page);
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(model->rowCount(), 0);
}

TEST_F(POEPortStatusWidgetTest, AnyFailedReadKeepsTheTable)
{
    CPOEPortStatusWidget page(nullptr);
    fleet().open(page, "poe-switch");
    showStatus(page);
    QAbstractItemModel* model = tableModel(page);
    const int rows = model->rowCount();
    ASSERT_GT(rows, 0);
    for (const char* path : {"/NXRPC/Transfers/Switches/portCfg/portPOEInfo", "/NXRPC/Transfers/Switches/portCfg/portPOEInfo/capabilities",
                             "/NXRPC/Transfers/Switches/basicInfo", "/NXRPC/Transfers/Switches/workState"}) {
        SCOPED_TRACE(path);
        emulator().clearFaults();
        ASSERT_TRUE(emulator().setFault(fleet().id("poe-switch"), path, EmulatorProcess::Fault::httpStatus(500)));
        showStatus(page);
        EXPECT_EQ(model->rowCount(), rows);
    }
}
