#pragma once
// The records of docs/protocol.md as data: each record's fields in order with their wire
// types, and checkers of an XML or JSON answer against them (strict: a missing field, an
// extra one, a field out of order or a value of the wrong form is an error).
#include <cjson/cJSON.h>
#include <libxml/tree.h>

#include <string>
#include <vector>

namespace velmora {
namespace test {

struct FieldSchema {
    std::string name;
    std::string type;   // int uint real bool text counter list:<Item> plain:<int|text|bool>
    bool optional = false;
};

const std::vector<FieldSchema>* recordSchema(const std::string& record);

// "" when `root` is the record `record` with every field as documented, else what is wrong.
std::string checkXmlRecord(const xmlNode* root, const std::string& record);
std::string checkJsonRecord(const cJSON* object, const std::string& record);
// Checks a whole answer text: XML well-formed or JSON valid, the root, and the record.
std::string checkAnswer(const std::string& body, const std::string& record, bool json);

} // namespace test
} // namespace velmora
