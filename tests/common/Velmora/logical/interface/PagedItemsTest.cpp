// The pages of a walk reach the caller's list whole and in order, after what it held.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "logical/interface/PagedItems.h"

namespace {

using velmora::PagedItems;

std::vector<std::string> page(int first, int count)
{
    std::vector<std::string> items;
    for (int i = first; i < first + count; ++i) {
        items.push_back("item-" + std::to_string(i) + "-with-a-text-longer-than-the-small-buffer");
    }
    return items;
}

std::vector<std::string> expectedRange(int first, int count) { return page(first, count); }

TEST(PagedItemsTest, PagesArriveInTheOrderTheyCame)
{
    std::vector<std::string> output;
    PagedItems<std::string> pages(output);
    for (int p = 0; p < 8; ++p) {
        std::vector<std::string> items = page(p * 125, 125);
        pages.add(items);
        EXPECT_TRUE(items.empty());
    }
    EXPECT_TRUE(output.empty()); // nothing moves before the walk ends
    pages.flush();
    EXPECT_EQ(output, expectedRange(0, 1000));
}

TEST(PagedItemsTest, ItemsGoAfterWhatTheListHeld)
{
    std::vector<std::string> output = {"kept"};
    PagedItems<std::string> pages(output);
    std::vector<std::string> first = page(0, 3);
    std::vector<std::string> second = page(3, 2);
    pages.add(first);
    pages.add(second);
    pages.flush();
    std::vector<std::string> expected = {"kept"};
    for (const std::string& item : expectedRange(0, 5)) {
        expected.push_back(item);
    }
    EXPECT_EQ(output, expected);
}

TEST(PagedItemsTest, OnePageBecomesTheListWithoutAMove)
{
    std::vector<std::string> output;
    PagedItems<std::string> pages(output);
    std::vector<std::string> only = page(0, 50);
    const std::string* block = only.data();
    pages.add(only);
    pages.flush();
    EXPECT_EQ(output.data(), block);
    EXPECT_EQ(output, expectedRange(0, 50));
}

TEST(PagedItemsTest, EmptyPagesAndRepeatedFlushesChangeNothing)
{
    std::vector<std::string> output;
    PagedItems<std::string> pages(output);
    std::vector<std::string> none;
    pages.add(none);
    pages.flush();
    EXPECT_TRUE(output.empty());

    std::vector<std::string> first = page(0, 2);
    pages.add(first);
    pages.flush();
    pages.flush();
    EXPECT_EQ(output, expectedRange(0, 2));

    std::vector<std::string> second = page(2, 2);
    pages.add(none);
    pages.add(second);
    pages.flush();
    EXPECT_EQ(output, expectedRange(0, 4));
}

TEST(PagedItemsTest, ItemsThatOnlyMoveAreMovedNotCopied)
{
    std::vector<std::unique_ptr<int>> output;
    PagedItems<std::unique_ptr<int>> pages(output);
    for (int p = 0; p < 3; ++p) {
        std::vector<std::unique_ptr<int>> items;
        items.push_back(std::make_unique<int>(p * 2));
        items.push_back(std::make_unique<int>(p * 2 + 1));
        pages.add(items);
    }
    pages.flush();
    ASSERT_EQ(output.size(), 6u);
    for (int i = 0; i < 6; ++i) {
        ASSERT_NE(output[static_cast<std::size_t>(i)], nullptr);
        EXPECT_EQ(*output[static_cast<std::size_t>(i)], i);
    }
}

} // namespace
