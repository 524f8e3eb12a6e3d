#include "Plinth/Error.h"

#include <gtest/gtest.h>
#include <thread>

namespace {

TEST(ErrorTest, NoErrorIsZeroZero)
{
    Plinth::Error::ClearLastError();
    const Plinth::Error::ErrorCode error = Plinth::Error::GetLastError();
    EXPECT_FALSE(error.isError());
    EXPECT_EQ(error.module, 0);
    EXPECT_EQ(error.code, 0);
    EXPECT_EQ(error.toString(), "0-0");
}

TEST(ErrorTest, LastErrorKeepsNumbersAndText)
{
    Plinth::Error::SetLastError(2, 404, "HTTP/1.1 404 Not Found");
    Plinth::Error::ErrorCode error = Plinth::Error::GetLastError();
    EXPECT_TRUE(error.isError());
    EXPECT_EQ(error.module, 2);
    EXPECT_EQ(error.code, 404);
    EXPECT_EQ(error.text, "HTTP/1.1 404 Not Found");
    EXPECT_EQ(error.toString(), "2-404");

    Plinth::Error::ErrorCode negative;
    negative.module = -1;
    negative.code = -28;
    Plinth::Error::SetLastError(negative);
    EXPECT_EQ(Plinth::Error::GetLastError().toString(), "-1--28");

    Plinth::Error::ClearLastError();
    EXPECT_FALSE(Plinth::Error::GetLastError().isError());
    EXPECT_TRUE(Plinth::Error::GetLastError().text.empty());
}

TEST(ErrorTest, LastErrorBelongsToItsThread)
{
    Plinth::Error::SetLastError(1, 7, "main");
    Plinth::Error::ErrorCode seenInOther;
    Plinth::Error::ErrorCode setInOther;
    std::thread other([&] {
        seenInOther = Plinth::Error::GetLastError();
        Plinth::Error::SetLastError(3, 0, "other");
        setInOther = Plinth::Error::GetLastError();
    });
    other.join();

    EXPECT_FALSE(seenInOther.isError());
    EXPECT_EQ(setInOther.toString(), "3-0");
    const Plinth::Error::ErrorCode mine = Plinth::Error::GetLastError();
    EXPECT_EQ(mine.toString(), "1-7");
    EXPECT_EQ(mine.text, "main");
    Plinth::Error::ClearLastError();
}

} // namespace
