#include "input/tree/zip_times.h"

#include "support/archive_builder.h"
#include "support/little_endian.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;
using iosphoto::tool::hasZonedTime;

namespace fs = std::filesystem;

namespace {

std::string extraField(std::uint32_t id, const std::string &content)
{
    return littleEndian(id, 2) + littleEndian(static_cast<std::uint32_t>(content.size()), 2) +
           content;
}

/// A zip archive of one empty entry, "a/b", as the format describes it.
std::string zipOf(const std::string &extraFields, const std::string &comment = "")
{
    const std::string name = "./a//b";
    const auto size = [](const std::string &text) {
        return littleEndian(static_cast<std::uint32_t>(text.size()), 2);
    };
    const std::string facts = std::string(22, '\0');
    const std::string local =
        "PK\3\4" + facts + size(name) + size(extraFields) + name + extraFields;
    const std::string listed = std::string("PK\1\2") + std::string(24, '\0') + size(name) +
                               size("") + size("") + std::string(12, '\0') + name;
    return local + listed + "PK\5\6" + std::string(8, '\0') +
           littleEndian(static_cast<std::uint32_t>(listed.size()), 4) +
           littleEndian(static_cast<std::uint32_t>(local.size()), 4) + size(comment) + comment;
}

const std::string utcTimes = extraField(0x5455, "\1abcd");

} // namespace

class ZipTimes : public testing::Test
{
protected:
    bool isZoned(const std::string &archive, const std::string &path = "a/b") const
    {
        writeFile(file_, archive);
        return hasZonedTime(file_, path);
    }

    TemporaryFolder folder_;
    const fs::path file_ = folder_ / "a.zip";
};

TEST_F(ZipTimes, AreOfUtcWhereAFieldSaysSo)
{
    EXPECT_TRUE(isZoned(zipOf(utcTimes)));
    EXPECT_TRUE(isZoned(zipOf(extraField(0x7875, "owner") + utcTimes)));
    EXPECT_TRUE(isZoned(zipOf(extraField(0x5855, "accessed changed"))));
}

TEST_F(ZipTimes, AreLocalElsewhere)
{
    EXPECT_FALSE(isZoned(zipOf("")));
    EXPECT_FALSE(isZoned(zipOf(extraField(0x7875, "owner"))));
    EXPECT_FALSE(isZoned(zipOf(extraField(0x5455, "\2abcd")))); // that of the last access alone
}

TEST_F(ZipTimes, AreFoundBehindOtherBytesAndBeforeAComment)
{
    EXPECT_TRUE(isZoned("#!/bin/unpack\n" + zipOf(utcTimes)));
    EXPECT_TRUE(isZoned(zipOf(utcTimes, "a comment")));
}

TEST_F(ZipTimes, AreNotKnownOfWhatIsNotThere)
{
    EXPECT_FALSE(isZoned(zipOf(utcTimes), "b"));
    EXPECT_FALSE(hasZonedTime(folder_ / "none", "a/b"));
}

TEST_F(ZipTimes, AreNotKnownOfAnArchiveThatIsCutShortAnywhere)
{
    const std::string archive = zipOf(utcTimes);
    for (std::size_t size = 0; size < archive.size() - 2; ++size)
        EXPECT_FALSE(isZoned(archive.substr(0, size))) << size;
    for (std::size_t at = 0; at < archive.size(); ++at) // nor is anything beyond it read
        (void)isZoned(archive.substr(at));
}

TEST_F(ZipTimes, AreReadOfWhatOthersPack)
{
    ArchiveBuilder(file_, zip).add("x", "1").add("a/b", "2");
    EXPECT_TRUE(hasZonedTime(file_, "a/b"));
}
