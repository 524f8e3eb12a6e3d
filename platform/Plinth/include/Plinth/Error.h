#pragma once
#include <cstdint>
#include <string>

namespace Plinth {
namespace Error {

// Two numbers and a text; zero in both numbers is no error. Text form "module-code".
struct ErrorCode {
    int32_t module = 0;
    int32_t code = 0;
    std::string text;

    bool isError() const { return module != 0 || code != 0; }
    std::string toString() const; // "module-code"
};

// The last error of the calling thread; each thread has its own.
ErrorCode GetLastError();
void SetLastError(const ErrorCode& error);
void SetLastError(int32_t module, int32_t code, const std::string& text = std::string());
void ClearLastError();

} // namespace Error
} // namespace Plinth
