// The managed AP table: columns, the radio columns and their separators, the state texts and
// the keys that read a row's addresses. Records of shapes that the emulated controllers
// never report (no radios, one radio, an unknown band) are built here.
#include <QSortFilterProxyModel>
#include <gtest/gtest.h>

#include "QtPrinters.h"

#include "ApInfoListModel.h"

using velmora::CApInfoListModel;

namespace {

Quillon::rfInfo radio(int band, int power, int channel, int clients)
{
    Quillon::rfInfo rf{std::string()};
    rf.band = band;
    rf.transmitPower = power;
    rf.channel = channel;
    rf.onlineCount = clients;
    return rf;
}

Quillon::ApInfo ap(const std::string& name, const std::string& state, std::vector<Quillon::rfInfo> radios)
{
    Quillon::ApInfo info{std::string()};
    info.deviceName = name;
    info.model = "QN-1150";
    info.softwareVersion = "V2.2.4 build 240312";
    info.serialNumber = "QA0001";
    info.ipAddress = "172.16.0." + std::to_string(radios.size() + 10);
    info.macAddress = "a0:b1:c2:d3:e4:0" + std::to_string(radios.size());
    info.state = state;
    info.rfList = std::move(radios);
    return info;
}

QStringList row(const CApInfoListModel& model, int r)
{
    QStringList texts;
    for (int column = 0; column < model.columnCount(); ++column)
        texts << model.index(r, column).data().toString();
    return texts;
}

} // namespace

TEST(ApInfoListModelTest, ElevenColumnsWithTheirHeaders)
{
    CApInfoListModel model(nullptr);
    ASSERT_EQ(model.columnCount(), CApInfoListModel::COLUMN_COUNT);
    ASSERT_EQ(model.columnCount(), 11);
    const char* headers[] = {"APModelybyVeEBj",      "DeviceName",           "SoftwareVersion", "DeviceSerialNo",
                             "IPAddress",            "TheMACAddress",        "SupportTheSpectrumzvEoouqq",
                             "SendThePowernyjbsHqe", "ChannelOX54KMQ8",      "OnlineDevices",   "State67D76BB9"};
    for (int column = 0; column < 11; ++column) {
        EXPECT_EQ(model.headerData(column, Qt::Horizontal).toString(), headers[column]);
        EXPECT_EQ(model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), 0x81);
    }
    EXPECT_EQ(model.GetMappingColumn(0x101), 4);
    EXPECT_EQ(model.GetMappingColumn(0x102), 5);
}

TEST(ApInfoListModelTest, RadioColumnsJoinTheRadiosWithSeparators)
{
    Quillon::ApInfoList list{std::string()};
    list.apList.push_back(ap("two", "online", {radio(0, 18, 6, 3), radio(1, 21, 36, 0)}));
    list.apList.push_back(ap("three", "online", {radio(0, 14, 1, 2), radio(1, 20, 44, 5), radio(2, 22, 157, 1)}));
    list.apList.push_back(ap("none", "offline", {}));
    list.apList.push_back(ap("one", "online", {radio(1, 17, 149, 4)}));
    list.apList.push_back(ap("odd", "online", {radio(0, 15, 11, 1), radio(7, 99, 99, 99), radio(1, 19, 52, 2)}));
    list.apList.push_back(ap("odd-first", "online", {radio(7, 99, 99, 99), radio(1, 19, 52, 2)}));
    list.apList.push_back(ap("four", "online", {radio(0, 1, 1, 1), radio(1, 2, 2, 2), radio(2, 3, 3, 3), radio(1, 4, 4, 4)}));
    CApInfoListModel model(nullptr);
    model.setApInfoList(list);
    ASSERT_EQ(model.rowCount(), 7);

    EXPECT_EQ(row(model, 0).mid(6, 4), (QStringList{"2.4GHz/5GHz", "18dbm/21dbm", "6/36", "3(2.4GHz)/ 0(5GHz)"}));
    EXPECT_EQ(row(model, 1).mid(6, 4), (QStringList{"2.4GHz/5GHz(1)/5GHz(2)", "14dbm/20dbm/22dbm", "1/44/157",
                                                    "2(2.4GHz)/ 5(5GHz(1))/ 1(5GHz(2))"}));
    EXPECT_EQ(row(model, 2).mid(6, 4), (QStringList{"", "", "", ""}));
    EXPECT_EQ(row(model, 3).mid(6, 4), (QStringList{"5GHz", "17dbm", "149", "4(5GHz)"}));
    // A radio of an unknown band adds only the separators, and still counts as a radio.
    EXPECT_EQ(row(model, 4).mid(6, 4),
              (QStringList{"2.4GHz//5GHz(1)", "15dbm//19dbm", "11//52", "1(2.4GHz)/ / 2(5GHz(1))"}));
    EXPECT_EQ(row(model, 5).mid(6, 4), (QStringList{"5GHz", "19dbm", "52", "2(5GHz)"}));
    // Four radios are not three: band 1 reads "5GHz".
    EXPECT_EQ(row(model, 6)[6], "2.4GHz/5GHz/5GHz(2)/5GHz");
}

