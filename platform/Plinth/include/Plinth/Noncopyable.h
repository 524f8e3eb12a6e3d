#pragma once

namespace Plinth {

// Derive privately or publicly to forbid copying and assignment.
class CNoncopyable {
protected:
    CNoncopyable() = default;
    ~CNoncopyable() = default;

public:
    CNoncopyable(const CNoncopyable&) = delete;
    CNoncopyable& operator=(const CNoncopyable&) = delete;
};

} // namespace Plinth
