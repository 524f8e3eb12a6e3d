#pragma once

namespace Plinth {

// Process-wide instance of T, constructed on first use (thread-safe static init).
template <typename T>
class CSingleton {
public:
    static T& Instance()
    {
        static T instance;
        return instance;
    }

    CSingleton() = delete;
};

} // namespace Plinth
