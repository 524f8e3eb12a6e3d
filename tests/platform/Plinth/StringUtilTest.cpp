#include "Plinth/StringUtil.h"

#include <clocale>
#include <gtest/gtest.h>
#include <string>

namespace {

TEST(StringUtilTest, FormatStringKeepsLongTextWhole)
{
    std::string big;
    for (int i = 0; big.size() < 150 * 1024; ++i)
        big += "<port><id>" + std::to_string(i) + "</id><status>up</status></port>";
    const std::string formatted = Plinth::StringUtil::FormatString("Get Switch Device Status:[%s].", big.c_str());
    EXPECT_EQ(formatted, "Get Switch Device Status:[" + big + "].");
}

TEST(StringUtilTest, FormatStringFormatsNumbersAndEmptyText)
{
    EXPECT_EQ(Plinth::StringUtil::FormatString("Error code is %d-%d.", 1, 7), "Error code is 1-7.");
    EXPECT_EQ(Plinth::StringUtil::FormatString("%s", ""), "");
    EXPECT_EQ(Plinth::StringUtil::FormatString("%s|%u|%.2f", "x", 42u, 1.5), "x|42|1.50");
}

TEST(StringUtilTest, EraseInvalidCharRemovesForbiddenCharacters)
{
    EXPECT_EQ(Plinth::StringUtil::StringEraseInvalidChar("a\\b/c:d*e?f\"g<h>i|j"), "abcdefghij");
    EXPECT_EQ(Plinth::StringUtil::StringEraseInvalidChar("\xE2\x80\x9C" "name" "\xE2\x80\x9D"), "name");
    EXPECT_EQ(Plinth::StringUtil::StringEraseInvalidChar("Core-Switch_01 (B2)"), "Core-Switch_01 (B2)");
    EXPECT_EQ(Plinth::StringUtil::StringEraseInvalidChar(""), "");
}

TEST(StringUtilTest, EraseInvalidCharKeepsOtherUtf8Text)
{
    // U+5E01 (E5 B8 81) and U+2018 (E2 80 98) share leading bytes with the removed quotes.
    const std::string text = "\xE4\xBA\xA4\xE6\x8D\xA2\xE6\x9C\xBA\xE5\xB8\x81\xE2\x80\x98";
    EXPECT_EQ(Plinth::StringUtil::StringEraseInvalidChar(text), text);
    EXPECT_EQ(Plinth::StringUtil::StringEraseInvalidChar(text + "/" + text), text + text);
}

TEST(StringUtilTest, UTF8ToLocalIsIdentityInUtf8Locale)
{
    const std::string saved = std::setlocale(LC_CTYPE, nullptr);
    ASSERT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr);
    const std::string text = "\xE4\xBA\xA4\xE6\x8D\xA2\xE6\x9C\xBA-01";
    EXPECT_EQ(Plinth::UTF8ToLocal(text), text);
    std::setlocale(LC_CTYPE, saved.c_str());
}

TEST(StringUtilTest, UTF8ToLocalConvertsToAsciiLocaleAndKeepsTextThatDoesNotFit)
{
    const std::string saved = std::setlocale(LC_CTYPE, nullptr);
    ASSERT_NE(std::setlocale(LC_CTYPE, "C"), nullptr);
    EXPECT_EQ(Plinth::UTF8ToLocal("Switch-24G"), "Switch-24G");
    // Not representable in ASCII: the text comes back unchanged rather than cut.
    const std::string text = "AP-\xE4\xBA\xA4";
    EXPECT_EQ(Plinth::UTF8ToLocal(text), text);
    EXPECT_EQ(Plinth::UTF8ToLocal(""), "");
    std::setlocale(LC_CTYPE, saved.c_str());
}

} // namespace
