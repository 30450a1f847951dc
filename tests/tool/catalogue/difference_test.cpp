#include "catalogue/difference.h"
#include "support/hand_made_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

using namespace iosphoto;
using namespace iosphoto::test;
using namespace iosphoto::tool;

namespace {

/// A library with a Camera Roll and, where it is asked for, albums of the table.
class MadeSnapshot
{
public:
    MadeSnapshot() { catalogue_.add(AlbumKind::CameraRoll, plain, "Camera Roll"); }

    CPhotoData &photo(const std::string &uuid, const std::string &file = "IMG.JPG")
    {
        CPhotoData &added = HandMadeCatalogue::addPhoto(catalogue_.albums.front(), file);
        added.uuid = uuid;
        return added;
    }

    /// Another record of a photo, in an album.
    void show(const std::string &photoUuid, const std::string &albumUuid)
    {
        CAlbumGroup &album = catalogue_.add(AlbumKind::User, smart, "Trip");
        album.albumUuid = albumUuid;
        HandMadeCatalogue::addPhoto(album, "IMG.JPG").uuid = photoUuid;
    }

    const std::vector<CAlbumGroup> &albums() const { return catalogue_.albums; }

private:
    HandMadeCatalogue catalogue_;
};

/// What a comparison refers to.
struct Lists
{
    Lists(const MadeSnapshot &before, const MadeSnapshot &after)
        : first(before.albums()), second(after.albums())
    {
    }

    AssetList first;
    AssetList second;
    KnownDates dates;
    Trash trash;
    std::vector<std::string> unknown;
};

struct Compared : Lists, LibraryDifference
{
    Compared(const MadeSnapshot &before, const MadeSnapshot &after)
        : Lists(before, after), LibraryDifference{compareAlbums(before.albums(), after.albums()),
                                                  comparePhotos({first, dates, trash, unknown},
                                                                {second, dates, trash, unknown})}
    {
    }
};

} // namespace

class Difference : public testing::Test
{
protected:
    MadeSnapshot before_;
    MadeSnapshot after_;
};

TEST_F(Difference, OfEmptyLibrariesIsNone)
{
    const Compared difference(before_, after_);
    EXPECT_TRUE(difference.isNone());
    EXPECT_EQ(difference.photos.inBoth, 0U);
}

TEST_F(Difference, UuidsAreTheSameInTheFormsOfAllSystems)
{
    before_.photo("a0b1c2d3e4f5061728394a5b6c7d8e9f");
    before_.show("a0b1c2d3e4f5061728394a5b6c7d8e9f", "b0b1c2d3e4f5061728394a5b6c7d8e9f");
    after_.photo("A0B1C2D3-E4F5-0617-2839-4A5B6C7D8E9F");
    after_.show("A0B1C2D3-E4F5-0617-2839-4A5B6C7D8E9F", "B0B1C2D3-E4F5-0617-2839-4A5B6C7D8E9F");
    const Compared difference(before_, after_);
    EXPECT_TRUE(difference.isNone());
    EXPECT_EQ(difference.photos.inBoth, 1U);
}

TEST_F(Difference, UuidAndPathOfTheSameTextAreNotTheSamePhoto)
{
    before_.photo("", "IMG");
    after_.photo("IMG", "IMG");
    const Compared difference(before_, after_);
    EXPECT_EQ(difference.count(Change::New), 1);
    EXPECT_EQ(difference.count(Change::Gone), 1);
    EXPECT_EQ(difference.photos.inBoth, 0U);
}

TEST_F(Difference, RecordsOfOnePathWithoutUuidAreOnePhoto)
{
    before_.photo("");
    before_.show("", "TRIP");
    before_.photo("");
    after_.photo("");
    after_.show("", "TRIP");
    const Compared difference(before_, after_);
    EXPECT_TRUE(difference.photos.differences.empty());
    EXPECT_EQ(difference.photos.inBoth, 1U);
}

TEST_F(Difference, FactsComeFromAllRecordsOfAPhoto)
{
    before_.photo("A");
    after_.photo("A");
    after_.photo("A").isFavorite = true;
    const Compared difference(before_, after_);
    ASSERT_EQ(difference.photos.differences.size(), 1U);
    const auto fields = difference.photos.differences[0].changedFields;
    ASSERT_EQ(fields.size(), 1U);
    EXPECT_STREQ(fields[0]->key, "isFavorite");
}

TEST_F(Difference, FractionsOfSecondsDoNotCount)
{
    before_.photo("A").createdTime = 10;
    after_.photo("A").createdTime = 10.75;
    EXPECT_TRUE(Compared(before_, after_).isNone());
}

TEST_F(Difference, OrderOfTheSecondLibraryCountsThenThatOfTheFirst)
{
    for (const char *uuid : {"Z", "M", "A", "K"})
        before_.photo(uuid);
    for (const char *uuid : {"Y", "K", "B"})
        after_.photo(uuid).isFavorite = true;
    std::string order;
    const Compared difference(before_, after_);
    for (const PhotoDifference &photo : difference.photos.differences)
        order += photo.latest().uuid();
    EXPECT_EQ(order, "YKBZMA");
}

TEST_F(Difference, OfManyPhotosInOppositeOrderTakesNoTime)
{
    constexpr int count = 50000;
    for (int i = 0; i < count; ++i) {
        before_.photo("same" + std::to_string(i));
        after_.photo("same" + std::to_string(count - i));
    }
    const auto start = std::chrono::steady_clock::now();
    const Compared difference(before_, after_);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
    EXPECT_EQ(difference.photos.inBoth, std::size_t(count - 1));
    EXPECT_EQ(difference.count(Change::New), 1);
    EXPECT_EQ(difference.count(Change::Gone), 1);
}
