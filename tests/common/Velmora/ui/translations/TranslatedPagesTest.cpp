// Every page of every device class, in English and in Chinese, as a user clicks through the
// dialog at its size of 920 x 700: no label, button, tab, header, option row or table cell shows
// a key where a word belongs, and no text of the module in a label, the back button, a tab or an
// option row is cut. The pages are also written to snapshots/translations/<language>/.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QEventLoop>
#include <QHeaderView>
#include <QLabel>
#include <QMetaObject>
#include <QRegularExpression>
#include <QSet>
#include <QStackedWidget>
#include <QStyle>
#include <QTabBar>
#include <QTextDocument>
#include <QThreadPool>
#include <QTimer>
#include <cjson/cJSON.h>
#include <cmath>

#include "DeviceStatusFactory.h"
#include "Quillon/WirelessRecords.h"
#include "SwitchDeviceStatusWidget.h"
#include "TarvexGUIToolkit/ToolPushButton.h"
#include "TarvexGUIToolkit/TreeView.h"
#include "TsCatalog.h"
#include "VelmoraTranslations.h"
#include "logical/interface/ParamInterface.h"
#include "support/Snapshot.h"
#include "support/TestFleet.h"

namespace velmora {
namespace test {

// One device of every class that has pages, with the variants that change what is shown:
// PoE or not, chassis, fiber crate, controllers with and without AP groups, two- and
// three-radio APs.
inline const char* translatedPagesFleetJson()
{
    return R"({"name": "translated-pages", "devices": [
  {"model": "QN-1062", "name": "poe-switch"},
  {"model": "QN-1093", "name": "chassis"},
  {"model": "QN-1180", "name": "router"},
  {"model": "QN-1098", "name": "bridge"},
  {"model": "QN-1137-21S", "name": "fiber-crate"},
  {"model": "QN-1138", "name": "fiber"},
  {"model": "QN-1160", "name": "ac-groups", "apCount": 3, "groups": 2, "searchGroups": 0},
  {"model": "QN-1164", "name": "ac-plain", "apCount": 3, "groups": 0},
  {"model": "QN-1140", "name": "ap"},
  {"model": "QN-1150", "name": "ap3"},
  {"model": "QN-1170", "name": "wireless-router"}
]})";
}

class TranslatedPagesFleet : public SharedTestFleet<TranslatedPagesFleet> {
public:
    TranslatedPagesFleet()
        : SharedTestFleet({"translated-pages-fleet.json", translatedPagesFleetJson()})
    {
    }
};

inline ::testing::Environment* const kTranslatedPagesFleetEnvironment =
    ::testing::AddGlobalTestEnvironment(new TestFleetEnvironment<TranslatedPagesFleet>);

} // namespace test
} // namespace velmora

using velmora::CSwitchDeviceStatusWidget;
using velmora::test::sourcePath;
using velmora::test::TranslatedPagesFleet;

namespace {

constexpr int kSettleMs = 30;
constexpr int kBackgroundWaitMs = 20000;
constexpr int kMostCellRows = 40;
// A key this long or longer is not the start of a word of a translation or a device value.
constexpr int kLongKey = 8;
// The tool button draws a text that is a little too wide down to this share of its font.
constexpr double kSmallestToolFontScale = 0.7;

const char* const kLanguages[] = {"en", "zh_CN"};

// What a language's catalogs say: the keys that must not be seen (their text there differs
// from the key) and the texts of the module (whose labels must show them whole).
struct LanguageTexts {
    QSet<QString> hiddenKeys;
    QSet<QString> longHiddenKeys;
    QSet<QString> translations;
};

LanguageTexts languageTexts(const QString& language)
{
    LanguageTexts texts;
    for (const auto& set : velmora::test::catalogSets()) {
        // The pages show the module's and the toolkit's texts, never the viewer's.
        if (set.name == "viewer")
            continue;
        for (const QString& tsFile : set.tsFiles) {
            if (!tsFile.endsWith("_" + language + ".ts"))
                continue;
            const velmora::test::TsCatalog catalog = velmora::test::readTsCatalog(sourcePath(tsFile));
            EXPECT_TRUE(catalog.error.isEmpty()) << catalog.error.toStdString();
            for (const velmora::test::TsMessage& message : catalog.messages) {
                const QString translation = message.translations.value(0);
                texts.translations.insert(translation);
                if (translation != message.source) {
                    texts.hiddenKeys.insert(message.source);
                    if (message.source.size() >= kLongKey)
                        texts.longHiddenKeys.insert(message.source);
                }
            }
        }
    }
    return texts;
}

void settle()
{
    QThreadPool::globalInstance()->waitForDone(kBackgroundWaitMs);
    QEventLoop loop;
    QTimer::singleShot(kSettleMs, &loop, &QEventLoop::quit);
    loop.exec();
    QThreadPool::globalInstance()->waitForDone(kBackgroundWaitMs);
    QCoreApplication::processEvents();
}

class PageReader {
public:
    PageReader(const LanguageTexts& texts, const QString& where)
        : m_texts(texts)
        , m_where(where)
    {
    }

