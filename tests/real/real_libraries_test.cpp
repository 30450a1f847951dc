/// Real photo libraries against catalogues that were worked out without this code.
#include "support/catalogue.h"
#include "support/catalogue_json.h"
#include "support/real_libraries.h"

#include <gtest/gtest.h>

#include <fstream>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

/// Durations are 32-bit floats; both sides are compared as such.
void roundDurations(nlohmann::json &album)
{
    for (nlohmann::json &photo : album["photos"])
        photo["duration"] = photo["duration"].get<float>();
}

} // namespace

class RealLibraries : public testing::TestWithParam<RealLibrary>
{
};

TEST_P(RealLibraries, GiveTheExpectedCatalogueAndKeepEveryByte)
{
    const std::filesystem::path source = folderOf(GetParam());
    if (!exists(source))
        GTEST_SKIP() << "the real libraries are not there";
    const TemporaryFolder folder;
    for (const char *file : {"Photos.sqlite", "Photos.sqlite-wal"})
        writeFile(folder / file, readFile(source / file));
    const std::string database = (folder / "Photos.sqlite").string();

    const Catalogue catalogue(database, GetParam().iosVersion, "iPhone14,2");

    std::filesystem::path expectation =
        source.parent_path() / "expected" / source.filename().concat(".json");
    nlohmann::json expected = nlohmann::json::parse(std::ifstream(expectation));
    EXPECT_EQ(catalogue.result, expected["result"]);
    ASSERT_EQ(catalogue.albums.size(), expected["albums"].size());
    for (std::size_t i = 0; i < catalogue.albums.size(); ++i) {
        roundDurations(expected["albums"][i]);
        EXPECT_EQ(asJson(catalogue.albums[i]), expected["albums"][i]);
    }
    for (const char *file : {"Photos.sqlite", "Photos.sqlite-wal"})
        EXPECT_TRUE(readFile(folder / file) == readFile(source / file)) << file;
}

INSTANTIATE_TEST_SUITE_P(Generations, RealLibraries, testing::ValuesIn(realLibraries),
                         SchemaName());
