#pragma once
// The emulator's own writer of device answers: a record is built once as a small tree and
// written as XML or JSON by the conventions of docs/protocol.md (root named after the
// record, fields in order, lists as a container of items named after the item record).
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace emulator {

class Record {
public:
    enum class Kind { Object, List, Text, Number, Bool };

    explicit Record(std::string name, Kind kind = Kind::Object) : m_name(std::move(name)), m_kind(kind) {}

    // Scalar fields; each returns *this so that fields chain.
    Record& text(const char* name, const std::string& value);
    Record& integer(const char* name, long long value);
    Record& real(const char* name, double value);
    Record& boolean(const char* name, bool value);
    // A 64-bit counter kept as decimal text on the wire.
    Record& counter(const char* name, uint64_t value);

    // A list field; items are added on the returned list.
    Record& list(const char* name);
    // An item record of a list (named after its record).
    Record& item(const char* recordName);
    // Plain values of a list ("<item>" in XML).
    Record& plainInteger(long long value);
    Record& plainText(const std::string& value);
    Record& plainBoolean(bool value);
    // A nested record field.
    Record& object(const char* name);

    const std::string& name() const { return m_name; }
    Kind kind() const { return m_kind; }
    const std::string& value() const { return m_value; }
    // Children keep their addresses while more are added (each on its own allocation).
    const std::vector<std::unique_ptr<Record>>& children() const { return m_children; }

    std::string toXml() const;
    std::string toJson() const;
    // The record's own object (or array) without the root key, for envelopes.
    std::string toJsonValue() const;

private:
    Record& addScalar(const char* name, Kind kind, std::string value);

    std::string m_name;
    Kind m_kind;
    std::string m_value;
    std::vector<std::unique_ptr<Record>> m_children;
};

// Decimal text of a float with a point and at most three decimals ("12.5", "3.0").
std::string formatReal(double value);
std::string xmlEscape(const std::string& text);
std::string jsonEscape(const std::string& text);

} // namespace emulator
