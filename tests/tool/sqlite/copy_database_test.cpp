#include "sqlite/copy_database.h"

#include "support/library_builder.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;
using namespace iosphoto::tool;

TEST(ToolCopyDatabase, ThatIsLockedIsNotSaidToBeDamaged)
{
    LibraryBuilder library(ios15);
    library.execute("begin exclusive");
    const CopyDatabase database(library.path(), "Photos.sqlite");
    try {
        database.isDatabase();
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_STREQ(failure.what(), "cannot read 'Photos.sqlite': database is locked; close what "
                                     "uses it and try again, or set TMPDIR to a folder on a local "
                                     "disk");
    }
}

TEST(ToolCopyDatabase, ValueThatCannotBeGivenToAQueryIsNotLeftOut)
{
    const LibraryBuilder library(ios15);
    const CopyDatabase database(library.path(), "Photos.sqlite");
    const std::string query = "select ?1";
    const std::vector<std::string> oneTooMany = {"1", "2"};
    EXPECT_THROW(database.forEachRow(
                     query, [](const QueryRow & /*row*/) {}, oneTooMany),
                 Failure);
}

TEST(ToolCopyDatabase, QueryThatWouldRunOnAndOnIsStopped)
{
    const LibraryBuilder library(ios15);
    const CopyDatabase database(library.path(), "Photos.sqlite");
    try {
        database.forEachRow("with recursive endless(i) as (select 1 union all select i + 1 from "
                            "endless) select max(i) from endless",
                            [](const QueryRow & /*row*/) {});
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_STREQ(failure.what(), "cannot read 'Photos.sqlite': it asks for more work than any "
                                     "photo library of its size; copy it from the device or the "
                                     "backup again, its -wal with it");
    }
}
