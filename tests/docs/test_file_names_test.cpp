// A test is found by the name of what it tests.
#include "docs/documents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

using namespace iosphoto::test;
using testing::IsEmpty;

namespace fs = std::filesystem;

namespace {

constexpr const char *ending = "_test";

/// The names of the units in each folder: of source files, and of statements, which stand a folder
/// below the code that chooses them.
std::map<std::string, std::set<std::string>> unitsByFolder(const std::vector<fs::path> &files)
{
    std::map<std::string, std::set<std::string>> units;
    for (const fs::path &file : files) {
        const std::string ext = file.extension().string();
        if (ext == ".sql")
            units[file.parent_path().parent_path().string()].insert(file.stem().string());
        else if (ext == ".h" || ext == ".cpp")
            units[file.parent_path().string()].insert(file.stem().string());
    }
    return units;
}

bool beginsWithOneOf(const std::set<std::string> &units, const std::string &name)
{
    return std::any_of(units.begin(), units.end(),
                       [&](const std::string &unit) { return name.rfind(unit + "_", 0) == 0; });
}

/// The test files below tests/`folder` that do not begin with a unit of the folder that they
/// mirror.
std::vector<std::string> misnamed(const std::vector<fs::path> &files, const std::string &folder,
                                  const std::string &mirrored)
{
    const auto units = unitsByFolder(files);
    std::vector<std::string> found;
    for (const fs::path &file : files) {
        const std::string path = file.string();
        const std::string name = file.stem().string();
        const bool isTest = name.size() > 5 && name.substr(name.size() - 5) == ending;
        if (path.rfind("tests/" + folder, 0) != 0 || !isTest)
            continue;
        const std::string below = file.parent_path().string().substr(("tests/" + folder).size());
        const auto here = units.find(mirrored + below);
        if (here == units.end() || !beginsWithOneOf(here->second, name))
            found.push_back(path);
    }
    return found;
}

} // namespace

TEST(TestFiles, OfTheModelBeginWithTheNameOfTheirUnit)
{
    EXPECT_THAT(misnamed(repositoryFiles(), "model", "src/model"), IsEmpty());
}

TEST(TestFiles, OfTheCommandsPartsBeginWithTheNameOfTheirUnit)
{
    EXPECT_THAT(misnamed(repositoryFiles(), "tool", "tool"), IsEmpty());
}

TEST(TestFiles, ThatAreMisnamedAreFound)
{
    const std::vector<fs::path> files = {"tool/text/list.h",
                                         "tests/tool/text/list_test.cpp",
                                         "tests/tool/text/a_test.cpp",
                                         "tests/tool/time/list_test.cpp",
                                         "tests/tool/text/list_of_b_test.cpp",
                                         "tests/tool/a.h"};
    EXPECT_THAT(
        misnamed(files, "tool", "tool"),
        testing::ElementsAre("tests/tool/text/a_test.cpp", "tests/tool/time/list_test.cpp"));
}
