#include "JSONStruct/Validators.h"

#include <regex>

#include "Plinth/StringUtil.h"

namespace protocol {

namespace {

// The longest name, in characters of the locale's encoding.
constexpr int kMaxNameLength = 32;

// The sixth character between the brackets is the opening typographic quote, kept in the
// GB2312 code page (bytes A1 B0) as the client has always sent it.
constexpr const char kInvalidCharFormat[] = "%s contain invalid char [/:*?\xA1\xB0<>|].";

template <class T>
bool isListed(std::string& error, const std::string& key, const T& value, const std::set<T>& allowed)
{
    error.clear();
    if (allowed.count(value) != 0)
        return true;
    error = Plinth::StringUtil::FormatString("Unknown %s value.", key.c_str());
    return false;
}

template <class List>
bool hasElement(std::string& error, const std::string& key, const List& list)
{
    error.clear();
    if (!list.empty())
        return true;
    error = Plinth::StringUtil::FormatString("%s can't be empty!", key.c_str());
    return false;
}

bool hasNoInvalidChar(std::string& error, const std::string& key, const std::string& value)
{
    if (Plinth::StringUtil::StringEraseInvalidChar(value) == value)
        return true;
    error = Plinth::StringUtil::FormatString(kInvalidCharFormat, key.c_str());
    return false;
}

} // namespace

bool checkEnumValue(std::string& error, const std::string& key, int32_t value, const std::set<int32_t>& allowed)
{
    return isListed(error, key, value, allowed);
}

bool checkEnumValue(std::string& error, const std::string& key, const std::string& value,
                    const std::set<std::string>& allowed)
{
    return isListed(error, key, value, allowed);
}

bool checkListNotEmpty(std::string& error, const std::string& key, const std::vector<std::string>& list)
{
    return hasElement(error, key, list);
}

bool checkListNotEmpty(std::string& error, const std::string& key, const std::vector<int32_t>& list)
{
    return hasElement(error, key, list);
}

bool checkStringNotEmpty(std::string& error, const std::string& key, const std::string& value)
{
    return hasElement(error, key, value);
}

namespace detail {

bool checkRangeInt(std::string& error, const std::string& key, int value, int min, int max)
{
    if (value < min) {
        error = Plinth::StringUtil::FormatString("%s is lesser than %d.", key.c_str(), min);
        return false;
    }
    if (value > max) {
        error = Plinth::StringUtil::FormatString("%s is greater than %d.", key.c_str(), max);
        return false;
    }
    return true;
}

} // namespace detail

bool checkFieldExists(std::string& error, const IJSONStruct& record, const std::string& key, bool required)
{
    error.clear();
    if (record.presentKeys.count(key) != 0)
        return true;
    if (required)
        error = Plinth::StringUtil::FormatString("%s field not exist!", key.c_str());
    return false;
}

bool checkAllFieldsExist(std::string& error, const IJSONStruct& record, const std::vector<std::string>& keys)
{
    error.clear();
    for (const std::string& key : keys) {
        if (record.presentKeys.count(key) == 0) {
            error = Plinth::StringUtil::FormatString("%s field not exist!", key.c_str());
            return false;
        }
    }
    return true;
}

bool checkAnyFieldExists(std::string& error, const IJSONStruct& record)
{
    error.clear();
    if (!record.presentKeys.empty())
        return true;
    error = "no field exist!";
    return false;
}

bool checkFormat(std::string& error, const std::string& key, const std::string& value, const std::string& pattern)
{
    if (!checkStringNotEmpty(error, key, value))
        return false;
    bool matches = false;
    try {
        matches = std::regex_match(Plinth::UTF8ToLocal(value), std::regex(pattern));
    } catch (const std::regex_error&) {
        // A pattern that doesn't compile matches nothing.
        matches = false;
    }
    if (matches)
        return true;
    error = Plinth::StringUtil::FormatString("%s not match format!", key.c_str());
    return false;
}

bool checkNoInvalidChar(std::string& error, const std::string& key, const std::string& value)
{
    return hasNoInvalidChar(error, key, value);
}

bool checkName(std::string& error, const std::string& key, const std::string& value)
{
    if (!checkStringNotEmpty(error, key, value))
        return false;
    if (!hasNoInvalidChar(error, key, value))
        return false;
    if (Plinth::UTF8ToLocal(value).size() < kMaxNameLength + 1)
        return true;
    error = Plinth::StringUtil::FormatString("%s length is greater than %d.", key.c_str(), kMaxNameLength);
    return false;
}

// Checks shared by the command and status requests.

namespace {

template <class List>
bool listSentAndNotEmpty(std::string& error, const IJSONStruct& record, const std::string& key, const List& list)
{
    return checkFieldExists(error, record, key, true) && checkListNotEmpty(error, key, list);
}

template <class List>
bool commandAndTargets(std::string& error, const IJSONStruct& record, const std::string& cmdKey,
                       const std::string& cmd, const std::set<std::string>& allowed, const std::string& listKey,
                       const List& list)
{
    return checkFieldExists(error, record, cmdKey, true) && checkStringNotEmpty(error, cmdKey, cmd)
        && checkEnumValue(error, cmdKey, cmd, allowed) && listSentAndNotEmpty(error, record, listKey, list);
}

} // namespace

bool checkListSentAndNotEmpty(std::string& error, const IJSONStruct& record, const std::string& key,
                              const std::vector<std::string>& list)
{
    return listSentAndNotEmpty(error, record, key, list);
}

bool checkListSentAndNotEmpty(std::string& error, const IJSONStruct& record, const std::string& key,
                              const std::vector<int32_t>& list)
{
    return listSentAndNotEmpty(error, record, key, list);
}

bool checkCommand(std::string& error, const IJSONStruct& record, const std::string& cmdKey, const std::string& cmd,
                  const std::set<std::string>& allowed, const std::string& listKey,
                  const std::vector<std::string>& list)
{
    return commandAndTargets(error, record, cmdKey, cmd, allowed, listKey, list);
}

bool checkCommand(std::string& error, const IJSONStruct& record, const std::string& cmdKey, const std::string& cmd,
                  const std::set<std::string>& allowed, const std::string& listKey, const std::vector<int32_t>& list)
{
    return commandAndTargets(error, record, cmdKey, cmd, allowed, listKey, list);
}

bool checkFormatIfSent(std::string& error, const IJSONStruct& record, const std::string& key,
                       const std::string& value, const std::string& pattern)
{
    if (!checkFieldExists(error, record, key, false))
        return true;
    return checkFormat(error, key, value, pattern);
}

} // namespace protocol
