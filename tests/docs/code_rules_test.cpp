// What docs/architecture.md says of all code of a kind, and no single test can hold.
#include "docs/documents.h"
#include "support/source_texts.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>
#include <set>

using namespace iosphoto::test;
using testing::Contains;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace fs = std::filesystem;

namespace {

bool isCode(const fs::path &file)
{
    return file.extension() == ".h" || file.extension() == ".cpp";
}

/// The files of a folder with a line that an expression finds, as paths in the repository.
std::set<std::string> filesWith(const std::string &folder, const std::regex &line)
{
    std::set<std::string> found;
    for (const fs::path &file : repositoryFiles()) {
        if (file.string().rfind(folder, 0) != 0 || !isCode(file))
            continue;
        for (const std::string &each : linesOf(readFile(fs::path(IOSPHOTO_SOURCE) / file)))
            if (std::regex_search(each, line))
                found.insert(file.string());
    }
    return found;
}

/// A variable that is no constant: at the beginning of a line, as namespaces are not indented, or a
/// static one in a function.
const std::regex variable(
    R"(^(?!using|return|namespace|struct|class|enum|extern|typedef|template|friend|const|\}))"
    R"([A-Za-z_][\w:<>, *]*[ >*&][a-z]\w*( = [^(]*|\{.*\})?;( //.*)?$)"
    R"(|^ +static (?!const|constexpr)[^(]*;$)");

/// An option, or advice, which follows a semicolon.
bool isOfCommands(const std::string &text)
{
    return text.find("--") != std::string::npos || text.find("; ") != std::string::npos;
}

bool isChinese(const std::string &line)
{
    return std::any_of(line.begin(), line.end(), [](char byte) {
        const auto lead = static_cast<unsigned char>(byte);
        return lead >= 0xE4 && lead <= 0xE9;
    });
}

} // namespace

TEST(ProcessWideState, IsOnlyWhatASignalOrEveryTextNeeds)
{
    EXPECT_THAT(filesWith("tool/", variable),
                UnorderedElementsAre("tool/process/interruption_lock.cpp",
                                     "tool/process/temporary_path.cpp",
                                     "tool/terminal/hidden_input.cpp", "tool/text/translate.cpp"));
}

class LayersBelowTheCommands : public testing::TestWithParam<const char *>
{
};

TEST_P(LayersBelowTheCommands, NameNoOptionAndGiveNoAdvice)
{
    std::set<std::string> ofCommands;
    for (const std::string &text : textsIn(fs::path(IOSPHOTO_TOOL_SOURCES) / GetParam()))
        if (isOfCommands(text))
            ofCommands.insert(text);
    EXPECT_THAT(ofCommands, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Folders, LayersBelowTheCommands,
                         testing::Values("catalogue", "rows", "schema", "input", "statements"),
                         [](const auto &folder) { return std::string(folder.param); });

TEST(CommandTexts, AreWhatSuchTextsAreToldBy)
{
    EXPECT_THAT(textsIn(fs::path(IOSPHOTO_TOOL_SOURCES) / "commands"),
                Contains(testing::Truly(isOfCommands)));
}

TEST(ManagersMembers, StandInItsOwnFile)
{
    const std::regex member(R"(^[A-Za-z].*\bQDevPhotoDbMgr::~?\w+\()");
    EXPECT_THAT(filesWith("src/", member),
                UnorderedElementsAre("src/model/model_devicephoto_dbmgr.cpp"));
}

TEST(ChineseTexts, HaveEnglishBesideThem)
{
    std::size_t count = 0;
    for (const fs::path &file : repositoryFiles()) {
        if (file.string().rfind("src/", 0) != 0 || !isCode(file))
            continue;
        for (const std::string &line : linesOf(readFile(fs::path(IOSPHOTO_SOURCE) / file))) {
            if (!isChinese(line))
                continue;
            ++count;
            EXPECT_TRUE(std::regex_search(line, std::regex("// [A-Za-z]"))) << file << line;
        }
    }
    EXPECT_GT(count, 20U);
}
