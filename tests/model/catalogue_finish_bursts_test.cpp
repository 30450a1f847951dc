#include "support/hand_made_catalogue.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

constexpr bool pick = true;
constexpr bool frame = false;

CPhotoData &addFrame(CAlbumGroup &album, const char *file, const char *burst, bool isPick)
{
    CPhotoData &photo = HandMadeCatalogue::addPhoto(album, file);
    photo.isBurst = true;
    photo.isBurstPick = isPick ? 1 : 0;
    photo.burstUuid = QString::fromLatin1(burst);
    photo.burstCount = 99; // to see it set
    return photo;
}

/// Inserts `frames` frames of one burst into `library`, the third of which stands for it.
void addBurst(LibraryBuilder &library, int frames)
{
    for (int i = 1; i <= frames; ++i)
        library.asset("BURST" + std::to_string(i) + ".JPG")
            .set("ZAVALANCHEPICKTYPE", i == 3 ? 16 : 1)
            .set("ZAVALANCHEUUID", "burst");
}

} // namespace

TEST(BurstFinish, OnlyBurstsKeepsTheFramesThatNobodyPicked)
{
    HandMadeCatalogue made;
    for (int kind = AlbumKind::CameraRoll; kind <= AlbumKind::AllDeleted; ++kind) {
        CAlbumGroup &album = made.add(static_cast<AlbumKind::Code>(kind), kind % 2 == 0, "Album");
        addFrame(album, "1.jpg", "burst", frame);
        addFrame(album, "2.jpg", "burst", pick);
        addFrame(album, "3.jpg", "burst", frame);
        HandMadeCatalogue::addPhoto(album, "4.jpg");
    }
    made.finish();
    for (const CAlbumGroup &album : made.albums) {
        SCOPED_TRACE(album.albumKind);
        if (album.albumKind == AlbumKind::Bursts)
            EXPECT_EQ(files(&album), (Files{"1.jpg", "2.jpg", "3.jpg", "4.jpg"}));
        else if (album.albumKind == AlbumKind::Videos)
            EXPECT_EQ(files(&album).size(), 8U); // and the three kinds that it gathers
        else
            EXPECT_EQ(files(&album), (Files{"2.jpg", "4.jpg"}));
    }
}

TEST(BurstFinish, PickWithoutABurstIsNotThinnedOut)
{
    HandMadeCatalogue made;
    CAlbumGroup &roll = made.add(AlbumKind::CameraRoll, plain, "Roll");
    HandMadeCatalogue::addPhoto(roll, "1.jpg").isBurstPick = 1;
    made.finish();
    EXPECT_EQ(files(&made.albums.front()), (Files{"1.jpg"}));
}

TEST(BurstFinish, AlbumThatThinningEmptiesStaysWithACountOfZero)
{
    HandMadeCatalogue made;
    addFrame(made.add(AlbumKind::Selfies, smart, "Selfies"), "1.jpg", "burst", frame);
    made.finish();
    ASSERT_EQ(made.albums.size(), 1U);
    EXPECT_EQ(files(&made.albums.front()), Files());
    EXPECT_EQ(made.albums[0].albumCount, 0);
}

TEST(BurstFinish, BurstsCountsPicksAndOtherAlbumsCountPhotos)
{
    HandMadeCatalogue made;
    for (const auto kind : {AlbumKind::CameraRoll, AlbumKind::Bursts}) {
        CAlbumGroup &album = made.add(kind, kind == AlbumKind::Bursts, "Album");
        album.albumCount = 99;
        addFrame(album, "1.jpg", "one", pick);
        addFrame(album, "2.jpg", "one", frame);
        addFrame(album, "3.jpg", "other", frame);
        addFrame(album, "4.jpg", "other", pick);
        HandMadeCatalogue::addPhoto(album, "5.jpg");
    }
    made.finish();
    EXPECT_EQ(made.albums[0].albumCount, 3);
    EXPECT_EQ(made.albums[1].albumCount, 2);
}

