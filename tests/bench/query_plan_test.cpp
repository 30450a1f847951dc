/// A generated library is worth measuring only if SQLite goes through it as through a real one.
#include "floor.h"
#include "store_generator.h"
#include "support/database.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::bench;
using namespace iosphoto::test;

namespace {

/// The steps of the plan of a statement, one a line.
std::string planOf(const SqliteConnection &connection, const std::string &statement)
{
    constexpr int detail = 3;
    const SqliteStatement plan = prepare(connection, "explain query plan " + statement);
    std::string steps;
    while (sqlite3_step(plan.get()) == SQLITE_ROW)
        steps.append(reinterpret_cast<const char *>(sqlite3_column_text(plan.get(), detail))) +=
            '\n';
    return steps;
}

/// The plans of all statements of the library.
std::vector<std::string> plansOn(const std::filesystem::path &database)
{
    std::vector<std::string> plans;
    const SqliteConnection connection = openDatabase(database);
    for (const std::string &statement : Floor(database).statements())
        plans.push_back(planOf(connection, statement));
    return plans;
}

} // namespace

TEST(QueryPlans, AreThoseOfARealLibrary)
{
    const auto source = std::filesystem::path(IOSPHOTO_REAL_LIBRARIES) / "ios15-a";
    if (!exists(source))
        GTEST_SKIP() << "the real libraries are not there";
    const TemporaryFolder real;
    for (const char *file : {"Photos.sqlite", "Photos.sqlite-wal"})
        writeFile(real / file, readFile(source / file));
    const TemporaryFolder generated;
    generateStore(generated / "Photos.sqlite", {100, 2, 10, 2, 5});

    const std::vector<std::string> plans = plansOn(generated / "Photos.sqlite");
    ASSERT_EQ(plans.size(), 7U);
    for (const std::string &plan : plans)
        EXPECT_NE(plan, "");
    EXPECT_EQ(plans, plansOn(real / "Photos.sqlite"));
}
