#include "catalogue/photo_order.h"
#include "support/hand_made_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace iosphoto;
using namespace iosphoto::test;
using namespace iosphoto::tool;

namespace {

/// Photos whose dates come in runs of all lengths, and again and again.
class PhotoOrderOfMany : public testing::TestWithParam<PhotoOrder>
{
protected:
    PhotoOrderOfMany()
    {
        constexpr int photos = 500;
        CAlbumGroup &album = catalogue_.add(AlbumKind::CameraRoll, plain, "Camera Roll");
        for (int i = 0; i < photos; ++i) {
            const int value = i * i % 97 / (i < photos / 2 ? 1 : 20);
            CPhotoData &photo = HandMadeCatalogue::addPhoto(album, std::to_string(value));
            photo.assetId = i;
            photo.createdTime = i % 50 == 7 ? std::nan("") : value;
            photo.fileSize = value;
        }
    }

    std::vector<RecordNumber> sorted(const PhotoSorting &sorting) const
    {
        const AssetList assets(catalogue_.albums);
        ChosenAssets photos(assets, assets);
        for (const Asset asset : assets)
            photos.push_back(asset);
        sortPhotos(photos, sorting, Trash(), KnownDates());
        return photos.numbers();
    }

    /// The same by the standard library's sort.
    std::vector<RecordNumber> expected() const
    {
        const std::vector<CPhotoData *> &photos = catalogue_.albums.front().photos;
        std::vector<RecordNumber> numbers(photos.size());
        for (std::size_t i = 0; i < numbers.size(); ++i)
            numbers[i] = static_cast<RecordNumber>(i);
        const auto time = [](const CPhotoData &photo) {
            return photo.createdTime > 0 ? photo.createdTime : -1; // none
        };
        std::stable_sort(numbers.begin(), numbers.end(),
                         [&](RecordNumber left, RecordNumber right) {
                             const CPhotoData &one = *photos[left];
                             const CPhotoData &other = *photos[right];
                             if (GetParam() == PhotoOrder::Name)
                                 return one.fileName < other.fileName;
                             if (GetParam() == PhotoOrder::Size)
                                 return one.fileSize > other.fileSize;
                             return time(one) > time(other);
                         });
        return numbers;
    }

    HandMadeCatalogue catalogue_;
};

} // namespace

TEST_P(PhotoOrderOfMany, KeepsWhatIsAlikeInItsOrder)
{
    EXPECT_EQ(sorted({GetParam()}), expected());
}

TEST_P(PhotoOrderOfMany, IsTurnedRoundWhole)
{
    std::vector<RecordNumber> all = expected();
    std::reverse(all.begin(), all.end());
    EXPECT_EQ(sorted({GetParam(), true}), all);
}

TEST_P(PhotoOrderOfMany, BeginsAlikeWhereFewAreWanted)
{
    for (const bool isReversed : {false, true})
        for (const std::size_t most : {1U, 20U, 499U, 500U, 501U}) {
            std::vector<RecordNumber> all = expected();
            if (isReversed)
                std::reverse(all.begin(), all.end());
            all.resize(std::min(all.size(), most));
            EXPECT_EQ(sorted({GetParam(), isReversed, most}), all) << most;
        }
}

INSTANTIATE_TEST_SUITE_P(Orders, PhotoOrderOfMany,
                         testing::Values(PhotoOrder::Date, PhotoOrder::Name, PhotoOrder::Size));
