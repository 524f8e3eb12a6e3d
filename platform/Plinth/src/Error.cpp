// The last error of each thread, kept apart so that parallel queries never see each other's.
#include "Plinth/Error.h"

namespace Plinth {
namespace Error {

namespace {
thread_local ErrorCode t_lastError;
}

std::string ErrorCode::toString() const
{
    return std::to_string(module) + "-" + std::to_string(code);
}

ErrorCode GetLastError()
{
    return t_lastError;
}

void SetLastError(const ErrorCode& error)
{
    t_lastError = error;
}

void SetLastError(int32_t module, int32_t code, const std::string& text)
{
    t_lastError.module = module;
    t_lastError.code = code;
    t_lastError.text = text;
}

void ClearLastError()
{
    t_lastError = ErrorCode();
}

} // namespace Error
} // namespace Plinth
