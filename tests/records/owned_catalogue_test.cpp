#include "records/owned_catalogue.h"

#include "records/record_ownership.h"

#include <gtest/gtest.h>

using namespace iosphoto;

namespace {

/// A catalogue of one record, whose end shows: the text is shared as long as the record lives.
class OwnedCatalogueTest : public testing::Test
{
protected:
    OwnedCatalogue makeCatalogue() const
    {
        OwnedCatalogue catalogue;
        auto photo = std::make_unique<CPhotoData>();
        photo->fileName = fileName_;
        append(catalogue.albums.emplace_back(), std::move(photo));
        return catalogue;
    }
    bool isRecordAlive() const { return !fileName_.isDetached(); }

private:
    QString fileName_ = QString::fromLatin1("IMG_0001.JPG");
};

} // namespace

TEST_F(OwnedCatalogueTest, DestroysItsRecordsWhenItGoes)
{
    {
        const OwnedCatalogue catalogue = makeCatalogue();
        EXPECT_TRUE(isRecordAlive());
    }
    EXPECT_FALSE(isRecordAlive());
}

TEST_F(OwnedCatalogueTest, TakesOverRecordsThatNobodyOwns)
{
    std::vector<CAlbumGroup> albums;
    {
        OwnedCatalogue first = makeCatalogue();
        albums.swap(first.albums);
    }
    EXPECT_TRUE(isRecordAlive());
    OwnedCatalogue(std::move(albums));
    EXPECT_FALSE(isRecordAlive());
}

TEST_F(OwnedCatalogueTest, HandsItsRecordsOnWhenItMoves)
{
    OwnedCatalogue second;
    {
        OwnedCatalogue first = makeCatalogue();
        OwnedCatalogue between(std::move(first));
        second = std::move(between);
    }
    EXPECT_TRUE(isRecordAlive());
    EXPECT_EQ(second.albums.size(), 1U);
}
