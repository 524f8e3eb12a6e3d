// Narrow texts to QString.
#include <QTextCodec>
#include <gtest/gtest.h>
#include <string>

#include "TarvexGUIToolkit/StringConvert.h"

using TarvexGUIToolkit::ConvertToUnicode;

TEST(StringConvert, DecodesUtf8ChineseText)
{
    const std::string utf8 = "\xe4\xba\xa4\xe6\x8d\xa2\xe6\x9c\xba-1"; // 交换机-1
    const QString expected = QString::fromUtf16(u"\u4ea4\u6362\u673a-1");
    EXPECT_EQ(ConvertToUnicode(utf8), expected);
    EXPECT_EQ(ConvertToUnicode(utf8, nullptr), expected);
    EXPECT_EQ(ConvertToUnicode(utf8.c_str(), nullptr), expected);
    EXPECT_EQ(ConvertToUnicode(utf8).size(), 5);
}

TEST(StringConvert, KeepsAsciiAsItIs)
{
    EXPECT_EQ(ConvertToUnicode(std::string("aa:bb:cc:11:22:33"), nullptr), QString("aa:bb:cc:11:22:33"));
    EXPECT_EQ(ConvertToUnicode("wpa2-psk"), QString("wpa2-psk"));
}

TEST(StringConvert, EmptyAndNullGiveAnEmptyString)
{
    EXPECT_TRUE(ConvertToUnicode(std::string()).isEmpty());
    EXPECT_TRUE(ConvertToUnicode("").isEmpty());
    EXPECT_TRUE(ConvertToUnicode(static_cast<const char*>(nullptr)).isEmpty());
    EXPECT_TRUE(ConvertToUnicode(nullptr, nullptr).isEmpty());
}

TEST(StringConvert, KeepsTheWholeStdStringLength)
{
    const std::string withNul("a\0b", 3);
    EXPECT_EQ(ConvertToUnicode(withNul).size(), 3);
}

TEST(StringConvert, DecodesANamedCodec)
{
    if (!QTextCodec::codecForName("GBK"))
        GTEST_SKIP() << "this Qt has no GBK codec";
    const std::string gbk = "\xd6\xd0\xce\xc4"; // 中文 in GBK
    EXPECT_EQ(ConvertToUnicode(gbk, "GBK"), QString::fromUtf16(u"\u4e2d\u6587"));
}

TEST(StringConvert, UnknownCodecFallsBackToUtf8)
{
    EXPECT_EQ(ConvertToUnicode("\xe4\xb8\xad", "no-such-codec"), QString::fromUtf16(u"\u4e2d"));
}
