#pragma once
// The keys, kinds and defaults that each record must read and write, kept apart from the
// records' own field tables so that a field left out of a table, or a wrong key, kind or
// default, shows. Also builds the documents that the record tests read and expect.
#include <cjson/cJSON.h>

#include <string>
#include <unordered_set>
#include <vector>

#include "RecordTestSupport.h"

namespace recordkeys {

enum class Kind {
    String,
    Integer,
    Boolean,
    NonZeroBoolean,    // any non-zero number reads as true
    IntegerAsBoolean,  // read as an integer, written as true when not 0
    Real,
    StringList,
    IntegerList,
    RecordList,
    Record,
    Int64Text,         // read from a number as a 64-bit integer, kept and written as its text
    ReadOnlyString,    // read and kept, never written
};

struct Key {
    std::string name;
    Kind kind;
    std::string element;      // the record of a nested field or of a list's elements
    std::string defaultJson;  // JSON text of a default other than the kind's own
    std::string presentName;  // noted in presentKeys under this name when not empty
};

struct ExpectedRecord {
    std::string name;
    const char* rootName = nullptr;  // null for a response or nested record
    std::vector<Key> keys;
    bool listFromOwnNode = false;    // its one list is read from the node itself, not a key
};

// Builders of the table rows, one per kind.
Key s(const std::string& name, const std::string& defaultJson = std::string());
Key i(const std::string& name, const std::string& defaultJson = std::string());
Key b(const std::string& name, const std::string& defaultJson = std::string());
Key n(const std::string& name);
Key iAsB(const std::string& name, const std::string& defaultJson = std::string());
Key r(const std::string& name);
Key ls(const std::string& name);
Key li(const std::string& name);
Key list(const std::string& name, const std::string& element);
Key nested(const std::string& name, const std::string& element);
Key int64Text(const std::string& name);
Key readOnly(const std::string& name);
Key presentAs(Key key, const std::string& presentName);

// The tables, one per family group.
const std::vector<ExpectedRecord>& passThroughRecordKeys();
const std::vector<ExpectedRecord>& controlStatusServiceRecordKeys();
const std::vector<ExpectedRecord>& heldRecordKeys();

// The row of `name` in any table; null when no table has it.
const ExpectedRecord* findExpected(const std::string& name);

// Compact text of what a default-constructed record writes.
std::string defaultWritten(const ExpectedRecord& record);
// A document with every key set to a value other than its default...
recordtest::Json filledDocument(const ExpectedRecord& record, int seed = 1);
// ...and the text that a record read from it writes.
std::string filledWritten(const ExpectedRecord& record, int seed = 1);
// A document with every key set to a value of another JSON type than its kind writes...
recordtest::Json otherTypeDocument(const ExpectedRecord& record);
// ...and the text that a record read from it writes, by the rules of its kinds.
std::string otherTypeWritten(const ExpectedRecord& record);
// Toggles the case of every letter of every object key in the tree, at every depth.
void toggleKeyCase(cJSON* json);
// The first key of `kind` in the record's row; null when it has none.
const Key* firstKeyOf(const ExpectedRecord& record, Kind kind);
// The first key that holds a list of any element; null when it has none.
const Key* firstListKeyOf(const ExpectedRecord& record);
// False when the record, or one nested in it, reads some value otherwise than it writes
// it (a 64-bit text, a value never written, a list read from the node itself).
bool readsWhatItWrites(const ExpectedRecord& record);
// True for the three list kinds.
bool isList(Kind kind);

// The names a record notes in presentKeys after reading filledDocument.
std::unordered_set<std::string> presentNames(const ExpectedRecord& record);

} // namespace recordkeys
