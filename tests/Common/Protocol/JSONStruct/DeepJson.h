#pragma once
// Deeply nested JSON texts for the record tests, and a run of a check on a pool thread with
// the small stack that such a thread may have.
#include <QThreadPool>

#include <cstddef>
#include <functional>
#include <string>

namespace recordtest {

// A stack as small as a pool thread of the client may get.
constexpr int kSmallStack = 512 * 1024;

// `depth` arrays, one inside the other.
inline std::string nestedArrays(std::size_t depth)
{
    return std::string(depth, '[') + std::string(depth, ']');
}

// `depth` objects, each the value of the key "a" of the one around it, the innermost empty.
inline std::string nestedObjects(std::size_t depth)
{
    std::string text;
    text.reserve(depth * 7);
    for (std::size_t i = 1; i < depth; ++i)
        text += "{\"a\":";
    text += "{}";
    text.append(depth - 1, '}');
    return depth == 0 ? std::string() : text;
}

// A service answer whose "data" is `value`: the whole text is one level deeper than `value`.
inline std::string answerWithData(const std::string& value)
{
    return "{\"code\":\"3-4\",\"msg\":\"deep\",\"data\":" + value + "}";
}

// Runs `check` on a thread of a pool whose threads have a stack of `stackSize` bytes, and
// waits for it.
inline void runOnPoolThread(const std::function<void()>& check, int stackSize = kSmallStack)
{
    QThreadPool pool;
    pool.setStackSize(static_cast<uint>(stackSize));
    pool.start(check);
    pool.waitForDone();
}

} // namespace recordtest
