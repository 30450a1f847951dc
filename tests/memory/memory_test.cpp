#include "memory/failing_allocation.h"
#include "records/record_ownership.h"
#include "support/catalogue.h"

#include <QtGlobal>
#include <gtest/gtest.h>

#include <memory>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

constexpr int outOfMemory = -7;

/// A library in which every pass finds records, some of which are shown nowhere.
void fill(LibraryBuilder &library)
{
    const bool hasTrash = !library.schema().hasBlobUuids;
    const AlbumRow roll = library.album(hasTrash ? Value("") : Value());
    const AlbumRow holiday = library.album("An album with a title of some length").set("ZKIND", 1);
    const AlbumRow stream = library.photoStream();
    library.asset("IMG_0001.JPG").in(roll).in(holiday).in(stream);
    library.asset("").in(roll).in(holiday);
    AssetRow video = library.asset("IMG_0003.MOV").video().in(roll);
    library.asset("SYNC0004.JPG").synced();
    library.asset("").synced();
    if (!hasTrash)
        return;
    video.set("ZKINDSUBTYPE", 101);
    library.asset("IMG_0006.JPG").trashedAt(0);
    library.asset("IMG_0007.JPG").set("ZAVALANCHEPICKTYPE", 16).set("ZAVALANCHEUUID", "burst");
    library.asset("IMG_0008.JPG").set("ZAVALANCHEPICKTYPE", 2).set("ZAVALANCHEUUID", "burst");
    library.asset("IMG_0009.JPG").set("ZCLOUDASSETGUID", "guid").in(stream);
    library.asset("IMG_0010.PNG").set("ZKINDSUBTYPE", 1).set("ZFAVORITE", 1).in(holiday);
    library.asset("IMG_0011.JPG").set("ZDATECREATED", -1e9).set("ZADDEDDATE", -1e9).in(roll);
}

std::size_t recordCount(const std::vector<CAlbumGroup> &albums)
{
    std::size_t count = 0;
    for (const CAlbumGroup &album : albums)
        count += album.photos.size();
    return count;
}

/// What one call did.
struct Call
{
    int result = 0;
    std::size_t records = 0;
    bool isListUntouched = false;
    bool isReportedWhole = false;
    bool hasFailed = false;
    long leaked = 0; ///< blocks
};

/// Calls with the n-th allocation failing, or with none for 0.
template <typename Failing>
Call callFailing(const std::string &file, const char *ios, const char *model, long number)
{
    Call call;
    const long before = liveAllocations();
    {
        std::string path = file;
        std::string iosVersion = ios;
        std::string productType = model;
        std::vector<CAlbumGroup> albums(1);
        const CAlbumGroup *const storage = albums.data();
        CReadReport report;
        {
            const Failing failing(number);
            call.result = ios_photo_get_list_reported(std::move(path), std::move(iosVersion),
                                                      std::move(productType), &albums, &report);
            call.hasFailed = failing.hasFailed();
        }
        call.isListUntouched = albums.data() == storage && albums.size() == 1;
        call.isReportedWhole = report.isComplete();
        call.records = recordCount(albums);
        destroyRecords(albums);
    }
    call.leaked = liveAllocations() - before;
    return call;
}

class MemoryOfEverySchema : public testing::TestWithParam<Schema>
{
protected:
    MemoryOfEverySchema() : library_(GetParam())
    {
        fill(library_);
        path_ = library_.path();
        folder_ = library_.folder().string();
        // Whatever is allocated once and kept is allocated now.
        call(path_);
        call(folder_);
    }

    template <typename Failing = FailingAllocation>
    Call call(const std::string &file, long failing = 0) const
    {
        return callFailing<Failing>(file, GetParam().iosVersion, GetParam().productType, failing);
    }
    /// Makes every `stride`-th malloc of a call fail, each in a call of its own.
    void failMallocs(int stride) const
    {
        if (!FailingMalloc::isPossible())
            GTEST_SKIP() << "malloc cannot be replaced here";
        const QtMessageHandler shown =
            qInstallMessageHandler([](QtMsgType /*type*/, const QMessageLogContext & /*context*/,
                                      const QString & /*text*/) {});
        const Call complete = call(path_);
        for (long number = 1;; number += stride) {
            SCOPED_TRACE(testing::Message() << "malloc " << number);
            const Call attempt = call<FailingMalloc>(path_, number);
            ASSERT_EQ(attempt.leaked, 0);
            if (!attempt.hasFailed)
                break;
            ASSERT_NO_FATAL_FAILURE(expectCodeOrAll(attempt, complete));
        }
        qInstallMessageHandler(shown);
    }
    static void expectCodeOrAll(const Call &attempt, const Call &complete)
    {
        if (attempt.result == 0) { // could do without
            ASSERT_EQ(attempt.records, complete.records);
            ASSERT_TRUE(attempt.isReportedWhole);
        } else {
            ASSERT_EQ(attempt.result, outOfMemory);
            ASSERT_TRUE(attempt.isListUntouched);
        }
    }
    int callWithoutList(const std::string &file) const
    {
        return ios_photo_get_list(file, GetParam().iosVersion, GetParam().productType, nullptr);
    }

