// The fleet window's "Language" menu: English, Chinese and the raw keys, one checked at a
// time; a choice shows the window itself in the new language at once (title, menus, column
// titles, class names, the count and a told problem), and status dialogs opened after it
// use it too, while an open one keeps the texts it was built with.
#include <gtest/gtest.h>

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "DeviceTypeString.h"
#include "FleetModel.h"
#include "FleetWindow.h"
#include "SwitchDeviceStatusWidget.h"
#include "TarvexGUIToolkit/TableView.h"
#include "ViewerTranslations.h"
#include "ostrand/DeviceRegistry.h"
#include "support/TestFleet.h"

using velmora::CSwitchDeviceStatusWidget;
using velmora::deviceTypeToString;
using velmora::viewer::CFleetModel;
using velmora::viewer::CFleetWindow;
using velmora::viewer::installedViewerLanguage;
using velmora::viewer::installViewerLanguage;

namespace {

const char kFleetJson[] = R"({"name": "fleet-language-tests", "devices": [
  {"model": "QN-1062", "name": "core switch"},
  {"model": "QN-1066", "name": "access switch"}
]})";

class LanguageFleet : public velmora::test::SharedTestFleet<LanguageFleet> {
public:
    LanguageFleet()
        : SharedTestFleet({"fleet-language-fleet.json", kFleetJson})
    {
    }
};

::testing::Environment* const kFleetEnvironment =
    ::testing::AddGlobalTestEnvironment(new velmora::test::TestFleetEnvironment<LanguageFleet>);

// What the window shows that the language decides.
struct WindowTexts {
    QString title;
    QString deviceMenu;
    QString languageMenu;
    QString searchHint;
    QStringList headers;
    QString count;
    QString problem;
    QStringList languages;
    QString checked;
};

WindowTexts windowTexts(CFleetWindow& window)
{
    WindowTexts texts;
    texts.title = window.windowTitle();
    texts.deviceMenu = window.deviceMenu()->title();
    texts.languageMenu = window.languageMenu()->title();
    texts.searchHint = window.findChild<QLineEdit*>("m_pSearchEdit")->placeholderText();
    QAbstractItemModel* model = window.findChild<TarvexGUIToolkit::CTableView*>("m_pDeviceTable")->model();
    for (int column = 0; column < CFleetModel::COLUMN_COUNT; ++column)
        texts.headers << model->headerData(column, Qt::Horizontal).toString();
    texts.count = window.countText();
    texts.problem = window.problemText();
    for (QAction* action : window.languageMenu()->actions()) {
        texts.languages << action->text();
        if (action->isChecked())
            texts.checked += action->objectName();
    }
    return texts;
}

QAction* languageAction(CFleetWindow& window, const char* objectName)
{
    for (QAction* action : window.languageMenu()->actions()) {
        if (action->objectName() == QLatin1String(objectName))
            return action;
    }
    return nullptr;
}

// The class column's texts, and what the installed catalogs call each row's category.
void expectClassNamesOfTheInstalledLanguage(CFleetWindow& window)
{
    QAbstractItemModel* model = window.findChild<TarvexGUIToolkit::CTableView*>("m_pDeviceTable")->model();
    ASSERT_EQ(model->rowCount(), 2);
    for (int row = 0; row < model->rowCount(); ++row) {
        const QString id = CFleetModel::deviceId(model->index(row, 0));
        const auto entry = ostrand::CDeviceRegistry::instance().find(id.toStdString());
        ASSERT_TRUE(entry.has_value());
        EXPECT_EQ(model->index(row, CFleetModel::COLUMN_CLASS).data().toString(),
                  deviceTypeToString(static_cast<tarvex7300::Device::DeviceCategory>(entry->category)));
    }
}

bool hasChinese(const QString& text)
{
    for (const QChar c : text) {
        if (c.unicode() >= 0x4e00 && c.unicode() <= 0x9fff)
            return true;
    }
    return false;
}

class FleetWindowLanguageTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(fleet().isRunning()) << fleet().error();
        ostrand::CDeviceRegistry::instance().setPath(fleet().emulator().registryPath());
        ASSERT_TRUE(installViewerLanguage("en"));
    }
    void TearDown() override { installViewerLanguage("keys"); }

    static LanguageFleet& fleet() { return LanguageFleet::instance(); }
};

TEST_F(FleetWindowLanguageTest, TheLanguageMenuStandsBesideTheDeviceMenuAndShowsTheCurrentChoice)
{
    CFleetWindow window;
    ASSERT_NE(window.languageMenu(), nullptr);
    const QList<QAction*> menus = window.menuBar()->actions();
    const int device = menus.indexOf(window.deviceMenu()->menuAction());
    const int language = menus.indexOf(window.languageMenu()->menuAction());
    ASSERT_GE(device, 0);
    EXPECT_EQ(language, device + 1);

    const QList<QAction*> choices = window.languageMenu()->actions();
    ASSERT_EQ(choices.size(), 3);
    for (QAction* choice : choices) {
        EXPECT_TRUE(choice->isCheckable());
        ASSERT_NE(choice->actionGroup(), nullptr);
        EXPECT_TRUE(choice->actionGroup()->isExclusive());
        EXPECT_TRUE(choice->toolTip().contains("open ones keep theirs")) << choice->toolTip().toStdString();
    }
    EXPECT_EQ(window.language(), "en");
    EXPECT_EQ(windowTexts(window).checked, "m_pEnglishAction");
}

