// Whole-file text reads from disk and from the resource tree.
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "TarvexGUIToolkit/File.h"

using TarvexGUIToolkit::CFile;

TEST(File, ReadsAFileFromDiskAsUtf8)
{
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    const QString path = folder.filePath("style.qss");
    const QByteArray content = "QWidget { background: white; }\n/* \xe7\xbd\x91\xe7\xbb\x9c */\n";
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    bool ok = false;
    EXPECT_EQ(CFile::ReadAll(path, &ok), QString::fromUtf8(content));
    EXPECT_TRUE(ok);
    EXPECT_EQ(CFile::ReadAll(path), QString::fromUtf8(content));
}

TEST(File, ReadsAResource)
{
    bool ok = false;
    const QString text = CFile::ReadAll(":/FileTest/FileTestStyle.qss", &ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(text, QString::fromUtf8("QLabel#title { color: #1f2937; } /* 标题 */\n"));
}

TEST(File, MissingFileGivesAnEmptyText)
{
    bool ok = true;
    EXPECT_TRUE(CFile::ReadAll("/nonexistent/velmora/none.qss", &ok).isEmpty());
    EXPECT_FALSE(ok);
    EXPECT_TRUE(CFile::ReadAll(":/ClientCommon/Qss/Qss/Missing/Missing.qss").isEmpty());
    EXPECT_TRUE(CFile::ReadAll(QString()).isEmpty());
}

TEST(File, EmptyFileIsReadAsEmpty)
{
    QTemporaryDir folder;
    const QString path = folder.filePath("empty.qss");
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    bool ok = false;
    EXPECT_TRUE(CFile::ReadAll(path, &ok).isEmpty());
    EXPECT_TRUE(ok);
}