    // A shown text that is, holds as a word, or starts with a key of the catalog.
    void expectNoKey(const QString& text, const char* kind) const
    {
        static const QRegularExpression separators(QStringLiteral("[\\s/:()]+"));
        QString found;
        if (m_texts.hiddenKeys.contains(text))
            found = text;
        for (const QString& word : text.split(separators, Qt::SkipEmptyParts)) {
            if (found.isEmpty() && m_texts.hiddenKeys.contains(word))
                found = word;
        }
        for (const QString& key : m_texts.longHiddenKeys) {
            if (found.isEmpty() && text.startsWith(key))
                found = key;
        }
        EXPECT_TRUE(found.isEmpty()) << m_where.toStdString() << ": " << kind << " \"" << text.toStdString()
                                     << "\" shows the key \"" << found.toStdString() << "\"";
    }

    void expectWhole(int needed, int room, const QString& text, const char* kind) const
    {
        EXPECT_LE(needed, room) << m_where.toStdString() << ": " << kind << " \"" << text.toStdString()
                                << "\" is cut (pixels needed and given)";
    }

    void read(QWidget& dialog) const
    {
        for (QLabel* label : dialog.findChildren<QLabel*>()) {
            if (!label->isVisibleTo(&dialog) || label->text().isEmpty() || Qt::mightBeRichText(label->text()))
                continue;
            expectNoKey(label->text(), "label");
            // The module's own texts in a single line must fit the label's room.
            if (m_texts.translations.contains(label->text()) && !label->wordWrap()) {
                const int room = label->contentsRect().width() - 2 * label->margin();
                expectWhole(label->fontMetrics().horizontalAdvance(label->text()), room, label->text(), "label");
            }
        }
        for (QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
            if (!button->isVisibleTo(&dialog) || button->text().isEmpty())
                continue;
            expectNoKey(button->text(), "button");
            if (auto* tool = qobject_cast<TarvexGUIToolkit::CToolPushButton*>(button))
                readToolButton(*tool);
        }
        for (QTabBar* bar : dialog.findChildren<QTabBar*>()) {
            if (!bar->isVisibleTo(&dialog))
                continue;
            for (int i = 0; i < bar->count(); ++i)
                expectNoKey(bar->tabText(i), "tab");
            // Tabs get less than they ask for, and are elided, only when the bar is squeezed.
            expectWhole(bar->sizeHint().width(), bar->width(), bar->tabText(0), "tab bar");
        }
        for (QAbstractItemView* view : dialog.findChildren<QAbstractItemView*>()) {
            if (!view->isVisibleTo(&dialog) || !view->model())
                continue;
            readItemView(*view);
        }
        auto* tree = dialog.findChild<TarvexGUIToolkit::CTreeView*>("m_pItemTreeView");
        if (tree && tree->model())
            readOptionRows(*tree);
    }

private:
    void readToolButton(const TarvexGUIToolkit::CToolPushButton& button) const
    {
        const int iconWidth = button.icon().isNull() ? 0 : button.iconSize().width();
        const int room = button.width() - 2 * TarvexGUIToolkit::CToolPushButton::kPadding - iconWidth -
                         (iconWidth > 0 ? TarvexGUIToolkit::CToolPushButton::kIconTextSpacing : 0);
        QFont smallest = button.font();
        // The button steps its font down by one pixel or half a point, to no less than this.
        if (smallest.pixelSize() > 0)
            smallest.setPixelSize(static_cast<int>(std::ceil(smallest.pixelSize() * kSmallestToolFontScale)));
        else
            smallest.setPointSizeF(std::ceil(smallest.pointSizeF() * kSmallestToolFontScale * 2) / 2);
        expectWhole(static_cast<int>(std::ceil(QFontMetricsF(smallest).horizontalAdvance(button.text()))), room,
                    button.text(), "button");
    }

    void readItemView(const QAbstractItemView& view) const
    {
        const QAbstractItemModel& model = *view.model();
        for (int column = 0; column < model.columnCount(); ++column) {
            const QString header = model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
            if (!header.isEmpty())
                expectNoKey(header, "header");
        }
        for (int row = 0; row < std::min(model.rowCount(), kMostCellRows); ++row) {
            for (int column = 0; column < model.columnCount(); ++column) {
                const QString cell = model.index(row, column).data(Qt::DisplayRole).toString();
                if (m_texts.hiddenKeys.contains(cell))
                    ADD_FAILURE() << m_where.toStdString() << ": table cell shows the key \"" << cell.toStdString()
                                  << "\"";
            }
        }
    }

    void readOptionRows(const TarvexGUIToolkit::CTreeView& tree) const
    {
        // The text margin of item views, as the common style lays out an item.
        const int margin = 2 * (tree.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &tree) + 1);
        for (int row = 0; row < tree.model()->rowCount(); ++row) {
            const QModelIndex index = tree.model()->index(row, 0);
            const QString text = index.data(Qt::DisplayRole).toString();
            expectNoKey(text, "option row");
            const QRect rect = tree.visualRect(index);
            expectWhole(tree.fontMetrics().horizontalAdvance(text) + margin, rect.width(), text, "option row");
        }
    }