TEST(ApInfoListModelTest, TextColumnsAndTheAddressKeys)
{
    Quillon::ApInfoList list{std::string()};
    list.apList.push_back(ap("会议室-AP-006", "online", {radio(0, 18, 6, 3)}));
    CApInfoListModel model(nullptr);
    model.setApInfoList(list);
    const QStringList texts = row(model, 0);
    EXPECT_EQ(texts.mid(0, 6), (QStringList{"QN-1150", QString::fromUtf8("会议室-AP-006"), "V2.2.4 build 240312", "QA0001",
                                            "172.16.0.11", "a0:b1:c2:d3:e4:01"}));
    EXPECT_EQ(texts[10], "Online");
    for (int column = 0; column < 11; ++column) {
        EXPECT_EQ(model.index(0, column).data(0x101).toString(), "172.16.0.11") << column;
        EXPECT_EQ(model.index(0, column).data(0x102).toString(), "a0:b1:c2:d3:e4:01") << column;
    }
    EXPECT_EQ(model.item(0, 4)->data(0x101).toString(), "172.16.0.11");
    EXPECT_EQ(model.item(0, 4)->data(0x102).toString(), "a0:b1:c2:d3:e4:01");
    // Also through a proxy.
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    EXPECT_EQ(proxy.index(0, 2).data(0x101).toString(), "172.16.0.11");
}

TEST(ApInfoListModelTest, StateTextsWithUnknownStatesOffline)
{
    const std::pair<const char*, const char*> states[] = {
        {"offline", "Offline"},           {"online", "Online"},
        {"waitUpgrade", "WaitingUpgrade"}, {"receiveFirmwar", "ReceiveTheFirmwarejztLMjAd"},
        {"updating", "InTheUpgrade"},     {"success", "UpgradeSuccessQXfimbFV"},
        {"failed", "UpgradeFailedBQBDY5IP"}, {"receiveFirmware", "Offline"},
        {"Online", "Offline"},            {"rebooting", "Offline"},
        {"", "Offline"}};
    Quillon::ApInfoList list{std::string()};
    for (const auto& [state, text] : states)
        list.apList.push_back(ap(state, state, {}));
    CApInfoListModel model(nullptr);
    model.setApInfoList(list);
    int r = 0;
    for (const auto& [state, text] : states) {
        EXPECT_EQ(model.index(r, 10).data().toString(), text) << state;
        EXPECT_EQ(CApInfoListModel::stateText(state), text) << state;
        ++r;
    }
    model.setApInfoList(Quillon::ApInfoList{std::string()});
    EXPECT_EQ(model.rowCount(), 0);
}
