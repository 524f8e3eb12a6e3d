// Installing and removing the catalogs: without them the keys are seen, with them the words of
// the chosen language, in the module's contexts and the toolkit's; an unknown locale changes
// nothing.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLabel>

#include "FormatConnectTime.h"
#include "FormatRunTime.h"
#include "DeviceTypeString.h"
#include "VelmoraTranslations.h"
#include "support/LogCapture.h"

using velmora::installTranslations;
using velmora::removeTranslations;

namespace {

// One week, one day, two hours, three minutes and four seconds.
constexpr int kSeconds = 7 * 86400 + 86400 + 2 * 3600 + 3 * 60 + 4;

QString backButtonText()
{
    return QCoreApplication::translate("UiSwitchDeviceStatusWidget", "ReturnD1QNBO6E");
}

QString closeTip()
{
    return QCoreApplication::translate("TarvexGUIToolkit::CBaseDialog", "Close");
}

class TranslationInstallTest : public ::testing::Test {
protected:
    void TearDown() override { removeTranslations(); }
};

TEST_F(TranslationInstallTest, WithoutAnInstalledCatalogTheKeysAreSeen)
{
    EXPECT_EQ(velmora::formatRunTime(kSeconds), "1Week 1Daythdetynday 2h 3m");
    EXPECT_EQ(backButtonText(), "ReturnD1QNBO6E");
    EXPECT_EQ(velmora::deviceTypeToString(tarvex7300::Device::DeviceCategory(120)), "Switchgear");
}

TEST_F(TranslationInstallTest, EnglishShowsWordsInEveryKindOfContext)
{
    ASSERT_TRUE(installTranslations("en"));
    EXPECT_EQ(velmora::formatRunTime(kSeconds), "1w 1d 2h 3m");
    EXPECT_EQ(velmora::formatConnectTime(kSeconds), "1w 1d 2h 3m 4s");
    EXPECT_EQ(backButtonText(), "Back");
    EXPECT_EQ(velmora::deviceTypeToString(tarvex7300::Device::DeviceCategory(120)), "Switch");
    EXPECT_EQ(QCoreApplication::translate("QObject", "ConnectedToTheStateMffDqXn"), "WAN status");
    EXPECT_EQ(QCoreApplication::translate("UiPanelStatusBase", "ElectricityMouth"), "Electrical port");
    EXPECT_EQ(QCoreApplication::translate("UiPanelStatusBase", "NotConnected2NGI5XEM"), "Not connected");
    EXPECT_EQ(QCoreApplication::translate("velmora::CPortStatusWidget", "Close"), "Off");
    EXPECT_EQ(closeTip(), "Close");
}

TEST_F(TranslationInstallTest, ChineseShowsChineseAndASecondCallReplacesTheFirst)
{
    ASSERT_TRUE(installTranslations("en"));
    ASSERT_TRUE(installTranslations("zh_CN"));
    EXPECT_EQ(velmora::formatRunTime(kSeconds), QString::fromUtf8("1周 1天 2小时 3分"));
    EXPECT_EQ(backButtonText(), QString::fromUtf8("返回"));
    EXPECT_EQ(QCoreApplication::translate("UiPanelStatusWidget", "MemoryUsage"), QString::fromUtf8("内存使用率"));
    EXPECT_EQ(closeTip(), QString::fromUtf8("关闭"));
}

TEST_F(TranslationInstallTest, AnUnknownLocaleIsLoggedAndKeepsWhatWasInstalled)
{
    ASSERT_TRUE(installTranslations("zh_CN"));
    velmora::test::LogCapture log;
    EXPECT_FALSE(installTranslations("fr"));
    EXPECT_FALSE(installTranslations(""));
    const std::vector<velmora::test::LogLine> warnings = log.lines("WARN");
    ASSERT_EQ(warnings.size(), 2u);
    EXPECT_NE(warnings[0].message.find("No translations for the locale \"fr\""), std::string::npos)
        << warnings[0].message;
    EXPECT_EQ(backButtonText(), QString::fromUtf8("返回"));
}

TEST_F(TranslationInstallTest, RemovingTheCatalogsBringsTheKeysBack)
{
    ASSERT_TRUE(installTranslations("en"));
    removeTranslations();
    EXPECT_EQ(backButtonText(), "ReturnD1QNBO6E");
    EXPECT_EQ(closeTip(), "Close");
    EXPECT_EQ(velmora::formatRunTime(kSeconds), "1Week 1Daythdetynday 2h 3m");
    // Twice is harmless.
    removeTranslations();
    EXPECT_EQ(backButtonText(), "ReturnD1QNBO6E");
}

} // namespace
