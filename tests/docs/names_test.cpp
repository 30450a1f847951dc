// What the documents name in backticks and links is there: files, folders, options and the names of
// the code.
#include "docs/documents.h"
#include "support/case_name.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fnmatch.h>
#include <regex>
#include <set>

using namespace iosphoto::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace fs = std::filesystem;

namespace {

/// Words that are of other programs, or only of an example; some are whole texts in backticks.
const std::set<std::string> strangers = {
    "ARCHIVE/PATH",  "all.zip/phones/A",   "BACKUP",    "GGGBBBBB", "Ios19 = 19", "OUT",
    "ZPLAYBACKKIND", "camera_roll_19.sql", "ios19.sql", "movs",     "rep",        "tsv",
    "{19, 19}"};

/// What the repository has: its files and their folders, and the words and options in the files
/// that are code.
struct Repository
{
    std::set<std::string> paths;
    std::set<std::string> words;
    std::set<std::string> tests; ///< such as "MissingNames.AreFound"
};

bool isCode(const fs::path &file)
{
    static const std::set<std::string> endings = {"",     ".cmake", ".cpp", ".h",  ".json",
                                                  ".map", ".py",    ".sql", ".txt"};
    const std::string folder = file.begin()->string();
    return folder != "docs" && file.string().rfind("tests/docs/", 0) != 0 &&
           file.string().find("corpus/") == std::string::npos &&
           endings.count(file.extension().string()) > 0;
}

bool isOfWord(char character)
{
    return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_';
}

bool isOfOption(char character)
{
    return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '-';
}

/// Adds the words and the options ("--quiet") of a text. By hand, since a regular expression takes
/// half a minute for all code.
void addWords(const std::string &text, std::set<std::string> &words)
{
    auto position = text.begin();
    while (position != text.end()) {
        const auto wordEnd = std::find_if_not(position, text.end(), isOfWord);
        words.emplace(position, wordEnd);
        position = std::find_if(wordEnd, text.end(), isOfWord);
        if (position - wordEnd >= 2 && *std::prev(position) == '-' &&
            *std::prev(position, 2) == '-')
            words.emplace(std::prev(position, 2),
                          std::find_if_not(position, text.end(), isOfOption));
    }
}

void addTests(const std::string &text, std::set<std::string> &tests)
{
    static const std::regex test(R"(TEST(?:_[FP])?\(\s*(\w+),\s*(\w+)\))");
    for (std::size_t start = text.find("\nTEST"); start != std::string::npos;
         start = text.find("\nTEST", start + 1)) {
        std::smatch found;
        const std::string head = text.substr(start + 1, text.find('{', start) - start);
        if (std::regex_search(head, found, test))
            tests.insert(found[1].str() + "." + found[2].str());
    }
}

const Repository &repository()
{
    static const Repository ours = [] {
        Repository made;
        for (const fs::path &file : repositoryFiles()) {
            for (fs::path path = file; !path.empty(); path = path.parent_path())
                made.paths.insert(path.string());
            const std::string text = readFile(fs::path(IOSPHOTO_SOURCE) / file);
            if (isCode(file))
                addWords(text, made.words);
            addTests(text, made.tests);
        }
        return made;
    }();
    return ours;
}

/// How many files or folders a path names, whole or by its end: "store/row.h" is that of
/// "src/model/store". A "*" stands for a part of a name, "<name>" as well.
std::ptrdiff_t named(const std::string &path)
{
    std::string pattern = std::regex_replace(path, std::regex("<[a-z]+>"), "*");
    if (pattern.back() == '/')
        pattern.pop_back();
    const auto &paths = repository().paths;
    const auto fits = [&](const std::string &whole) {
        const std::string anywhere = "*/" + pattern;
        return fnmatch(pattern.c_str(), whole.c_str(), FNM_PATHNAME) == 0 ||
               fnmatch(anywhere.c_str(), whole.c_str(), 0) == 0;
    };
    return paths.count(pattern) > 0 ? 1 : std::count_if(paths.begin(), paths.end(), fits);
}

bool isPath(const std::string &span)
{
    static const std::regex path("[A-Za-z0-9_*<][A-Za-z0-9_.*<>/-]*");
    static const std::regex ending(".*\\.(cmake|cpp|h|json|map|md|py|sql)");
    static const std::regex elsewhere("(/|build/|crashes/|out/|DCIM/|PhotoData/).*");
    return std::regex_match(span, path) && !std::regex_match(span, elsewhere) &&
           (span.find('/') != std::string::npos || std::regex_match(span, ending));
}

bool isTest(const std::string &span)
{
    static const std::regex suiteAndName("[A-Z][A-Za-z0-9]+\\.[A-Z][A-Za-z0-9]+");
    return std::regex_match(span, suiteAndName);
}

Lines wordsOf(const std::string &span)
{
    Lines words;
    std::istringstream stream(span);
    const std::regex plain("(--[a-z][a-z-]+|[A-Za-z_][A-Za-z0-9_]*((::|\\.)[A-Za-z0-9_]+)*)");
    const std::regex part("--[a-z-]+|[A-Za-z0-9_]+");
    for (std::string word; stream >> word;)
        if (std::regex_match(word, plain))
            for (std::sregex_iterator each(word.begin(), word.end(), part), end; each != end;
                 ++each)
                words.push_back(each->str());
    return words;
}

/// What a text in backticks names and the repository does not have.
Lines missingOf(const std::string &span)
{
    if (strangers.count(span) > 0)
        return {};
    if (isPath(span)) {
        const std::ptrdiff_t count = named(span);
        const bool isPattern = span.find_first_of("*<") != std::string::npos;
        if (count == 0)
            return {span + " is not there"};
        return count > 1 && !isPattern ? Lines{span + " is there more than once"} : Lines{};
    }
    if (isTest(span))
        return repository().tests.count(span) > 0 ? Lines{} : Lines{span + " is no test"};
    Lines missing;
    for (const std::string &word : wordsOf(span))
        if (repository().words.count(word) + strangers.count(word) == 0)
            missing.push_back(word + " is not in the code");
    return missing;
}

Lines matchesIn(const std::string &text, const std::regex &pattern)
{
    Lines matches;
    for (std::sregex_iterator found(text.begin(), text.end(), pattern), end; found != end; ++found)
        matches.push_back((*found)[1].str());
    return matches;
}

} // namespace

