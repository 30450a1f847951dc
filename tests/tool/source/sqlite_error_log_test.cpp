#include "source/sqlite_error_log.h"

#include "failure.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

using namespace iosphoto::tool;

TEST(ToolSqliteErrorLog, CannotBeInstalledOnceSqliteIsInUse)
{
    ASSERT_EQ(sqlite3_initialize(), SQLITE_OK);
    EXPECT_THROW(sqlite_error_log::install(), Failure);
}
