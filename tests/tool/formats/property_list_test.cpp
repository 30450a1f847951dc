#include "formats/property_list.h"

#include "formats/property_list_bounds.h"
#include "support/backup_builder.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;
using iosphoto::tool::isWithinBounds;
using iosphoto::tool::PropertyList;

class ToolPropertyList : public testing::TestWithParam<bool>
{
protected:
    PropertyList list() const
    {
        writeFile(folder_ / "x.plist", bytes_);
        return PropertyList(folder_ / "x.plist");
    }

    TemporaryFolder folder_;
    std::string bytes_ =
        propertyList("<key>Name</key><string>Größe</string>\n"
                     "<key>Yes</key><true/>\n<key>No</key><false/>\n"
                     "<key>When</key><date>2023-11-14T22:13:20Z</date>\n"
                     "<key>Inner</key><dict><key>Name</key><string>inside</string></dict>\n",
                     GetParam());
};

TEST_P(ToolPropertyList, HasItsValues)
{
    EXPECT_EQ(list().text({"Name"}), "Größe");
    EXPECT_EQ(list().text({"Inner", "Name"}), "inside");
    EXPECT_TRUE(list().isTrue({"Yes"}));
    EXPECT_FALSE(list().isTrue({"No"}));
    EXPECT_EQ(list().time({"When"}), iosphoto::tool::UnixTime{1'700'000'000});
}

TEST_P(ToolPropertyList, HasNothingWhereAValueIsMissingOrOfAnotherType)
{
    EXPECT_EQ(list().text({"Missing"}), "");
    EXPECT_EQ(list().text({"Name", "Name"}), "");
    EXPECT_EQ(list().text({"When"}), "");
    EXPECT_FALSE(list().isTrue({"Name"}));
    EXPECT_EQ(list().time({"Name"}), std::nullopt);
}

TEST_P(ToolPropertyList, HasNothingWhenTheFileIsDamaged)
{
    bytes_.resize(bytes_.size() / 2);
    EXPECT_EQ(list().text({"Name"}), "");
    bytes_.clear();
    EXPECT_EQ(list().text({"Name"}), "");
    EXPECT_EQ(PropertyList(folder_ / "missing.plist").text({"Name"}), "");
}

namespace {

/// A binary list of arrays: each has the next one in it so many times, the last a true value.
std::string nestedArrays(unsigned depth, unsigned times)
{
    const auto word = [](unsigned value) {
        return std::string{static_cast<char>(value >> 8U & 0xffU),
                           static_cast<char>(value & 0xffU)};
    };
    std::string content = "bplist00";
    std::string table;
    for (unsigned i = 0; i < depth; ++i) {
        table += word(static_cast<unsigned>(content.size()));
        content += static_cast<char>(0xa0U | times);
        for (unsigned j = 0; j < times; ++j)
            content += word(i + 1);
    }
    table += word(static_cast<unsigned>(content.size()));
    content += '\x09';
    const auto tableAt = static_cast<unsigned>(content.size());
    const std::string zeros(6, '\0');
    return content + table + zeros + "\x02\x02" + zeros + word(depth + 1) + zeros + word(0) +
           zeros + word(tableAt);
}

} // namespace

TEST(ToolPropertyListBounds, LetRealListsThrough)
{
    EXPECT_TRUE(isWithinBounds(propertyList("<key>a</key><array><true/></array>")));
    EXPECT_TRUE(isWithinBounds(propertyList("<key>a</key><array><true/></array>", true)));
    EXPECT_TRUE(isWithinBounds(nestedArrays(10, 2)));
}

TEST(ToolPropertyListBounds, StopNestingThatWouldFillTheStack)
{
    constexpr int depth = 20'000;
    std::string arrays;
    std::string ends;
    for (int i = 0; i < depth; ++i) {
        arrays += "<array>";
        ends += "</array>";
    }
    EXPECT_FALSE(isWithinBounds(propertyList("<key>a</key>" + arrays + ends)));
    EXPECT_FALSE(isWithinBounds(nestedArrays(10'000, 1)));
}

TEST(ToolPropertyListBounds, StopCopiesThatWouldFillTheMemory)
{
    EXPECT_FALSE(isWithinBounds(nestedArrays(40, 8)));
}

TEST(ToolPropertyListBounds, AreNotFooledByNumbersThatPointAnywhere)
{
    const std::string whole = nestedArrays(3, 2);
    for (std::size_t at = 8; at < whole.size(); ++at) {
        std::string changed = whole;
        changed[at] = '\xff';
        isWithinBounds(changed); // comes to an end
    }
    for (std::size_t size = 0; size < whole.size(); ++size)
        isWithinBounds(whole.substr(0, size));
}

TEST(ToolPropertyListBounds, RefuseNumbersOfImpossibleSizes)
{
    const std::string whole = nestedArrays(3, 2);
    constexpr std::size_t trailerSize = 32;
    for (const std::size_t field : {6U, 7U})
        for (const char size : {'\0', '\x09', '\xff'}) {
            std::string changed = whole;
            changed[changed.size() - trailerSize + field] = size;
            EXPECT_FALSE(isWithinBounds(changed)) << field << " " << int(size);
        }
}

TEST(ToolPropertyListBounds, StopAnArrayThatClaimsToBeHuge)
{
    std::string list = "bplist00";
    list += '\xaf';                 // an array, its size in a number behind it
    list += "\x12\x7f\xff\xff\xff"; // of four bytes
    list += std::string(16, '\0');  // its first values
    const auto tableAt = static_cast<char>(list.size());
    const std::string zeros(7, '\0');
    const auto number = [&](char value) { return zeros + value; };
    list += '\x08'; // where the array is
    list += std::string(6, '\0') + "\x01" + '\0' + number(1) + number(0) + number(tableAt);
    EXPECT_FALSE(isWithinBounds(list));
}

INSTANTIATE_TEST_SUITE_P(Forms, ToolPropertyList, testing::Bool(),
                         [](const auto &form) { return form.param ? "Binary" : "Xml"; });
