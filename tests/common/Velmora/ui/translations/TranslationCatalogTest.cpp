// The catalogs against the code: lupdate run over the sources into a copy of each catalog finds
// no key without its finished translation and no entry that the code no longer has; every
// translation keeps the placeholders of its key.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include "TsCatalog.h"

using velmora::test::catalogSets;
using velmora::test::readTsCatalog;
using velmora::test::sourcePath;
using velmora::test::TsCatalog;
using velmora::test::TsMessage;

namespace {

constexpr int kLupdateTimeoutMs = 120000;

QString describe(const TsMessage& message)
{
    return message.context + " / \"" + message.source + "\"";
}

// The placeholders %1 .. %99 of a text, sorted, each as often as it stands.
QStringList placeholders(const QString& text)
{
    static const QRegularExpression placeholder(QStringLiteral("%(L)?\\d{1,2}"));
    QStringList found;
    auto it = placeholder.globalMatch(text);
    while (it.hasNext())
        found << it.next().captured(0);
    found.sort();
    return found;
}

// Runs lupdate as the velmora-lupdate target does, into `tsFile`; returns its output on failure.
QString runLupdate(const QStringList& sourceFolders, const QString& tsFile)
{
    QProcess lupdate;
    lupdate.setWorkingDirectory(QStringLiteral(VELMORA_SOURCE_ROOT));
    QStringList arguments{"-locations", "none"};
    for (const QString& folder : sourceFolders)
        arguments << sourcePath(folder);
    arguments << "-ts" << tsFile;
    lupdate.start(QStringLiteral(VELMORA_LUPDATE), arguments);
    if (!lupdate.waitForFinished(kLupdateTimeoutMs) || lupdate.exitStatus() != QProcess::NormalExit ||
        lupdate.exitCode() != 0)
        return QString::fromLocal8Bit(lupdate.readAllStandardOutput() + lupdate.readAllStandardError()) +
               lupdate.errorString();
    return QString();
}

TEST(TranslationCatalogTest, EveryKeyTheCodeTranslatesHasAFinishedTranslationAndNothingElse)
{
    QTemporaryDir work;
    ASSERT_TRUE(work.isValid());
    for (const auto& set : catalogSets()) {
        for (const QString& tsFile : set.tsFiles) {
            SCOPED_TRACE(tsFile.toStdString());
            const TsCatalog original = readTsCatalog(sourcePath(tsFile));
            ASSERT_TRUE(original.error.isEmpty()) << original.error.toStdString();
            ASSERT_FALSE(original.messages.empty());

            // lupdate marks a key the catalog lacks as unfinished and a key the code dropped
            // as vanished; the copy shows what the velmora-lupdate target would write.
            const QString copy = QDir(work.path()).filePath(QFileInfo(tsFile).fileName());
            QFile::remove(copy);
            ASSERT_TRUE(QFile::copy(sourcePath(tsFile), copy));
            const QString failure = runLupdate(set.sourceFolders, copy);
            ASSERT_TRUE(failure.isEmpty()) << failure.toStdString();
            const TsCatalog updated = readTsCatalog(copy);
            ASSERT_TRUE(updated.error.isEmpty()) << updated.error.toStdString();

            for (const TsMessage& message : updated.messages) {
                EXPECT_TRUE(message.type.isEmpty())
                    << message.type.toStdString() << ": " << describe(message).toStdString()
                    << (message.type == "unfinished" ? " has no finished translation; run the velmora-lupdate target "
                                                       "and translate it"
                                                     : " is no longer in the code; run the velmora-lupdate target");
                for (const QString& translation : message.translations)
                    EXPECT_FALSE(translation.isEmpty()) << "empty translation of " << describe(message).toStdString();
            }
            EXPECT_EQ(updated.messages.size(), original.messages.size())
                << "lupdate found keys the catalog does not hold";
        }
    }
}

TEST(TranslationCatalogTest, TranslationsKeepThePlaceholdersOfTheirKeys)
{
    int withPlaceholders = 0;
    for (const auto& set : catalogSets()) {
        for (const QString& tsFile : set.tsFiles) {
            const TsCatalog catalog = readTsCatalog(sourcePath(tsFile));
            ASSERT_TRUE(catalog.error.isEmpty()) << catalog.error.toStdString();
            for (const TsMessage& message : catalog.messages) {
                const QStringList expected = placeholders(message.source);
                if (!expected.isEmpty())
                    ++withPlaceholders;
                for (const QString& translation : message.translations) {
                    EXPECT_EQ(placeholders(translation), expected)
                        << tsFile.toStdString() << ": " << describe(message).toStdString() << " -> \""
                        << translation.toStdString() << "\"";
                }
            }
        }
    }
    // The run and connect time units, in both languages.
    EXPECT_GE(withPlaceholders, 10);
}

TEST(TranslationCatalogTest, EachCatalogIsOfItsLanguageAndTheTwoHoldTheSameKeys)
{
    for (const auto& set : catalogSets()) {
        const TsCatalog english = readTsCatalog(sourcePath(set.tsFiles.at(0)));
        const TsCatalog chinese = readTsCatalog(sourcePath(set.tsFiles.at(1)));
        EXPECT_TRUE(english.language.startsWith("en")) << english.language.toStdString();
        EXPECT_EQ(chinese.language, "zh_CN");
        QSet<QString> englishKeys;
        QSet<QString> chineseKeys;
        for (const TsMessage& message : english.messages)
            englishKeys.insert(message.context + '\n' + message.source);
        for (const TsMessage& message : chinese.messages) {
            chineseKeys.insert(message.context + '\n' + message.source);
            // A Chinese text that reads as ASCII only is one of the few words kept as they
            // are (SSID, MAC, dBm, band names); a long one would be an English leftover.
            const QString translation = message.translations.value(0);
            bool ascii = true;
            for (const QChar c : translation)
                ascii = ascii && c.unicode() < 0x80;
            if (ascii) {
                EXPECT_LE(translation.size(), 6)
                    << "not Chinese: " << describe(message).toStdString() << " -> " << translation.toStdString();
            }
        }
        EXPECT_EQ(englishKeys, chineseKeys) << set.name.toStdString();
    }
}

} // namespace
