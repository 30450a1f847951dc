#include "catalogue/left_out_reasons.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace iosphoto::tool;

TEST(RowAccount, KnowsHowManyRowsItDoesNotExplain)
{
    PhotoAccount account;
    account.rows = 10;
    account.listed = 6;
    account.leaveOut(PhotoReason::OfSharedAlbum);
    account.leaveOut(PhotoReason::OfSharedAlbum);
    account.leaveOut(PhotoReason::BurstFrame);
    EXPECT_EQ(account.unexplained(), 1);
    EXPECT_EQ(account.leftOutFor(PhotoReason::OfSharedAlbum), 2);
}

TEST(LeftOutReasons, HaveNamesOfTheirOwn)
{
    std::set<std::string> names;
    for (std::size_t reason = 0; reason < photoReasonCount; ++reason)
        names.insert(machineName(PhotoReason(reason)));
    EXPECT_EQ(names.size(), photoReasonCount);
}
