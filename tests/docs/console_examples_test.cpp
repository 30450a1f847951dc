// Every `$ iosphoto ...` of the documentation is run, and has to print what stands below it.
#include "docs/documents.h"
#include "support/case_name.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

using namespace iosphoto::test;

namespace fs = std::filesystem;

namespace {

struct Example
{
    std::string document;
    std::string command;
    Lines shown;

    std::string name() const { return document + "_" + command; }
};

std::ostream &operator<<(std::ostream &stream, const Example &example)
{
    return stream << example.command;
}

/// The commands of a document's console blocks with the lines below each.
std::vector<Example> examplesIn(const std::string &document)
{
    std::vector<Example> examples;
    for (const CodeBlock &block : codeBlocksIn(document)) {
        if (block.language != "console")
            continue;
        for (const std::string &line : block.lines) {
            if (line.rfind("$ ", 0) == 0)
                examples.push_back({document, line.substr(2), {}});
            else if (!examples.empty())
                examples.back().shown.push_back(line);
        }
    }
    return examples;
}

std::vector<Example> allExamples()
{
    std::vector<Example> ours;
    for (const std::string &document : allDocuments()) {
        for (Example &example : examplesIn(document)) {
            while (!example.shown.empty() && example.shown.back().empty())
                example.shown.pop_back();
            if (example.command.rfind("iosphoto ", 0) == 0)
                ours.push_back(std::move(example));
        }
    }
    return ours;
}

/// What a shell prints for a command, both streams, in a folder that has the sample.
Lines outputOf(const std::string &command, const fs::path &folder)
{
    const std::string line = "cd '" + folder.string() + "' && PATH='" +
                             fs::path(IOSPHOTO_TOOL).parent_path().string() + "':\"$PATH\" && { " +
                             command + "; } > out 2>&1";
    EXPECT_NE(std::system(line.c_str()), -1);
    return linesOf(readFile(folder / "out"));
}

/// Whether the lines are those shown, of which " ..." stands for any number.
bool areAsShown(Lines::const_iterator shown, Lines::const_iterator shownEnd,
                Lines::const_iterator line, Lines::const_iterator end)
{
    if (shown == shownEnd)
        return line == end;
    if (*shown == " ...") {
        for (; line != end; ++line)
            if (areAsShown(shown + 1, shownEnd, line, end))
                return true;
        return areAsShown(shown + 1, shownEnd, end, end);
    }
    return line != end && *shown == *line && areAsShown(shown + 1, shownEnd, line + 1, end);
}

} // namespace

class ConsoleExample : public testing::TestWithParam<Example>
{
};

TEST_P(ConsoleExample, ShowsWhatTheToolPrints)
{
    const TemporaryFolder folder;
    const std::string makeSample = IOSPHOTO_SOURCE "/sample/make '" +
                                   (folder / "build/sample").string() +
                                   "' '" IOSPHOTO_SAMPLE_THUMB_CACHE "'";
    ASSERT_EQ(std::system(makeSample.c_str()), 0);

    const Lines lines = outputOf(GetParam().command, folder.path());

    EXPECT_TRUE(
        areAsShown(GetParam().shown.begin(), GetParam().shown.end(), lines.begin(), lines.end()))
        << "it prints:\n"
        << testing::PrintToString(lines);
}

INSTANTIATE_TEST_SUITE_P(Documents, ConsoleExample, testing::ValuesIn(allExamples()), NameOfCase());