class DocumentNames : public testing::TestWithParam<std::string>
{
};

TEST_P(DocumentNames, AreOfWhatIsThere)
{
    Lines missing;
    for (const std::string &span : matchesIn(proseOf(GetParam()), std::regex("`([^`]+)`")))
        for (const std::string &complaint : missingOf(span))
            missing.push_back(complaint);
    EXPECT_THAT(missing, IsEmpty());
}

TEST_P(DocumentNames, OfLinksAreFiles)
{
    const fs::path folder = (fs::path(IOSPHOTO_SOURCE) / GetParam()).parent_path();
    for (const std::string &link :
         matchesIn(proseOf(GetParam()), std::regex(R"(\]\((?!https:)([^)#]+)[^)]*\))")))
        EXPECT_TRUE(fs::exists(folder / link)) << link;
}

INSTANTIATE_TEST_SUITE_P(Documents, DocumentNames, testing::ValuesIn(allDocuments()),
                         [](const auto &test) { return caseName(test.param); });

TEST(MissingNames, AreFound)
{
    EXPECT_THAT(missingOf("tests/docs/names_test.cpp"), IsEmpty());
    EXPECT_THAT(missingOf("docs/names_test.cpp"), IsEmpty());
    EXPECT_THAT(missingOf("docs/names_*.cpp"), IsEmpty());
    EXPECT_THAT(missingOf("src/ithmb"), IsEmpty());
    EXPECT_THAT(missingOf("names_tests.cpp"), ElementsAre("names_tests.cpp is not there"));
    EXPECT_THAT(missingOf("src/<name>/nothing.h"),
                ElementsAre("src/<name>/nothing.h is not there"));
    EXPECT_THAT(missingOf("trash.h"), ElementsAre("trash.h is there more than once"));
    EXPECT_THAT(missingOf("CPhotoData::isHidden"), IsEmpty());
    EXPECT_THAT(missingOf("CPhotoData::isNowhere"), ElementsAre("isNowhere is not in the code"));
    EXPECT_THAT(missingOf("MissingNames.AreFound"), IsEmpty());
    EXPECT_THAT(missingOf("MissingNames.AreLost"), ElementsAre("MissingNames.AreLost is no test"));
    EXPECT_THAT(missingOf("photos --deleted --forgotten"),
                ElementsAre("--forgotten is not in the code"));
}
