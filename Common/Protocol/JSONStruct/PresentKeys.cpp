#include "JSONStruct/PresentKeys.h"

#include <thread>

namespace protocol {

PresentKeys::PresentKeys(const PresentKeys& other)
{
    copyFrom(other);
}

PresentKeys::PresentKeys(PresentKeys&& other) noexcept
{
    takeFrom(other);
}

PresentKeys& PresentKeys::operator=(const PresentKeys& other)
{
    if (this != &other)
        copyFrom(other);
    return *this;
}

PresentKeys& PresentKeys::operator=(PresentKeys&& other) noexcept
{
    if (this != &other)
        takeFrom(other);
    return *this;
}

PresentKeys& PresentKeys::operator=(const Set& keys)
{
    m_keys = keys;
    dropBits();
    return *this;
}

PresentKeys& PresentKeys::operator=(Set&& keys) noexcept
{
    m_keys = std::move(keys);
    dropBits();
    return *this;
}

PresentKeys& PresentKeys::operator=(std::initializer_list<value_type> keys)
{
    m_keys = keys;
    dropBits();
    return *this;
}

void PresentKeys::clear() noexcept
{
    m_keys.clear();
    dropBits();
}

void PresentKeys::swap(PresentKeys& other) noexcept
{
    m_keys.swap(other.m_keys);
    std::swap(m_names, other.m_names);
    for (size_t word = 0; word < kWords; ++word)
        std::swap(m_bits[word], other.m_bits[word]);
    const uint8_t state = m_state.load(std::memory_order_relaxed);
    m_state.store(other.m_state.load(std::memory_order_relaxed), std::memory_order_relaxed);
    other.m_state.store(state, std::memory_order_relaxed);
}

void PresentKeys::settleSlow() const
{
    for (;;) {
        uint8_t state = m_state.load(std::memory_order_acquire);
        if (state == kSettled)
            return;
        if (state == kPending) {
            if (!m_state.compare_exchange_weak(state, kBusy, std::memory_order_acquire, std::memory_order_relaxed))
                continue;
            try {
                buildPending();
            } catch (...) {
                // The bits stay; a later look inserts them again, which a set takes in its stride.
                m_state.store(kPending, std::memory_order_release);
                throw;
            }
            m_state.store(kSettled, std::memory_order_release);
            return;
        }
        // Another thread builds the set or copies the pending state: a few hundred
        // insertions at most.
        std::this_thread::yield();
    }
}

void PresentKeys::noteBeyondBits(const char* const* names, size_t index)
{
    mutableKeys().emplace(names[index]);
}

void PresentKeys::buildPending() const
{
    size_t pending = 0;
    for (size_t word = 0; word < kWords; ++word)
        pending += static_cast<size_t>(__builtin_popcountll(m_bits[word]));
    if (pending == 0)
        return;
    m_keys.reserve(m_keys.size() + pending);
    for (size_t word = 0; word < kWords; ++word) {
        for (uint64_t bits = m_bits[word]; bits != 0; bits &= bits - 1)
            m_keys.emplace(m_names[word * 64 + static_cast<size_t>(__builtin_ctzll(bits))]);
    }
    for (size_t word = 0; word < kWords; ++word)
        m_bits[word] = 0;
}

void PresentKeys::copyFrom(const PresentKeys& other)
{
    for (;;) {
        uint8_t state = other.m_state.load(std::memory_order_acquire);
        if (state == kSettled) {
            m_keys = other.m_keys;
            m_names = other.m_names;
            dropBits();
            return;
        }
        if (state == kPending) {
            // Held busy while copying, so that a reader of `other` does not build its set
            // from the bits under our feet; the bits are copied, not built, as a copy of a
            // record just read is often never looked at.
            if (!other.m_state.compare_exchange_weak(state, kBusy, std::memory_order_acquire,
                                                     std::memory_order_relaxed))
                continue;
            try {
                m_keys = other.m_keys;
            } catch (...) {
                other.m_state.store(kPending, std::memory_order_release);
                throw;
            }
            m_names = other.m_names;
            for (size_t word = 0; word < kWords; ++word)
                m_bits[word] = other.m_bits[word];
            other.m_state.store(kPending, std::memory_order_release);
            m_state.store(kPending, std::memory_order_relaxed);
            return;
        }
        std::this_thread::yield();
    }
}

void PresentKeys::takeFrom(PresentKeys& other) noexcept
{
    m_keys = std::move(other.m_keys);
    m_names = other.m_names;
    for (size_t word = 0; word < kWords; ++word)
        m_bits[word] = other.m_bits[word];
    m_state.store(other.m_state.load(std::memory_order_relaxed), std::memory_order_relaxed);
    other.m_keys.clear();
    other.dropBits();
}

void PresentKeys::dropBits() noexcept
{
    resetBits();
    m_state.store(kSettled, std::memory_order_relaxed);
}

void PresentKeys::resetBits() noexcept
{
    for (size_t word = 0; word < kWords; ++word)
        m_bits[word] = 0;
}

} // namespace protocol
