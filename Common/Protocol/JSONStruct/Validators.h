#pragma once
// Checks that request records run in validate(). Each returns false at the first problem
// and leaves one message in `error`; those marked so clear `error` before they test.
#include <cstdint>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include "JSONStruct/IJSONStruct.h"

namespace protocol {

// `value` is one of `allowed`. Clears `error`.
bool checkEnumValue(std::string& error, const std::string& key, int32_t value, const std::set<int32_t>& allowed);
bool checkEnumValue(std::string& error, const std::string& key, const std::string& value,
                    const std::set<std::string>& allowed);

// The list has an element. Clears `error`.
bool checkListNotEmpty(std::string& error, const std::string& key, const std::vector<std::string>& list);
bool checkListNotEmpty(std::string& error, const std::string& key, const std::vector<int32_t>& list);

// `value` isn't empty. Clears `error`.
bool checkStringNotEmpty(std::string& error, const std::string& key, const std::string& value);

namespace detail {
bool checkRangeInt(std::string& error, const std::string& key, int value, int min, int max);
template <class T>
struct Same {
    using Type = T;
};
} // namespace detail

// min <= value <= max, for 32-bit and for signed 8-bit integers. Leaves `error` alone on success.
template <class T>
bool checkRange(std::string& error, const std::string& key, const T& value, const typename detail::Same<T>::Type& min,
                const typename detail::Same<T>::Type& max)
{
    static_assert(std::is_same_v<T, int32_t> || std::is_same_v<T, int8_t>,
                  "checkRange takes 32-bit or signed 8-bit integers");
    return detail::checkRangeInt(error, key, value, min, max);
}

// `key` is among the keys that fromJSON found; `required` false fails without a message.
// Clears `error`.
bool checkFieldExists(std::string& error, const IJSONStruct& record, const std::string& key, bool required);
// Every one of `keys` was found; the message names the first one missing. Clears `error`.
bool checkAllFieldsExist(std::string& error, const IJSONStruct& record, const std::vector<std::string>& keys);
// At least one key was found. Clears `error`.
bool checkAnyFieldExists(std::string& error, const IJSONStruct& record);

// Not empty, and the whole of `value`, in the locale's encoding, matches `pattern`
// (ECMAScript grammar). Clears `error`.
bool checkFormat(std::string& error, const std::string& key, const std::string& value, const std::string& pattern);
// `value` holds none of the characters a name may not hold. Leaves `error` alone on success.
bool checkNoInvalidChar(std::string& error, const std::string& key, const std::string& value);
// A name: not empty, no invalid character, at most 32 bytes in the locale's encoding.
// Clears `error`.
bool checkName(std::string& error, const std::string& key, const std::string& value);

// ---- Checks of fields that a request may leave out -------------------------------------

// Runs `check` (a callable returning bool, which fills `error`) only when `key` was in the
// document; a field that never came passes and leaves `error` alone.
template <class Check>
bool checkIfPresent(const IJSONStruct& record, const std::string& key, Check&& check)
{
    return record.presentKeys.count(key) == 0 || check();
}

// Checks shared by the command and status requests.

// A list that must have been sent and must hold an element: "<key> field not exist!",
// then "<key> can't be empty!". Clears `error`.
bool checkListSentAndNotEmpty(std::string& error, const IJSONStruct& record, const std::string& key,
                              const std::vector<std::string>& list);
bool checkListSentAndNotEmpty(std::string& error, const IJSONStruct& record, const std::string& key,
                              const std::vector<int32_t>& list);
// A command to a list of targets, checked in this order: `cmdKey` was sent, `cmd` isn't
// empty, `cmd` is one of `allowed` (compared exactly), then checkListSentAndNotEmpty of
// the targets. Clears `error`.
bool checkCommand(std::string& error, const IJSONStruct& record, const std::string& cmdKey, const std::string& cmd,
                  const std::set<std::string>& allowed, const std::string& listKey,
                  const std::vector<std::string>& list);
bool checkCommand(std::string& error, const IJSONStruct& record, const std::string& cmdKey, const std::string& cmd,
                  const std::set<std::string>& allowed, const std::string& listKey, const std::vector<int32_t>& list);
// checkFormat of `value` when `key` was sent; true when it wasn't. Clears `error`.
bool checkFormatIfSent(std::string& error, const IJSONStruct& record, const std::string& key,
                       const std::string& value, const std::string& pattern);

} // namespace protocol