TEST(BurstFinish, PicksKnowTheSizeOfTheirBurstAndOtherFramesAreZero)
{
    HandMadeCatalogue made;
    addFrame(made.add(AlbumKind::CameraRoll, plain, "Roll"), "2.jpg", "one", pick);
    CAlbumGroup &bursts = made.add(AlbumKind::Bursts, smart, "Bursts");
    addFrame(bursts, "1.jpg", "one", frame);
    addFrame(bursts, "2.jpg", "one", pick);
    addFrame(bursts, "3.jpg", "other", pick);
    addFrame(bursts, "4.jpg", "one", frame);
    HandMadeCatalogue::addPhoto(bursts, "5.jpg").burstUuid = QStringLiteral("other");
    made.finish();
    std::vector<int> sizes;
    for (const CPhotoData *photo : made.albums[1].photos)
        sizes.push_back(photo->burstCount);
    EXPECT_EQ(sizes, (std::vector<int>{0, 3, 2, 0, 0}));
    EXPECT_EQ(made.albums[0].photos[0]->burstCount, 3);
}

TEST(BurstFinish, PhotosOutsideOfBurstsKeepTheSizeTheyHad)
{
    HandMadeCatalogue made;
    CAlbumGroup &roll = made.add(AlbumKind::CameraRoll, plain, "Roll");
    HandMadeCatalogue::addPhoto(roll, "1.jpg").burstCount = 7;
    made.finish();
    EXPECT_EQ(made.albums[0].photos[0]->burstCount, 7);
}

TEST(BurstFinish, SizesAreZeroWithoutABurstsAlbum)
{
    HandMadeCatalogue made;
    addFrame(made.add(AlbumKind::CameraRoll, plain, "Roll"), "1.jpg", "burst", pick);
    made.finish();
    EXPECT_EQ(made.albums[0].photos[0]->burstCount, 0);
}

TEST(BurstFinish, SizesAreThoseOfTheFirstBurstsAlbum)
{
    HandMadeCatalogue made;
    for (const int frames : {2, 4}) {
        CAlbumGroup &bursts = made.add(AlbumKind::Bursts, plain, "Bursts");
        addFrame(bursts, "1.jpg", "burst", pick);
        for (int i = 1; i < frames; ++i)
            addFrame(bursts, "2.jpg", "burst", frame);
    }
    addFrame(made.albums[1], "3.jpg", "only in the second", pick);
    made.finish();
    EXPECT_EQ(made.albums[0].photos.front()->burstCount, 2);
    EXPECT_EQ(made.albums[1].photos.front()->burstCount, 2);
    EXPECT_EQ(made.albums[1].photos.back()->burstCount, 0);
}

TEST(BurstFinish, UuidsOfBurstsAreComparedExactly)
{
    HandMadeCatalogue made;
    CAlbumGroup &bursts = made.add(AlbumKind::Bursts, smart, "Bursts");
    addFrame(bursts, "1.jpg", "burst", pick);
    addFrame(bursts, "2.jpg", "BURST", pick);
    addFrame(bursts, "3.jpg", "burst ", pick);
    made.finish();
    for (const CPhotoData *photo : made.albums[0].photos)
        EXPECT_EQ(photo->burstCount, 1);
}

class BurstOfALibrary : public testing::TestWithParam<Schema>
{
};

TEST_P(BurstOfALibrary, IsOneInBurstsAndItsPickAloneShowsElsewhere)
{
    LibraryBuilder library(GetParam());
    addBurst(library, 5);

    const Catalogue catalogue(library);

    const CAlbumGroup *bursts = catalogue.smart(AlbumKind::Bursts);
    ASSERT_EQ(files(bursts),
              (Files{"BURST1.JPG", "BURST2.JPG", "BURST3.JPG", "BURST4.JPG", "BURST5.JPG"}));
    EXPECT_EQ(bursts->albumCount, 1);
    EXPECT_EQ(catalogue.photo(bursts, "BURST3.JPG").burstCount, 5);
    EXPECT_EQ(catalogue.photo(bursts, "BURST1.JPG").burstCount, 0);
    EXPECT_EQ(files(catalogue.cameraRoll()), (Files{"BURST3.JPG"}));
    EXPECT_EQ(catalogue.cameraRoll()->albumCount, 1);
    EXPECT_EQ(catalogue.photo("BURST3.JPG").burstCount, 5);
}

INSTANTIATE_TEST_SUITE_P(Schemas, BurstOfALibrary, testing::ValuesIn(schemasFrom(ios8)),
                         SchemaName());
