// Each library is asked for in a version, and in one place.
#include "docs/documents.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>

using namespace iosphoto::test;
using testing::IsEmpty;

namespace fs = std::filesystem;

namespace {

constexpr const char *place = "cmake/Dependencies.cmake";

/// The lines of CMake's files that ask for a library.
std::vector<std::string> requestsIn(const fs::path &file)
{
    std::vector<std::string> requests;
    for (const std::string &line : linesOf(readFile(fs::path(IOSPHOTO_SOURCE) / file)))
        if (std::regex_search(line, std::regex(R"((find_package|pkg_check_modules)\()")))
            requests.push_back(line);
    return requests;
}

bool isCmake(const fs::path &file)
{
    return file.filename() == "CMakeLists.txt" || file.extension() == ".cmake";
}

} // namespace

TEST(Dependencies, AreAskedForInOnePlace)
{
    for (const fs::path &file : repositoryFiles()) {
        if (isCmake(file) && file != place && file.string().rfind("tests/package", 0) != 0) {
            EXPECT_THAT(requestsIn(file), IsEmpty()) << file;
        }
    }
}

TEST(Dependencies, AreAskedForInAVersion)
{
    // Of the system and of CMake itself, and the same everywhere.
    const std::regex withoutVersion(R"((PkgConfig|Threads) REQUIRED)");
    const std::regex version(R"(( |>=)[0-9]+(\.[0-9]+)*[ )])");
    const std::vector<std::string> requests = requestsIn(place);
    EXPECT_GT(requests.size(), 10U);
    for (const std::string &request : requests)
        EXPECT_TRUE(std::regex_search(request, version) ||
                    std::regex_search(request, withoutVersion))
            << request;
}