    const LanguageTexts& m_texts;
    QString m_where;
};

TarvexGUIToolkit::CTreeView* optionTree(CSwitchDeviceStatusWidget& dialog)
{
    return dialog.findChild<TarvexGUIToolkit::CTreeView*>("m_pItemTreeView");
}

// Clicks every option row, reads each page and writes it to the snapshots.
int readEveryRow(CSwitchDeviceStatusWidget& dialog, const LanguageTexts& texts, const QString& language,
                 const QString& name)
{
    TarvexGUIToolkit::CTreeView* tree = optionTree(dialog);
    EXPECT_NE(tree, nullptr);
    if (!tree || !tree->model())
        return 0;
    const int rows = tree->model()->rowCount();
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = tree->model()->index(row, 0);
        tree->setCurrentIndex(index);
        emit tree->SignalClicked(index);
        settle();
        const QString page = QString("%1_%2_%3").arg(name).arg(row).arg(index.data(Qt::UserRole).toInt());
        PageReader(texts, language + " " + page).read(dialog);
        velmora::test::writeSnapshot(dialog, "translations/" + language, page);
    }
    return rows;
}

class TranslatedPagesTest : public ::testing::TestWithParam<const char*> {
protected:
    void SetUp() override { ASSERT_TRUE(fleet().isRunning()) << fleet().error(); }
    void TearDown() override
    {
        QThreadPool::globalInstance()->waitForDone();
        velmora::removeTranslations();
    }
    static TranslatedPagesFleet& fleet() { return TranslatedPagesFleet::instance(); }

    static std::unique_ptr<CSwitchDeviceStatusWidget> openDialog(const std::string& name)
    {
        auto dialog = std::make_unique<CSwitchDeviceStatusWidget>(fleet().id(name), fleet().capabilities(name), nullptr);
        dialog->show();
        settle();
        return dialog;
    }
};

TEST_P(TranslatedPagesTest, EveryPageOfEveryDeviceClassShowsWholeWords)
{
    const QString language = QString::fromLatin1(GetParam());
    ASSERT_TRUE(velmora::installTranslations(language));
    const LanguageTexts texts = languageTexts(language);
    ASSERT_FALSE(texts.hiddenKeys.isEmpty());

    int pages = 0;
    for (const char* name : {"poe-switch", "chassis", "router", "bridge", "fiber-crate", "fiber", "ac-groups", "ac-plain",
                             "ap", "ap3", "wireless-router"}) {
        SCOPED_TRACE(name);
        auto dialog = openDialog(name);
        EXPECT_EQ(dialog->size(), QSize(920, 700));
        pages += readEveryRow(*dialog, texts, language, name);
        dialog->hide();
    }
    // Every device above has between two and four rows.
    EXPECT_GE(pages, 36);
}

TEST_P(TranslatedPagesTest, TheViewOfAManagedApAndTheWayBackShowWholeWords)
{
    const QString language = QString::fromLatin1(GetParam());
    ASSERT_TRUE(velmora::installTranslations(language));
    const LanguageTexts texts = languageTexts(language);

    const std::string controller = "ac-groups";
    const std::string empty;
    Quillon::ApInfoList aps(empty);
    ASSERT_TRUE(velmora::ParamInterface::getApInfoList(aps, fleet().id(controller)));
    ASSERT_FALSE(aps.apList.empty());

    auto dialog = openDialog(controller);
    TarvexGUIToolkit::CTreeView* tree = optionTree(*dialog);
    ASSERT_NE(tree, nullptr);
    int listRow = -1;
    for (int row = 0; row < tree->model()->rowCount(); ++row) {
        if (tree->model()->index(row, 0).data(Qt::UserRole).toInt() == velmora::OptionApList)
            listRow = row;
    }
    ASSERT_GE(listRow, 0);
    const QModelIndex listIndex = tree->model()->index(listRow, 0);
    tree->setCurrentIndex(listIndex);
    emit tree->SignalClicked(listIndex);
    settle();
    auto* stack = dialog->findChild<QStackedWidget*>("m_pStackedWidget");
    ASSERT_NE(stack, nullptr);
    ASSERT_TRUE(QMetaObject::invokeMethod(stack->currentWidget(), "signalUpdateToApStatus", Qt::DirectConnection,
                                          Q_ARG(QString, QString::fromStdString(aps.apList.front().ipAddress)),
                                          Q_ARG(QString, QString::fromStdString(aps.apList.front().macAddress))));
    settle();
    auto* back = dialog->findChild<QAbstractButton*>("m_pBackButton");
    ASSERT_NE(back, nullptr);
    ASSERT_TRUE(back->isVisible());
    EXPECT_EQ(readEveryRow(*dialog, texts, language, "ac-groups_ap"), 2);

    back->click();
    settle();
    EXPECT_FALSE(back->isVisible());
    PageReader(texts, language + " ac-groups back").read(*dialog);
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslatedPagesTest, ::testing::ValuesIn(kLanguages),
                         [](const ::testing::TestParamInfo<const char*>& info) {
                             return std::string(info.param) == "en" ? std::string("English")
                                                                    : std::string("SimplifiedChinese");
                         });

} // namespace
