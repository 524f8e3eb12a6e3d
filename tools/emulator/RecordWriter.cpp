#include "RecordWriter.h"

#include <cmath>
#include <cstdio>

namespace emulator {

Record& Record::addScalar(const char* name, Kind kind, std::string value)
{
    m_children.push_back(std::make_unique<Record>(name, kind));
    m_children.back()->m_value = std::move(value);
    return *this;
}

Record& Record::text(const char* name, const std::string& value) { return addScalar(name, Kind::Text, value); }
Record& Record::integer(const char* name, long long value) { return addScalar(name, Kind::Number, std::to_string(value)); }
Record& Record::real(const char* name, double value) { return addScalar(name, Kind::Number, formatReal(value)); }
Record& Record::boolean(const char* name, bool value) { return addScalar(name, Kind::Bool, value ? "true" : "false"); }
Record& Record::counter(const char* name, uint64_t value) { return addScalar(name, Kind::Text, std::to_string(value)); }

Record& Record::list(const char* name)
{
    m_children.push_back(std::make_unique<Record>(name, Kind::List));
    return *m_children.back();
}

Record& Record::item(const char* recordName)
{
    m_children.push_back(std::make_unique<Record>(recordName, Kind::Object));
    return *m_children.back();
}

Record& Record::object(const char* name)
{
    m_children.push_back(std::make_unique<Record>(name, Kind::Object));
    return *m_children.back();
}

Record& Record::plainInteger(long long value) { return addScalar("item", Kind::Number, std::to_string(value)); }
Record& Record::plainText(const std::string& value) { return addScalar("item", Kind::Text, value); }
Record& Record::plainBoolean(bool value) { return addScalar("item", Kind::Bool, value ? "true" : "false"); }

std::string formatReal(double value)
{
    if (!std::isfinite(value))
        value = 0.0;
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.3f", value);
    std::string text(buffer);
    while (text.size() > 1 && text.back() == '0' && text[text.size() - 2] != '.')
        text.pop_back();
    if (text == "-0.0")
        text = "0.0";
    return text;
}

std::string xmlEscape(const std::string& text)
{
    std::string out;
    out.reserve(text.size());
    for (char c : text) {
        switch (c) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '"': out += "&quot;"; break;
        case '\'': out += "&apos;"; break;
        default: out += c;
        }
    }
    return out;
}

std::string jsonEscape(const std::string& text)
{
    std::string out;
    out.reserve(text.size() + 2);
    for (unsigned char c : text) {
        switch (c) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\r': out += "\\r"; break;
        case '\t': out += "\\t"; break;
        default:
            if (c < 0x20) {
                char buffer[8];
                std::snprintf(buffer, sizeof buffer, "\\u%04x", c);
                out += buffer;
            } else {
                out += static_cast<char>(c);
            }
        }
    }
    return out;
}

namespace {

void writeXml(const Record& r, std::string& out, int depth)
{
    const std::string indent(static_cast<size_t>(depth) * 2, ' ');
    out += indent;
    out += '<';
    out += r.name();
    if (r.kind() == Record::Kind::Object || r.kind() == Record::Kind::List) {
        if (r.children().empty()) {
            out += "/>\n";
            return;
        }
        out += ">\n";
        for (const auto& c : r.children())
            writeXml(*c, out, depth + 1);
        out += indent;
    } else {
        out += '>';
        out += xmlEscape(r.value());
    }
    out += "</";
    out += r.name();
    out += ">\n";
}

void writeJsonValue(const Record& r, std::string& out, int depth);

void writeJsonMembers(const Record& r, std::string& out, int depth)
{
    const std::string indent(static_cast<size_t>(depth) * 2, ' ');
    const bool isList = r.kind() == Record::Kind::List;
    out += isList ? '[' : '{';
    bool first = true;
    for (const auto& c : r.children()) {
        out += first ? "\n" : ",\n";
        first = false;
        out += indent;
        out += "  ";
        if (!isList) {
            out += '"';
            out += jsonEscape(c->name());
            out += "\": ";
        }
        writeJsonValue(*c, out, depth + 1);
    }
    if (!first) {
        out += '\n';
        out += indent;
    }
    out += isList ? ']' : '}';
}

void writeJsonValue(const Record& r, std::string& out, int depth)
{
    switch (r.kind()) {
    case Record::Kind::Object:
    case Record::Kind::List:
        writeJsonMembers(r, out, depth);
        break;
    case Record::Kind::Text:
        out += '"';
        out += jsonEscape(r.value());
        out += '"';
        break;
    case Record::Kind::Number:
    case Record::Kind::Bool:
        out += r.value();
        break;
    }
}

} // namespace

std::string Record::toXml() const
{
    std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    writeXml(*this, out, 0);
    return out;
}

std::string Record::toJsonValue() const
{
    std::string out;
    writeJsonValue(*this, out, 0);
    return out;
}

std::string Record::toJson() const
{
    std::string out = "{\n  \"";
    out += jsonEscape(m_name);
    out += "\": ";
    writeJsonValue(*this, out, 1);
    out += "\n}\n";
    return out;
}

} // namespace emulator
