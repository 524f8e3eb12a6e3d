#pragma once
// Reader of the IEEE registry's CSV listing (Registry,Assignment,Organization Name,
// Organization Address): RFC 4180 quoting, quoted fields may span lines, CRLF or LF rows.
// Shared by the table generator and the tests that check the table against the listing.

#include <cctype>
#include <cstdint>
#include <istream>
#include <iterator>
#include <string>
#include <vector>

namespace Quillon {
namespace ouicsv {

struct OuiRecord {
    std::uint32_t oui = 0; // 0xAABBCC for assignment "AABBCC"
    std::string name;      // tidied, see tidyName()
};

// Splits CSV text into rows of fields.
inline std::vector<std::vector<std::string>> splitCsv(const std::string& text)
{
    std::vector<std::vector<std::string>> rows;
    std::vector<std::string> row;
    std::string field;
    bool quoted = false;
    bool rowHasData = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (quoted) {
            if (c == '"') {
                if (i + 1 < text.size() && text[i + 1] == '"') {
                    field += '"';
                    ++i;
                } else {
                    quoted = false;
                }
            } else {
                field += c;
            }
            continue;
        }
        switch (c) {
        case '"':
            quoted = true;
            rowHasData = true;
            break;
        case ',':
            row.push_back(field);
            field.clear();
            rowHasData = true;
            break;
        case '\r':
            break; // the \n that follows ends the row
        case '\n':
            if (rowHasData || !field.empty()) {
                row.push_back(field);
                rows.push_back(row);
            }
            row.clear();
            field.clear();
            rowHasData = false;
            break;
        default:
            field += c;
            rowHasData = true;
            break;
        }
    }
    if (rowHasData || !field.empty()) {
        row.push_back(field);
        rows.push_back(row);
    }
    return rows;
}

// A name as shown: line breaks and tabs become blanks, and blanks at either end go.
inline std::string tidyName(std::string name)
{
    for (char& c : name) {
        if (c == '\r' || c == '\n' || c == '\t')
            c = ' ';
    }
    const std::size_t first = name.find_first_not_of(' ');
    if (first == std::string::npos)
        return std::string();
    const std::size_t last = name.find_last_not_of(' ');
    return name.substr(first, last - first + 1);
}

// The assignment as a number, or false when it isn't six hexadecimal digits (the header
// row and rows of longer assignments).
inline bool parseAssignment(const std::string& assignment, std::uint32_t& oui)
{
    if (assignment.size() != 6)
        return false;
    std::uint32_t value = 0;
    for (char c : assignment) {
        if (!std::isxdigit(static_cast<unsigned char>(c)))
            return false;
        const int digit = std::isdigit(static_cast<unsigned char>(c))
                              ? c - '0'
                              : std::tolower(static_cast<unsigned char>(c)) - 'a' + 10;
        value = (value << 4) | static_cast<std::uint32_t>(digit);
    }
    oui = value;
    return true;
}

// Every row with a six-digit assignment and a name, in file order; duplicates are kept.
inline std::vector<OuiRecord> readOuiCsv(std::istream& in)
{
    const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    std::vector<OuiRecord> records;
    for (const std::vector<std::string>& row : splitCsv(text)) {
        OuiRecord record;
        if (row.size() < 3 || !parseAssignment(row[1], record.oui))
            continue;
        record.name = tidyName(row[2]);
        if (record.name.empty())
            continue;
        records.push_back(record);
    }
    return records;
}

} // namespace ouicsv
} // namespace Quillon
