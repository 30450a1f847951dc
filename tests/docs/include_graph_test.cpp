// Which folder knows which: what docs/architecture.md prints holds for every include.
#include "docs/documents.h"
#include "support/case_name.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <regex>

using namespace iosphoto::test;
using testing::IsEmpty;
using testing::SizeIs;

namespace fs = std::filesystem;

namespace {

/// What stands in a folder, folders and files without their endings, each with the number of its
/// step: it may include what has a higher one.
struct IncludeOrder
{
    fs::path folder;
    std::map<std::string, int> steps;

    std::string name() const { return folder.string(); }
};

void PrintTo(const IncludeOrder &order, std::ostream *out)
{
    *out << order.name();
}

/// Reads "main → commands, rows → text", of which a word ending in "/" is the folder.
std::vector<IncludeOrder> ordersOf(const Lines &lines)
{
    std::vector<IncludeOrder> orders;
    int step = 0;
    for (const std::string &line : lines) {
        std::istringstream words(line);
        for (std::string word; words >> word;) {
            if (word.back() == '/') {
                orders.push_back({word.substr(0, word.size() - 1), {}});
                step = 0;
            } else if (word == "→") {
                ++step;
            } else {
                orders.back().steps[word.substr(0, word.find(','))] = step;
            }
        }
    }
    return orders;
}

std::vector<IncludeOrder> printedOrders()
{
    for (const CodeBlock &block : codeBlocksIn("docs/architecture.md"))
        if (block.language == "includes")
            return ordersOf(block.lines);
    return {};
}

/// The entry of a folder through which one comes to a file; empty for a file elsewhere.
std::string entryOf(const fs::path &folder, const fs::path &file)
{
    const fs::path below = file.lexically_relative(folder);
    if (below.empty() || *below.begin() == "..")
        return {};
    return below.has_parent_path() ? below.begin()->string() : below.stem().string();
}

std::vector<fs::path> includesOf(const fs::path &file)
{
    static const std::regex include(R"(^\s*#\s*include\s+"([^"]+)\")");
    std::vector<fs::path> includes;
    std::smatch found;
    for (const std::string &line : linesOf(readFile(file)))
        if (std::regex_search(line, found, include))
            includes.emplace_back(found[1].str());
    return includes;
}

bool isCode(const fs::path &file)
{
    return file.extension() == ".h" || file.extension() == ".cpp";
}

/// What is wrong with the includes of the files in a folder. Paths in it begin at the first folder
/// of its own path, as the includes do.
Lines offencesAgainst(const IncludeOrder &order, const fs::path &root)
{
    const fs::path includeRoot = *order.folder.begin();
    Lines offences;
    for (const auto &entry : fs::recursive_directory_iterator(root / order.folder)) {
        const fs::path file = fs::relative(entry.path(), root);
        if (!isCode(file))
            continue;
        const std::string from = entryOf(order.folder, file);
        if (order.steps.count(from) == 0) {
            offences.push_back(file.string() + ": '" + from + "' has no place in the order");
            continue;
        }
        for (const fs::path &included : includesOf(entry.path())) {
            const std::string to = entryOf(order.folder, includeRoot / included);
            if (to == from || order.steps.count(to) == 0)
                continue;
            if (order.steps.at(to) <= order.steps.at(from))
                offences.push_back(file.string() + " includes " + included.string());
        }
    }
    return offences;
}

} // namespace

class IncludeGraph : public testing::TestWithParam<IncludeOrder>
{
};

TEST_P(IncludeGraph, FollowsTheOrderThatIsPrinted)
{
    EXPECT_THAT(offencesAgainst(GetParam(), IOSPHOTO_SOURCE), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Folders, IncludeGraph, testing::ValuesIn(printedOrders()), NameOfCase());

TEST(IncludeOrders, ArePrintedForTheCommandAndTheLibrary)
{
    std::vector<std::string> folders;
    for (const IncludeOrder &order : printedOrders())
        folders.push_back(order.name());
    EXPECT_THAT(folders, testing::IsSupersetOf({"tool", "src"}));
}

TEST(IncludeOrders, OffencesAgainstThemAreFound)
{
    const TemporaryFolder folder;
    fs::create_directories(folder / "code/low");
    fs::create_directories(folder / "code/high");
    fs::create_directories(folder / "code/other");
    writeFile(folder / "code/main.cpp", "#include \"high/a.h\"\n#include \"low/a.h\"\n");
    writeFile(folder / "code/high/a.h", "#include \"low/a.h\"\n#include \"high/b.h\"\n");
    writeFile(folder / "code/high/b.h", "#include \"side/a.h\"\n#include <vector>\n");
    writeFile(folder / "code/low/a.h", "int x;\n  #  include  \"high/a.h\"\n");
    writeFile(folder / "code/other/a.h", "");
    const std::vector<IncludeOrder> orders = ordersOf({"code/  main →", "   high, side → low"});
    ASSERT_THAT(orders, SizeIs(1));
    EXPECT_THAT(offencesAgainst(orders[0], folder.path()),
                testing::UnorderedElementsAre("code/low/a.h includes high/a.h",
                                              "code/high/b.h includes side/a.h",
                                              "code/other/a.h: 'other' has no place in the order"));
}
