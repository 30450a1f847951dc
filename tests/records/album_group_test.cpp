#include "ios_photo.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>
#include <utility>

namespace {

/// An album in which no field has its default, and the records it shows.
struct FilledAlbum
{
    std::array<CPhotoData, 2> photos;
    CAlbumGroup album;

    FilledAlbum()
    {
        album.albumIndex = 4;
        album.albumCount = 2;
        album.albumKind = iosphoto::AlbumKind::User;
        album.albumName = QStringLiteral("Holiday");
        album.albumUuid = "B0000000-0000-0000-0000-000000000001";
        album.photos = {&photos.front(), &photos.back()};
        album.albumId = 5;
        album.isSmartAlbum = true;
    }
};

void expectSameAlbum(const CAlbumGroup &album, const CAlbumGroup &expected)
{
    EXPECT_EQ(album.albumIndex, expected.albumIndex);
    EXPECT_EQ(album.albumCount, expected.albumCount);
    EXPECT_EQ(album.albumKind, expected.albumKind);
    EXPECT_EQ(album.albumName, expected.albumName);
    EXPECT_EQ(album.albumUuid, expected.albumUuid);
    EXPECT_EQ(album.photos, expected.photos); // the very same records
    EXPECT_EQ(album.albumId, expected.albumId);
    EXPECT_EQ(album.isSmartAlbum, expected.isSmartAlbum);
}

/// Changes everything that a copy could share with its source.
void change(CAlbumGroup &album)
{
    album.albumName.append(QLatin1Char('x'));
    album.albumUuid += 'x';
    album.photos.pop_back();
}

} // namespace

TEST(AlbumGroup, StartsAsAnEmptyCameraRollOutsideOfAnyList)
{
    const CAlbumGroup album;
    EXPECT_EQ(album.albumIndex, -1);
    EXPECT_EQ(album.albumCount, 0);
    EXPECT_EQ(album.albumKind, 1);
    EXPECT_TRUE(album.albumName.isEmpty());
    EXPECT_TRUE(album.albumUuid.empty());
    EXPECT_TRUE(album.photos.empty());
    EXPECT_EQ(album.albumId, 0);
    EXPECT_FALSE(album.isSmartAlbum);
}

TEST(AlbumGroup, CopyHasTheSameFieldsAndPointsAtTheSameRecords)
{
    const FilledAlbum filled;
    const CAlbumGroup copy(filled.album);
    expectSameAlbum(copy, filled.album);
}

TEST(AlbumGroup, RecordsChangedThroughOneAlbumShowInItsCopy)
{
    const FilledAlbum filled;
    const CAlbumGroup copy(filled.album);
    filled.album.photos[1]->width = 640;
    EXPECT_EQ(copy.photos[1]->width, 640);
}

TEST(AlbumGroup, CopyHasAListAndTextsOfItsOwn)
{
    FilledAlbum filled;
    const CAlbumGroup before(filled.album);
    CAlbumGroup assigned;
    assigned = filled.album;
    const std::vector<CPhotoData *> photos = {&filled.photos.front(), &filled.photos.back()};
    change(filled.album);
    for (const CAlbumGroup *copy : {&before, &std::as_const(assigned)}) {
        EXPECT_EQ(copy->albumName, QStringLiteral("Holiday"));
        EXPECT_EQ(copy->albumUuid, "B0000000-0000-0000-0000-000000000001");
        EXPECT_EQ(copy->photos, photos);
    }
}

TEST(AlbumGroup, AssignmentReplacesEveryField)
{
    const FilledAlbum filled;
    CAlbumGroup album;
    album.albumName = QStringLiteral("Other");
    CPhotoData other;
    album.photos = {&other, &other, &other};
    album = filled.album;
    expectSameAlbum(album, filled.album);
}

TEST(AlbumGroup, MoveHandsTheRecordsOverAndLeavesTheSourceWithoutAny)
{
    static_assert(std::is_nothrow_move_constructible_v<CAlbumGroup>);
    static_assert(std::is_nothrow_move_assignable_v<CAlbumGroup>);
    const FilledAlbum expected;
    CAlbumGroup source(expected.album);
    CAlbumGroup constructed(std::move(source));
    expectSameAlbum(constructed, expected.album);
    EXPECT_TRUE(source.photos.empty()); // NOLINT(bugprone-use-after-move): what is tested

    CAlbumGroup assigned;
    assigned = std::move(constructed);
    expectSameAlbum(assigned, expected.album);
    EXPECT_TRUE(constructed.photos.empty()); // NOLINT(bugprone-use-after-move): what is tested
}

TEST(AlbumGroup, DestroyedWithoutItsRecords)
{
    CPhotoData photo;
    {
        CAlbumGroup album;
        album.photos = {&photo};
    }
    photo.width = 640; // on the stack: an album that deleted it would have ended the process
    EXPECT_EQ(photo.width, 640);
}