    LibraryBuilder library_;
    std::string path_;
    std::string folder_;
};

} // namespace

TEST_P(MemoryOfEverySchema, RecordsOfACatalogueAreTheCallersAndNothingElseIsLeft)
{
    const Call success = call(path_);
    EXPECT_EQ(success.result, 0);
    EXPECT_GT(success.records, 4U);
    EXPECT_EQ(success.leaked, 0);
}

TEST_P(MemoryOfEverySchema, RecordsAreDestroyedWhereThereIsNoList)
{
    const long before = liveAllocations();
    const int result = callWithoutList(path_);
    const long leaked = liveAllocations() - before;
    EXPECT_EQ(result, 0);
    EXPECT_EQ(leaked, 0);
}

TEST_P(MemoryOfEverySchema, FailedOpenLeavesNothing)
{
    EXPECT_EQ(call(folder_).result, -14);
    EXPECT_EQ(call(folder_).leaked, 0);
    const long before = liveAllocations();
    callWithoutList(folder_);
    EXPECT_EQ(liveAllocations() - before, 0);
}

TEST_P(MemoryOfEverySchema, LackOfMemoryAtAnyMomentGivesItsCodeAndLeavesNothing)
{
    const Call complete = call(path_);
    long number = 1;
    for (;; ++number) {
        SCOPED_TRACE(testing::Message() << "allocation " << number);
        const Call attempt = call(path_, number);
        ASSERT_EQ(attempt.leaked, 0);
        if (!attempt.hasFailed) {
            EXPECT_EQ(attempt.result, 0);
            break;
        }
        ASSERT_NO_FATAL_FAILURE(expectCodeOrAll(attempt, complete));
    }
    EXPECT_GT(number, static_cast<long>(complete.records)); // each record failed once
}

TEST_P(MemoryOfEverySchema, LackOfMemoryLeavesNoBuiltInAlbumsHalfLaidDown)
{
    OwningManager manager(library_);
    long number = 1;
    for (;; ++number) {
        const FailingAllocation failing(number);
        const int result = manager.SetDefaultAlbum();
        if (!failing.hasFailed()) {
            EXPECT_EQ(result, 0);
            break;
        }
        ASSERT_EQ(result, outOfMemory) << "allocation " << number;
        ASSERT_TRUE(manager.albums.empty()) << "allocation " << number;
    }
    EXPECT_GT(number, 1);
}

TEST_P(MemoryOfEverySchema, FailureOfAnyMallocGivesItsCodeOrTheWholeCatalogue)
{
    constexpr int some = 31; // of some six thousand; every one of them takes five seconds
    library_.asset("550F4600-492B-4411-8A64-D3FC5131659B.JPG"); // one that is traced
    failMallocs(some);
}

TEST_P(MemoryOfEverySchema, FailureOfAnyMallocBesideALogGivesItsCodeOrTheWholeCatalogue)
{
    constexpr int some = 37;
    library_.execute("pragma journal_mode = wal");
    library_.asset("IMG_0012.JPG");
    failMallocs(some);
}

TEST(Memory, FailureOfAnyMallocWhileAViewIsRefusedIsSurvived)
{
    if (!FailingMalloc::isPossible())
        GTEST_SKIP() << "malloc cannot be replaced here";
    LibraryBuilder library(ios15, "UTF-16"); // so that SQLite converts each text
    library.execute("drop table ZASSET; create view ZASSET as select 1");
    library.close();
    const auto call = [&](long number) {
        return callFailing<FailingMalloc>(library.path(), "15.0", "iPhone14,2", number);
    };
    call(0);
    for (long number = 1;; number += 3) {
        const Call attempt = call(number);
        if (!attempt.hasFailed)
            break;
        ASSERT_TRUE(attempt.result == 0 || attempt.result == outOfMemory) << number;
        ASSERT_FALSE(attempt.isReportedWhole) << number;
    }
}

INSTANTIATE_TEST_SUITE_P(Schemas, MemoryOfEverySchema, testing::ValuesIn(allSchemas), SchemaName());
