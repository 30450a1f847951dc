#include "rows/sqlite_output.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;
using namespace iosphoto::tool;

namespace {

constexpr int longestText = 10000;

int limitTexts(sqlite3 *connection, char ** /*error*/, const sqlite3_api_routines * /*routines*/)
{
    sqlite3_limit(connection, SQLITE_LIMIT_LENGTH, longestText);
    return SQLITE_OK;
}

/// While it lives, texts of more bytes than longestText are too long for SQLite.
class ShortTexts
{
public:
    ShortTexts() { sqlite3_auto_extension(entry()); }
    ~ShortTexts() { sqlite3_cancel_auto_extension(entry()); }
    ShortTexts(const ShortTexts &) = delete;
    ShortTexts &operator=(const ShortTexts &) = delete;

private:
    static void (*entry())() { return reinterpret_cast<void (*)()>(limitTexts); }
};

} // namespace

class ToolSqliteRows : public testing::Test
{
protected:
    /// What is said of a row.
    std::string complaint(const std::vector<Value> &row)
    {
        SqliteOutput output(files_, folder_ / "out.db", "/nowhere", Json::object({{"a", 1}}));
        output.execute("create table things (a, b)");
        try {
            SqliteInsert(output, "things", 2).row(row);
            return {};
        } catch (const OutputError &error) {
            EXPECT_EQ(error.finding().kind, OutputProblem::Unwritten);
            return error.finding().facts.back();
        }
    }

    ShortTexts shortTexts_;
    FileUse files_;
    TemporaryFolder folder_;
};

TEST_F(ToolSqliteRows, TakeTextsAsLongAsSqliteDoes)
{
    EXPECT_EQ(complaint({1.5, std::string(longestText / 2, 'x')}), "");
}

TEST_F(ToolSqliteRows, DoNotLoseATextThatIsTooLong)
{
    EXPECT_EQ(complaint({1.5, std::string(longestText + 1, 'x')}), "string or blob too big");
}

TEST_F(ToolSqliteRows, DoNotLoseAValueThatFindsNoPlace)
{
    const std::vector<Value> oneTooMany = {std::string("1"), 2.5, true};
    EXPECT_EQ(complaint(oneTooMany), "column index out of range");
}
