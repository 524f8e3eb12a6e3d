// Company names by MAC prefix, checked against the IEEE listing the table was built from.
#include <cctype>
#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "OuiCsvReader.h"
#include "Quillon/MacCompanyHelper.h"

using Quillon::CMacCompanyHelper;

namespace {

// OUI -> first name, as the listing gives it.
std::map<std::uint32_t, std::string> listing()
{
    std::ifstream csv(VELMORA_OUI_CSV, std::ios::binary);
    std::map<std::uint32_t, std::string> names;
    for (const Quillon::ouicsv::OuiRecord& record : Quillon::ouicsv::readOuiCsv(csv))
        names.emplace(record.oui, record.name);
    return names;
}

std::string hexOui(std::uint32_t oui)
{
    char text[7];
    std::snprintf(text, sizeof text, "%06x", oui);
    return text;
}

// The reduction the client list applies before the lookup: drop "-", keep six characters,
// lower-case them.
std::string reduce(const std::string& mac)
{
    std::string reduced;
    for (char c : mac) {
        if (c != '-')
            reduced += c;
    }
    reduced = reduced.substr(0, 6);
    for (char& c : reduced)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return reduced;
}

} // namespace

TEST(MacCompanyHelper, KnowsLongStandingRegistrations)
{
    const CMacCompanyHelper helper;
    EXPECT_EQ(helper.getCompanyNameByMAc("000000"), "XEROX CORPORATION");
    EXPECT_EQ(helper.getCompanyNameByMAc("00000c"), "Cisco Systems, Inc");
    // Quotes and non-ASCII letters come through as the registry writes them, in UTF-8.
    EXPECT_EQ(helper.getCompanyNameByMAc("001efc"), "JSC \"MASSA-K\"");
    EXPECT_EQ(helper.getCompanyNameByMAc("68a40e"), "BSH Hausger\xc3\xa4te GmbH");
}

TEST(MacCompanyHelper, SimpleLinesOfTheListingResolveToTheirName)
{
    // Read independently of the table's reader: plain lines without quotes, every 100th.
    std::ifstream csv(VELMORA_OUI_CSV, std::ios::binary);
    ASSERT_TRUE(csv.good()) << VELMORA_OUI_CSV;
    const std::map<std::uint32_t, std::string> names = listing();
    const CMacCompanyHelper helper;
    std::string line;
    std::getline(csv, line); // header
    int lineNumber = 0;
    int checked = 0;
    while (std::getline(csv, line)) {
        if (++lineNumber % 100 != 0 || line.find('"') != std::string::npos)
            continue;
        std::vector<std::string> fields;
        std::stringstream split(line);
        for (std::string field; std::getline(split, field, ',');)
            fields.push_back(field);
        if (fields.size() < 3 || fields[1].size() != 6)
            continue;
        const std::string name = Quillon::ouicsv::tidyName(fields[2]);
        std::uint32_t oui = 0;
        ASSERT_TRUE(Quillon::ouicsv::parseAssignment(fields[1], oui)) << line;
        if (names.at(oui) != name)
            continue; // a repeated OUI keeps its first name
        EXPECT_EQ(helper.getCompanyNameByMAc(fields[1]), name) << line;
        ++checked;
    }
    EXPECT_GT(checked, 50);
}

TEST(MacCompanyHelper, EveryOuiOfTheListingIsInTheTable)
{
    const std::map<std::uint32_t, std::string> names = listing();
    ASSERT_GT(names.size(), 10000u);
    EXPECT_EQ(CMacCompanyHelper::getCompanyCount(), names.size());
    const CMacCompanyHelper helper;
    for (const auto& [oui, name] : names)
        ASSERT_EQ(helper.getCompanyNameByMAc(hexOui(oui)), name) << hexOui(oui);
}

TEST(MacCompanyHelper, RepeatedOuiKeepsItsFirstName)
{
    const CMacCompanyHelper helper;
    EXPECT_EQ(helper.getCompanyNameByMAc("080030"), listing().at(0x080030));
    EXPECT_FALSE(helper.getCompanyNameByMAc("080030").empty());
}

TEST(MacCompanyHelper, CaseAndSeparatorsDontMatter)
{
    const CMacCompanyHelper helper;
    const std::string cisco = "Cisco Systems, Inc";
    for (const char* mac : {"00000C", "00000c", "00-00-0C", "00:00:0c", "0000.0c", "00000c112233",
                            "00-00-0C-11-22-33", "00:00:0C:11:22:33", "0000.0c11.2233"})
        EXPECT_EQ(helper.getCompanyNameByMAc(mac), cisco) << mac;
}

TEST(MacCompanyHelper, ReducedDashedMacFindsItsCompany)
{
    const CMacCompanyHelper helper;
    EXPECT_EQ(reduce("68-A4-0E-12-34-56"), "68a40e");
    EXPECT_EQ(helper.getCompanyNameByMAc(reduce("68-A4-0E-12-34-56")), "BSH Hausger\xc3\xa4te GmbH");
    // Colons survive the reduction, which leaves only four digits: no company.
    EXPECT_EQ(reduce("68:A4:0E:12:34:56"), "68:a4:");
    EXPECT_EQ(helper.getCompanyNameByMAc(reduce("68:A4:0E:12:34:56")), "");
}

TEST(MacCompanyHelper, UnregisteredOuiGivesNothing)
{
    const std::map<std::uint32_t, std::string> names = listing();
    std::uint32_t unregistered = 0xfffffe;
    while (names.count(unregistered))
        --unregistered;
    const CMacCompanyHelper helper;
    EXPECT_EQ(helper.getCompanyNameByMAc(hexOui(unregistered)), "") << hexOui(unregistered);
}

TEST(MacCompanyHelper, MalformedInputGivesNothing)
{
    const CMacCompanyHelper helper;
    for (const char* mac : {"", "0", "00000", "00-00-0", "zzzzzz", "00000g", "0x00000c", "00 00 0c", " 00000c",
                            "00:00:0c/24", "--::..", "\xe4\xba\xa4\xe6\x8d\xa2"})
        EXPECT_EQ(helper.getCompanyNameByMAc(mac), "") << mac;
}
