#include "source/property_list.h"

#include "support/backup_builder.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;
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
    EXPECT_EQ(list().time({"When"}), 1'700'000'000);
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

INSTANTIATE_TEST_SUITE_P(Forms, ToolPropertyList, testing::Bool(),
                         [](const auto &form) { return form.param ? "Binary" : "Xml"; });
