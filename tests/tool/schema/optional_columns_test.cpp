#include "schema/optional_columns.h"

#include "catalogue/left_out_reasons.h"
#include "rows/album_fields.h"
#include "rows/photo_fields.h"
#include "schema/missing_columns.h"

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

TEST(OptionalColumns, NameReasonsThatThereAre)
{
    std::vector<std::string> reasons;
    for (std::size_t i = 0; i < photoReasonCount; ++i)
        reasons.emplace_back(machineName(PhotoReason(i)));
    for (std::size_t i = 0; i < albumReasonCount; ++i)
        reasons.emplace_back(machineName(AlbumReason(i)));
    for (const OptionalColumn &column : optionalColumns())
        for (const std::string reason : column.reasons)
            EXPECT_THAT(reasons, Contains(reason));
}

TEST(SchemaGaps, ThatLoseNothingAreLessThanOneThatDoes)
{
    const auto gap = [](const char *column) {
        return MissingColumn{"ZASSET", findOptionalColumn(TableOfColumns::Assets, column)};
    };
    const SchemaGaps none = {{gap("ZSORTTOKEN"), gap("Z_OPT")}, ""};
    const SchemaGaps one = {{gap("ZFAVORITE")}, ""};
    EXPECT_LT(none.loss("17"), one.loss("18"));
}

TEST(OptionalColumns, StandEachOnce)
{
    for (const OptionalColumn &column : optionalColumns())
        EXPECT_EQ(findOptionalColumn(column.table, column.name), &column) << column.name;
}
