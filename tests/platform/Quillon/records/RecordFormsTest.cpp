// What every record offers alike, run over all of them: the three empty forms agree, an
// answer in XML or JSON (wrapped or bare) comes back member for member, and input that is
// not a record leaves the record as it was.
#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "SwitchFields.h"
#include "WirelessFields.h"

namespace {

using Quillon::detail::Fields;
using Quillon::detail::IsArray;
using Quillon::detail::IsRecord;
using Quillon::detail::IsVector;

// Every record type as a gtest type list (the X-lists end each entry with a comma).
struct End {};
template <typename Done, typename... Rest>
struct DropEnd;
template <typename... Done>
struct DropEnd<::testing::Types<Done...>, End> {
    using type = ::testing::Types<Done...>;
};
template <typename... Done, typename Head, typename... Rest>
struct DropEnd<::testing::Types<Done...>, Head, Rest...> {
    using type = typename DropEnd<::testing::Types<Done..., Head>, Rest...>::type;
};
#define AS_TYPE(Type) Quillon::Type,
using AllRecords = DropEnd<::testing::Types<>, QUILLON_SWITCH_RECORDS(AS_TYPE) QUILLON_WIRELESS_RECORDS(AS_TYPE) End>::type;
#undef AS_TYPE

// Gives every member a value unlike its default; lists get two elements.
struct Filler {
    int counter = 0;

    template <typename T>
    void fill(T& value)
    {
        ++counter;
        if constexpr (IsRecord<T>::value) {
            Fields<T>::visit(value, [this](const char*, auto& member) { this->fill(member); });
        } else if constexpr (IsVector<T>::value) {
            value.clear();
            for (int i = 0; i < 2; ++i) {
                typename T::value_type item{};
                fill(item);
                value.push_back(item);
            }
        } else if constexpr (IsArray<T>::value) {
            for (auto& item : value) {
                fill(item);
            }
        } else if constexpr (std::is_same_v<T, std::string>) {
            value = "text <&> \"" + std::to_string(counter) + "\" \xC3\xA9";
        } else if constexpr (std::is_same_v<T, bool>) {
            value = !value;
        } else if constexpr (std::is_floating_point_v<T>) {
            value = static_cast<T>(counter) + static_cast<T>(0.25);
        } else if constexpr (std::is_signed_v<T>) {
            value = static_cast<T>(counter % 2 == 0 ? counter : -counter);
        } else {
            value = static_cast<T>(4000000000u - static_cast<unsigned>(counter));
        }
    }
};

template <typename R>
R filled()
{
    R record;
    Filler filler;
    filler.fill(record);
    return record;
}

template <typename R>
std::string dump(const R& record)
{
    return Quillon::detail::toXml(record);
}

template <typename R>
class RecordFormsTest : public ::testing::Test {};
TYPED_TEST_SUITE(RecordFormsTest, AllRecords);

TYPED_TEST(RecordFormsTest, EmptyTextNullNodeAndDefaultAgree)
{
    const TypeParam byDefault;
    const TypeParam fromEmptyText(std::string{});
    const TypeParam fromNullNode(static_cast<_xmlNode*>(nullptr));
    EXPECT_EQ(dump(fromEmptyText), dump(byDefault));
    EXPECT_EQ(dump(fromNullNode), dump(byDefault));
}

TYPED_TEST(RecordFormsTest, XmlAnswerComesBackMemberForMember)
{
    const TypeParam original = filled<TypeParam>();
    const std::string xml = Quillon::detail::toXml(original);
    ASSERT_NE(dump(original), dump(TypeParam()));
    TypeParam parsed(xml);
    EXPECT_EQ(dump(parsed), dump(original)) << xml;
}

TYPED_TEST(RecordFormsTest, JsonAnswerComesBackWrappedOrBare)
{
    const TypeParam original = filled<TypeParam>();
    const std::string wrapped = Quillon::detail::toJson(original);
    TypeParam fromWrapped;
    fromWrapped.Parse(wrapped);
    EXPECT_EQ(dump(fromWrapped), dump(original)) << wrapped;

    cJSON* bareObject = Quillon::detail::recordToJson(original);
    char* printed = cJSON_Print(bareObject);
    const std::string bare = printed;
    cJSON_free(printed);
    cJSON_Delete(bareObject);
    TypeParam fromBare;
    fromBare.Parse(bare);
    EXPECT_EQ(dump(fromBare), dump(original)) << bare;
}

TYPED_TEST(RecordFormsTest, ElementOfLargerAnswerFillsRecord)
{
    const TypeParam original = filled<TypeParam>();
    const std::string xml = Quillon::detail::toXml(original);
    xmlDocPtr doc = xmlReadMemory(xml.data(), static_cast<int>(xml.size()), nullptr, nullptr, 0);
    ASSERT_NE(doc, nullptr);
    const TypeParam fromNode(xmlDocGetRootElement(doc));
    xmlFreeDoc(doc);
    EXPECT_EQ(dump(fromNode), dump(original));
}

TYPED_TEST(RecordFormsTest, InputThatIsNoRecordChangesNothing)
{
    const TypeParam original = filled<TypeParam>();
    const std::string before = dump(original);
    const std::string xml = Quillon::detail::toXml(original);
    const std::string json = Quillon::detail::toJson(original);
    const std::vector<std::string> inputs = {
        "",
        "   \r\n",
        "not an answer",
        "<",
        "{",
        "[1, 2, 3]",
        "null",
        "<?xml version=\"1.0\"?>",
        xml.substr(0, xml.size() / 2),
        json.substr(0, json.size() / 2),
        std::string("\0<a/>", 5),
        "<a><b></a>",
        "{\"a\": }",
    };
    for (const std::string& input : inputs) {
        TypeParam record = original;
        record.Parse(input);
        EXPECT_EQ(dump(record), before) << "input: " << input;
    }
}

TYPED_TEST(RecordFormsTest, CopiesAreEqualAndIndependent)
{
    const TypeParam original = filled<TypeParam>();
    TypeParam copy(original);
    EXPECT_EQ(dump(copy), dump(original));
    TypeParam assigned;
    assigned = original;
    EXPECT_EQ(dump(assigned), dump(original));
    TypeParam moved(std::move(copy));
    EXPECT_EQ(dump(moved), dump(original));
}

} // namespace
