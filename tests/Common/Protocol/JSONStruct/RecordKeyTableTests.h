#pragma once
// Tests that hold a list of record types against their rows of expected keys: the default
// record writes every key in order with its default; a document with every key set reads
// back the same values, also with its keys in another case; presentKeys holds the
// record's own key names; values of another JSON type follow the rules of their kinds.
//
// A test file lists its records once, as RECORDS(X) X(Name) X(Name) ..., and then:
//     RECORDKEYS_INSTANTIATE(Prefix, RECORDS)
// and compares recordkeys::PrefixRecordNames() with its table by expectSameRecords.
// RecordFrameworkEdgeCases runs the rules that every record follows on chosen records of
// that list.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <memory>
#include <stdexcept>
#include <unordered_set>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

#include "ExpectedRecordKeys.h"
#include "JSONStruct/HTTP/HTTPCommonJSONStruct.h"
#include "JSONStruct/IJSONStruct.h"
#include "RecordTestSupport.h"

namespace recordkeys {

// The record's name as the tables spell it; specialised by RECORDKEYS_INSTANTIATE.
template <class Record>
struct RecordName;

template <class Tuple>
struct TypesAfterFirst;
template <class First, class... Rest>
struct TypesAfterFirst<std::tuple<First, Rest...>> {
    using type = ::testing::Types<Rest...>;
};

struct RecordNameGenerator {
    template <class Record>
    static std::string GetName(int)
    {
        return RecordName<Record>::value;
    }
};

template <class Record>
const ExpectedRecord& expectedOf()
{
    const ExpectedRecord* record = findExpected(RecordName<Record>::value);
    if (record == nullptr)
        throw std::runtime_error(std::string("no expected keys for ") + RecordName<Record>::value);
    return *record;
}

template <class Record>
class RecordKeyTable : public ::testing::Test {};
TYPED_TEST_SUITE_P(RecordKeyTable);

TYPED_TEST_P(RecordKeyTable, DefaultRecordWritesEveryKeyInOrderWithItsDefault)
{
    const ExpectedRecord& expected = expectedOf<TypeParam>();
    TypeParam record;
    EXPECT_EQ(recordtest::written(record), defaultWritten(expected));
    EXPECT_TRUE(record.presentKeys.empty());
}

TYPED_TEST_P(RecordKeyTable, EveryKeySetReadsBackTheSameValues)
{
    const ExpectedRecord& expected = expectedOf<TypeParam>();
    recordtest::Json document = filledDocument(expected);
    TypeParam record;
    record.fromJSON(document.get());
    const std::string written = recordtest::written(record);
    EXPECT_EQ(written, filledWritten(expected));
    EXPECT_NE(written, defaultWritten(expected));

    // Written, printed, parsed and read again, the values stay, unless the record reads
    // some value otherwise than it writes it.
    if (readsWhatItWrites(expected)) {
        TypeParam again;
        recordtest::read(again, written);
        EXPECT_EQ(recordtest::written(again), written);
    }

    TypeParam copy(record);
    EXPECT_EQ(recordtest::written(copy), written);
    EXPECT_EQ(copy.presentKeys, record.presentKeys);
}

TYPED_TEST_P(RecordKeyTable, KeysInAnotherCaseAreFound)
{
    const ExpectedRecord& expected = expectedOf<TypeParam>();
    recordtest::Json document = filledDocument(expected);
    toggleKeyCase(document.get());
    TypeParam record;
    record.fromJSON(document.get());
    EXPECT_EQ(recordtest::written(record), filledWritten(expected));
    EXPECT_EQ(record.presentKeys, presentNames(expected));
}

TYPED_TEST_P(RecordKeyTable, PresentKeysHoldTheRecordsOwnKeyNames)
{
    const ExpectedRecord& expected = expectedOf<TypeParam>();
    recordtest::Json document = filledDocument(expected);
    TypeParam record;
    record.fromJSON(document.get());
    EXPECT_EQ(record.presentKeys, presentNames(expected));
}

TYPED_TEST_P(RecordKeyTable, ValuesOfAnotherJsonTypeFollowTheRulesOfTheirKinds)
{
    const ExpectedRecord& expected = expectedOf<TypeParam>();
    recordtest::Json document = otherTypeDocument(expected);
    TypeParam record;
    record.fromJSON(document.get());
    EXPECT_EQ(recordtest::written(record), otherTypeWritten(expected));
    EXPECT_EQ(record.presentKeys, presentNames(expected));
}

TYPED_TEST_P(RecordKeyTable, BaseAndRootNameMatchTheTable)
{
    const ExpectedRecord& expected = expectedOf<TypeParam>();
    if constexpr (std::is_base_of_v<protocol::IInboundData, TypeParam>) {
        ASSERT_NE(expected.rootName, nullptr) << "a request record";
        EXPECT_STREQ(TypeParam().rootName(), expected.rootName);
    } else {
        static_assert(std::is_base_of_v<protocol::IReturnData, TypeParam>, "a record is a request or a response");
        EXPECT_EQ(expected.rootName, nullptr) << "a response record";
    }
}

REGISTER_TYPED_TEST_SUITE_P(RecordKeyTable, DefaultRecordWritesEveryKeyInOrderWithItsDefault,
                            EveryKeySetReadsBackTheSameValues, KeysInAnotherCaseAreFound,
                            PresentKeysHoldTheRecordsOwnKeyNames, ValuesOfAnotherJsonTypeFollowTheRulesOfTheirKinds,
                            BaseAndRootNameMatchTheTable);

// The rules that every record follows, run on one record of each family. A check that
// needs a kind of key the record lacks is skipped.
template <class Record>
class RecordFrameworkEdgeCases : public ::testing::Test {};
TYPED_TEST_SUITE_P(RecordFrameworkEdgeCases);

inline std::string withCapitals(std::string key)
{
    for (char& c : key)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return key;
}

inline recordtest::Json oneKeyDocument(const std::string& key, cJSON* value)
{
    recordtest::Json document(cJSON_CreateObject());
    cJSON_AddItemToObject(document.get(), key.c_str(), value);
    return document;
}

// The value that `record` writes under `key`, as compact text.
inline std::string writtenValue(protocol::IJSONStruct& record, const std::string& key)
{
    recordtest::Json written(record.toJSON());
    return recordtest::print(cJSON_GetObjectItemCaseSensitive(written.get(), key.c_str()));
}

TYPED_TEST_P(RecordFrameworkEdgeCases, KeyInCapitalsFillsTheFieldAndIsNotedByItsOwnName)
{
    const Key* key = firstKeyOf(expectedOf<TypeParam>(), Kind::String);
    if (key == nullptr) {
        GTEST_SKIP() << "no string key";
    }
    ASSERT_NE(withCapitals(key->name), key->name);
    TypeParam record;
    recordtest::Json document = oneKeyDocument(withCapitals(key->name), cJSON_CreateString("a"));
    record.fromJSON(document.get());
    EXPECT_EQ(writtenValue(record, key->name), "\"a\"");
    EXPECT_EQ(record.presentKeys, std::unordered_set<std::string>{key->name});
}

TYPED_TEST_P(RecordFrameworkEdgeCases, IntegerFromTextIsZeroButPresent)
{
    const Key* key = firstKeyOf(expectedOf<TypeParam>(), Kind::Integer);
    if (key == nullptr) {
        GTEST_SKIP() << "no integer key";
    }
    TypeParam record;
    recordtest::Json five = oneKeyDocument(key->name, cJSON_CreateNumber(5));
    record.fromJSON(five.get());
    EXPECT_EQ(writtenValue(record, key->name), "5");
    recordtest::Json text = oneKeyDocument(key->name, cJSON_CreateString("7"));
    record.fromJSON(text.get());
    EXPECT_EQ(writtenValue(record, key->name), "0");
    EXPECT_EQ(record.presentKeys.count(key->name), 1u);
}

TYPED_TEST_P(RecordFrameworkEdgeCases, BooleanIsTrueOnlyForTrueAndOne)
{
    const Key* key = firstKeyOf(expectedOf<TypeParam>(), Kind::Boolean);
    if (key == nullptr) {
        GTEST_SKIP() << "no boolean key";
    }
    const std::pair<const char*, const char*> cases[] = {{"2", "false"}, {"1", "true"}, {"true", "true"}};
    for (const auto& [value, expected] : cases) {
        TypeParam record;
        recordtest::Json document = oneKeyDocument(key->name, cJSON_Parse(value));
        record.fromJSON(document.get());
        EXPECT_EQ(writtenValue(record, key->name), expected) << value;
    }
}

TYPED_TEST_P(RecordFrameworkEdgeCases, NullLeavesAFilledRecordAsItIs)
{
    const ExpectedRecord& expected = expectedOf<TypeParam>();
    recordtest::Json document = filledDocument(expected);
    TypeParam record;
    record.fromJSON(document.get());
    record.fromJSON(nullptr);
    EXPECT_EQ(recordtest::written(record), filledWritten(expected));
    EXPECT_EQ(record.presentKeys, presentNames(expected));
}

TYPED_TEST_P(RecordFrameworkEdgeCases, EmptyObjectKeepsScalarsAndEmptiesLists)
{
    const ExpectedRecord& expected = expectedOf<TypeParam>();
    recordtest::Json document = filledDocument(expected);
    TypeParam record;
    record.fromJSON(document.get());
    recordtest::read(record, "{}");

    recordtest::Json kept = recordtest::parse(filledWritten(expected));
    for (const Key& key : expected.keys) {
        if (isList(key.kind))
            cJSON_ReplaceItemInObjectCaseSensitive(kept.get(), key.name.c_str(), cJSON_CreateArray());
    }
    EXPECT_EQ(recordtest::written(record), recordtest::print(kept.get()));
    EXPECT_EQ(record.presentKeys, presentNames(expected));
}

TYPED_TEST_P(RecordFrameworkEdgeCases, DefaultRecordWritesListsAsEmptyArrays)
{
    const ExpectedRecord& expected = expectedOf<TypeParam>();
    TypeParam record;
    recordtest::Json written(record.toJSON());
    ASSERT_NE(written, nullptr);
    EXPECT_EQ(cJSON_GetArraySize(written.get()), static_cast<int>(expected.keys.size())
        - static_cast<int>(std::count_if(expected.keys.begin(), expected.keys.end(),
                                         [](const Key& key) { return key.kind == Kind::ReadOnlyString; })));
    for (const Key& key : expected.keys) {
        if (isList(key.kind)) {
            EXPECT_EQ(recordtest::print(cJSON_GetObjectItemCaseSensitive(written.get(), key.name.c_str())), "[]");
        }
    }
}

TYPED_TEST_P(RecordFrameworkEdgeCases, OnlyModeKeepsAListWithAllItsElements)
{
    const ExpectedRecord& expected = expectedOf<TypeParam>();
    const Key* key = firstListKeyOf(expected);
    if (key == nullptr) {
        GTEST_SKIP() << "no list key";
    }
    recordtest::Json document = filledDocument(expected);
    TypeParam record;
    record.fromJSON(document.get());
    record.ignoreMode = 1;
    record.ignoreItems = {key->name};

    recordtest::Json all = recordtest::parse(filledWritten(expected));
    recordtest::Json only(cJSON_CreateObject());
    cJSON_AddItemToObject(only.get(), key->name.c_str(),
                          cJSON_DetachItemFromObjectCaseSensitive(all.get(), key->name.c_str()));
    EXPECT_EQ(recordtest::written(record), recordtest::print(only.get()));
}

TYPED_TEST_P(RecordFrameworkEdgeCases, EnvelopeCarriesTheRecordAsData)
{
    if constexpr (std::is_base_of_v<protocol::IReturnData, TypeParam>) {
        const ExpectedRecord& expected = expectedOf<TypeParam>();
        auto data = std::make_shared<TypeParam>();
        protocol::ReturnData envelope(data);
        recordtest::Json document = filledDocument(expected);
        const std::string text =
            R"({"code":"7--9","msg":"done","data":)" + recordtest::print(document.get()) + "}";
        ASSERT_TRUE(envelope.Parse(text));
        EXPECT_EQ(envelope.code.module, 7);
        EXPECT_EQ(envelope.code.code, 9);
        EXPECT_EQ(envelope.msg, "done");
        EXPECT_EQ(recordtest::written(*data), filledWritten(expected));

        auto untouched = std::make_shared<TypeParam>();
        protocol::ReturnData empty(untouched);
        EXPECT_TRUE(empty.Parse("{}"));
        EXPECT_EQ(recordtest::written(*untouched), defaultWritten(expected));
        EXPECT_FALSE(empty.Parse(""));
    } else {
        GTEST_SKIP() << "a request travels without the answer envelope";
    }
}

REGISTER_TYPED_TEST_SUITE_P(RecordFrameworkEdgeCases, KeyInCapitalsFillsTheFieldAndIsNotedByItsOwnName,
                            IntegerFromTextIsZeroButPresent, BooleanIsTrueOnlyForTrueAndOne,
                            NullLeavesAFilledRecordAsItIs, EmptyObjectKeepsScalarsAndEmptiesLists,
                            DefaultRecordWritesListsAsEmptyArrays, OnlyModeKeepsAListWithAllItsElements,
                            EnvelopeCarriesTheRecordAsData);

// Every row of `table` names a record of `names`, and the reverse.
inline void expectSameRecords(const std::vector<ExpectedRecord>& table, std::vector<std::string> names)
{
    std::vector<std::string> rows;
    for (const ExpectedRecord& record : table)
        rows.push_back(record.name);
    std::sort(rows.begin(), rows.end());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(rows, names);
    EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end()) << "a record listed twice";
}

} // namespace recordkeys

#define RECORDKEYS_DETAIL_NAME(Record)                                                      \
    template <>                                                                             \
    struct RecordName<protocol::Record> {                                                   \
        static constexpr const char* value = #Record;                                       \
    };
#define RECORDKEYS_DETAIL_TYPE(Record) , protocol::Record
#define RECORDKEYS_DETAIL_STRING(Record) #Record,

// Runs the tests above over every record of LIST (an X-macro) and names each by its
// record; recordkeys::Prefix##RecordNames() returns the names of the list.
#define RECORDKEYS_INSTANTIATE(Prefix, LIST)                                                \
    namespace recordkeys {                                                                  \
    LIST(RECORDKEYS_DETAIL_NAME)                                                            \
    using Prefix##Records = TypesAfterFirst<std::tuple<void LIST(RECORDKEYS_DETAIL_TYPE)>>::type; \
    INSTANTIATE_TYPED_TEST_SUITE_P(Prefix, RecordKeyTable, Prefix##Records, RecordNameGenerator); \
    inline std::vector<std::string> Prefix##RecordNames() { return {LIST(RECORDKEYS_DETAIL_STRING)}; } \
    }
