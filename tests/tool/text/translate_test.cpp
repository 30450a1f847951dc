#include "support/source_texts.h"
#include "support/temporary_folder.h"
#include "text/numbers.h"
#include "text/translate.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <map>

using namespace iosphoto::test;
using namespace iosphoto::tool;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Texts = std::map<std::string, std::string>;

Texts chineseTexts()
{
    const std::string file = readFile(IOSPHOTO_TOOL_SOURCES "/text/chinese.json");
    return nlohmann::json::parse(file).get<Texts>();
}

/// Speaks a language while it lives.
class Speaking
{
public:
    explicit Speaking(Language language) { setLanguage(language); }
    ~Speaking() { setLanguage(Language::English); }
    Speaking(const Speaking &) = delete;
    Speaking &operator=(const Speaking &) = delete;
};

} // namespace

TEST(SourceTexts, AreTheMarkedLiteralsJoined)
{
    EXPECT_THAT(
        textsOf("translate(\"a \"\n  \"b {0}\", other(\"no\"), \"no\"); // translate(\"no\")\n"
                "translate(is ? \"c\" : \"d\\n\"); x = {\"no\", translatable(\"e\")};\n"
                "counted(count(\"no\"), \"one\", \"many\", \"no\"); 'a'; f(\"no\");"
                "translateTo(language, \"f\", \"no\"); translate(text(translate(\"g\")), \"no\");"),
        ElementsAre("a b {0}", "c", "d\n", "e", "f", "g", "many", "one"));
}

TEST(Chinese, HasEveryText)
{
    const Texts chinese = chineseTexts();
    std::vector<std::string> missing;
    for (const std::string &text : textsIn(IOSPHOTO_TOOL_SOURCES))
        if (chinese.count(text) == 0)
            missing.push_back(text);
    EXPECT_THAT(missing, IsEmpty());
}

TEST(Chinese, HasNoTextThatNobodySays)
{
    const std::set<std::string> used = textsIn(IOSPHOTO_TOOL_SOURCES);
    ASSERT_FALSE(used.empty());
    std::vector<std::string> unused;
    for (const auto &[english, chinese] : chineseTexts())
        if (used.count(english) == 0)
            unused.push_back(english);
    EXPECT_THAT(unused, IsEmpty());
}

TEST(Chinese, HasThePlacesOfTheEnglishTexts)
{
    for (const auto &[english, chinese] : chineseTexts()) {
        EXPECT_EQ(placesOf(chinese), placesOf(english)) << english;
        EXPECT_NE(chinese, "") << english;
    }
}

TEST(Said, SpeaksTheLanguageThatWasChosen)
{
    EXPECT_EQ(translate("cannot read '{0}': {1}", "x", 1), "cannot read 'x': 1");
    const Speaking chinese(Language::Chinese);
    EXPECT_EQ(translate("cannot read '{0}': {1}", "x", 1), "无法读取“x”：1");
    EXPECT_EQ(translate("words that have no translation: {0}", 1),
              "words that have no translation: 1");
    EXPECT_EQ(translateTo(Language::English, "cannot read '{0}': {1}", "x", 1),
              "cannot read 'x': 1");
}

TEST(Counted, HasAWordForOneAndAWordForMany)
{
    EXPECT_EQ(counted(1, "{0} record of {1}", "{0} records of {1}", "x"), "1 record of x");
    EXPECT_EQ(counted(2000, "{0} record of {1}", "{0} records of {1}", "x"), "2,000 records of x");
    EXPECT_EQ(counted(0, "{0} record", "{0} records"), "0 records");
}
