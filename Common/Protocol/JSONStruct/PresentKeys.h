#pragma once
// The keys that a record's fromJSON found, with the interface of the
// std::unordered_set<std::string> that it stands for.
//
// Reading a record notes each field it finds as one bit over the record's static table of
// names; the set of strings is built from those bits only when someone looks. A list of a
// thousand records is then read without one string or hash node per key, while every
// reader still sees a plain set. Names past the bit capacity, and keys inserted by hand,
// go straight into the set.
//
// Const access is as safe from several threads as on a const std::unordered_set: the
// first look that finds bits pending builds the set under a flag that the others wait on,
// and once built a look costs one atomic load.
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <unordered_set>
#include <utility>

namespace protocol {

class PresentKeys {
public:
    using Set = std::unordered_set<std::string>;
    using key_type = Set::key_type;
    using value_type = Set::value_type;
    using size_type = Set::size_type;
    using difference_type = Set::difference_type;
    using hasher = Set::hasher;
    using key_equal = Set::key_equal;
    using allocator_type = Set::allocator_type;
    using reference = Set::reference;
    using const_reference = Set::const_reference;
    using pointer = Set::pointer;
    using const_pointer = Set::const_pointer;
    using iterator = Set::iterator;
    using const_iterator = Set::const_iterator;

    // Names with an index below this are noted as bits; the largest record has 113 fields.
    static constexpr size_t kBitCapacity = 128;

    PresentKeys() noexcept = default;
    PresentKeys(const Set& keys) : m_keys(keys) {}
    PresentKeys(Set&& keys) noexcept : m_keys(std::move(keys)) {}
    PresentKeys(std::initializer_list<value_type> keys) : m_keys(keys) {}
    PresentKeys(const PresentKeys& other);
    PresentKeys(PresentKeys&& other) noexcept;
    ~PresentKeys() = default;

    PresentKeys& operator=(const PresentKeys& other);
    PresentKeys& operator=(PresentKeys&& other) noexcept;
    PresentKeys& operator=(const Set& keys);
    PresentKeys& operator=(Set&& keys) noexcept;
    PresentKeys& operator=(std::initializer_list<value_type> keys);

    // The set itself, built first if reading left names pending.
    const Set& keys() const
    {
        settle();
        return m_keys;
    }
    operator const Set&() const { return keys(); }

    bool empty() const { return keys().empty(); }
    size_type size() const { return keys().size(); }
    size_type count(const key_type& key) const { return keys().count(key); }
    const_iterator find(const key_type& key) const { return keys().find(key); }
    iterator find(const key_type& key) { return mutableKeys().find(key); }
    const_iterator begin() const { return keys().begin(); }
    const_iterator end() const { return keys().end(); }
    const_iterator cbegin() const { return keys().cbegin(); }
    const_iterator cend() const { return keys().cend(); }
    iterator begin() { return mutableKeys().begin(); }
    iterator end() { return mutableKeys().end(); }

    std::pair<iterator, bool> insert(const value_type& key) { return mutableKeys().insert(key); }
    std::pair<iterator, bool> insert(value_type&& key) { return mutableKeys().insert(std::move(key)); }
    iterator insert(const_iterator hint, const value_type& key) { return mutableKeys().insert(hint, key); }
    template <class InputIt>
    void insert(InputIt first, InputIt last)
    {
        mutableKeys().insert(first, last);
    }
    void insert(std::initializer_list<value_type> keys) { mutableKeys().insert(keys); }
    template <class... Args>
    std::pair<iterator, bool> emplace(Args&&... args)
    {
        return mutableKeys().emplace(std::forward<Args>(args)...);
    }
    size_type erase(const key_type& key) { return mutableKeys().erase(key); }
    iterator erase(const_iterator position) { return mutableKeys().erase(position); }
    iterator erase(const_iterator first, const_iterator last) { return mutableKeys().erase(first, last); }
    void clear() noexcept;
    void reserve(size_type count) { mutableKeys().reserve(count); }
    void swap(PresentKeys& other) noexcept;

    // Notes names[index] as found. `names` is a table that lives for the whole run; a
    // record notes all its fields against one table. Called while reading, so, like
    // insert, not at the same time as any other access.
    void noteFound(const char* const* names, size_t index)
    {
        if (index >= kBitCapacity) {
            noteBeyondBits(names, index);
            return;
        }
        if (names != m_names) {
            if (m_names != nullptr)
                buildPending();
            m_names = names;
        }
        m_bits[index / 64] |= uint64_t{1} << (index % 64);
        m_state.store(kPending, std::memory_order_relaxed);
    }

    friend bool operator==(const PresentKeys& left, const PresentKeys& right) { return left.keys() == right.keys(); }
    friend bool operator!=(const PresentKeys& left, const PresentKeys& right) { return !(left == right); }
    friend bool operator==(const PresentKeys& left, const Set& right) { return left.keys() == right; }
    friend bool operator!=(const PresentKeys& left, const Set& right) { return !(left == right); }
    friend bool operator==(const Set& left, const PresentKeys& right) { return left == right.keys(); }
    friend bool operator!=(const Set& left, const PresentKeys& right) { return !(left == right); }
    friend void swap(PresentKeys& left, PresentKeys& right) noexcept { left.swap(right); }

private:
    enum State : uint8_t {
        kSettled,  // m_keys holds every key; no bit is set
        kPending,  // bits are set that m_keys does not yet hold
        kBusy,     // one thread builds m_keys or copies the pending state; others wait
    };
    static constexpr size_t kWords = kBitCapacity / 64;

    // Builds the set from the pending bits once, whichever of several readers comes first.
    void settle() const
    {
        if (m_state.load(std::memory_order_acquire) != kSettled)
            settleSlow();
    }
    void settleSlow() const;
    // A name past the bits goes straight into the set.
    void noteBeyondBits(const char* const* names, size_t index);
    // Moves the pending bits into the set; the caller has the object to itself.
    void buildPending() const;
    Set& mutableKeys()
    {
        settle();
        return m_keys;
    }
    // Takes the other's keys, pending bits and table as they stand.
    void copyFrom(const PresentKeys& other);
    // The same from a record that is being moved from, which is left empty.
    void takeFrom(PresentKeys& other) noexcept;
    // Forgets the pending bits: m_keys is now the whole set.
    void dropBits() noexcept;
    void resetBits() noexcept;

    mutable Set m_keys;
    const char* const* m_names = nullptr;  // the table that the bits index
    mutable uint64_t m_bits[kWords] = {};
    mutable std::atomic<uint8_t> m_state{kSettled};
};

} // namespace protocol