TEST_F(FleetWindowLanguageTest, ChoosingALanguageShowsTheWindowInItEnglishChineseKeys)
{
    CFleetWindow window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    // A told problem is told again in the new language.
    EXPECT_EQ(window.openDevice("gone-device"), nullptr);

    const WindowTexts english = windowTexts(window);
    EXPECT_EQ(english.title, "Devices");
    EXPECT_EQ(english.deviceMenu, "&Device");
    EXPECT_EQ(english.languageMenu, "&Language");
    EXPECT_EQ(english.searchHint, "Name, class, model or address");
    EXPECT_EQ(english.headers, QStringList({"Name", "Class", "Model", "Address"}));
    EXPECT_EQ(english.count, "2 of 2 devices");
    EXPECT_EQ(english.problem, "The device gone-device is no longer in the registry; reload it.");
    EXPECT_EQ(english.languages, QStringList({"English", "中文 (简体)", "Keys"}));
    EXPECT_EQ(english.checked, "m_pEnglishAction");
    expectClassNamesOfTheInstalledLanguage(window);
    const QString englishClass = window.findChild<TarvexGUIToolkit::CTableView*>("m_pDeviceTable")
                                     ->model()->index(0, CFleetModel::COLUMN_CLASS).data().toString();

    languageAction(window, "m_pChineseAction")->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(window.language(), "zh_CN");
    EXPECT_EQ(installedViewerLanguage(), "zh_CN");
    const WindowTexts chinese = windowTexts(window);
    EXPECT_EQ(chinese.title, "设备");
    EXPECT_EQ(chinese.deviceMenu, "设备(&D)");
    EXPECT_EQ(chinese.languageMenu, "语言(&L)");
    EXPECT_EQ(chinese.searchHint, "名称、类别、型号或地址");
    EXPECT_EQ(chinese.headers, QStringList({"名称", "类别", "型号", "地址"}));
    EXPECT_EQ(chinese.count, "显示 2 台，共 2 台设备");
    EXPECT_EQ(chinese.problem, "设备 gone-device 已不在注册表中，请重新加载。");
    EXPECT_EQ(chinese.languages, QStringList({"英语 (English)", "中文 (简体)", "翻译键"}));
    EXPECT_EQ(chinese.checked, "m_pChineseAction");
    expectClassNamesOfTheInstalledLanguage(window);
    const QString chineseClass = window.findChild<TarvexGUIToolkit::CTableView*>("m_pDeviceTable")
                                     ->model()->index(0, CFleetModel::COLUMN_CLASS).data().toString();
    EXPECT_TRUE(hasChinese(chineseClass)) << chineseClass.toStdString();
    EXPECT_NE(chineseClass, englishClass);

    languageAction(window, "m_pKeysAction")->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(window.language(), "keys");
    const WindowTexts keys = windowTexts(window);
    EXPECT_EQ(keys.title, "Devices");
    EXPECT_EQ(keys.languageMenu, "&Language");
    EXPECT_EQ(keys.headers, QStringList({"Name", "Class", "Model", "Address"}));
    EXPECT_EQ(keys.count, "2 of 2 devices");
    EXPECT_EQ(keys.checked, "m_pKeysAction");
    expectClassNamesOfTheInstalledLanguage(window);

    // And back: the keys were not the end of it.
    languageAction(window, "m_pEnglishAction")->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(windowTexts(window).languageMenu, "&Language");
    EXPECT_EQ(windowTexts(window).checked, "m_pEnglishAction");
    EXPECT_EQ(windowTexts(window).languages, english.languages);
    window.close();
}

TEST_F(FleetWindowLanguageTest, ADialogOpenedAfterASwitchUsesTheNewLanguageAndAnOpenOneKeepsItsOwn)
{
    CFleetWindow window;
    window.show();
    CSwitchDeviceStatusWidget* english = window.openDevice(QString::fromStdString(fleet().id("core switch")));
    ASSERT_NE(english, nullptr);
    EXPECT_EQ(english->windowTitle(), "Device status");

    languageAction(window, "m_pChineseAction")->trigger();
    QCoreApplication::processEvents();
    CSwitchDeviceStatusWidget* chinese = window.openDevice(QString::fromStdString(fleet().id("access switch")));
    ASSERT_NE(chinese, nullptr);
    EXPECT_EQ(chinese->windowTitle(), "设备状态");
    EXPECT_EQ(english->windowTitle(), "Device status") << "an open dialog keeps the texts it was built with";

    languageAction(window, "m_pKeysAction")->trigger();
    QCoreApplication::processEvents();
    chinese->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    CSwitchDeviceStatusWidget* keys = window.openDevice(QString::fromStdString(fleet().id("access switch")));
    ASSERT_NE(keys, nullptr);
    EXPECT_EQ(keys->windowTitle(), "DeviceStatus");
    window.close();
}

TEST(ViewerLanguageTest, AnUnknownLanguageChangesNothing)
{
    ASSERT_TRUE(installViewerLanguage("zh_CN"));
    EXPECT_FALSE(installViewerLanguage("fr"));
    EXPECT_EQ(installedViewerLanguage(), "zh_CN");
    EXPECT_EQ(QCoreApplication::translate("velmora::viewer::CFleetModel", "Address"), "地址");
    ASSERT_TRUE(installViewerLanguage("keys"));
    EXPECT_EQ(QCoreApplication::translate("velmora::viewer::CFleetModel", "Address"), "Address");
}

} // namespace
