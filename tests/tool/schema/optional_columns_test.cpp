#include "schema/optional_columns.h"

#include "rows/album_fields.h"
#include "rows/photo_fields.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace iosphoto::tool;
using testing::AnyOf;
using testing::Contains;

TEST(OptionalColumns, NameFieldsThatThereAre)
{
    for (const OptionalColumn &column : optionalColumns())
        for (const std::string field : column.fields)
            EXPECT_TRUE(testing::Value(keysOf(photoFields()), Contains(field)) ||
                        testing::Value(keysOf(albumFields()), Contains(field)))
                << field;
}

TEST(OptionalColumns, StandEachOnce)
{
    for (const OptionalColumn &column : optionalColumns())
        EXPECT_EQ(findOptionalColumn(column.table, column.name), &column) << column.name;
}
