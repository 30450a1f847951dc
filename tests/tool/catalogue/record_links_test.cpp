#include "catalogue/assets.h"
#include "catalogue/record_links.h"
#include "support/hand_made_catalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;
using namespace iosphoto::tool;
using testing::ElementsAre;

namespace {

class RecordLinks : public testing::Test
{
protected:
    /// An album of photos with these uuids.
    void addAlbum(const std::vector<std::string> &uuids)
    {
        CAlbumGroup &album = catalogue_.add(AlbumKind::User, smart, "Trip");
        for (const std::string &uuid : uuids)
            HandMadeCatalogue::addPhoto(album, "IMG.JPG").uuid = uuid;
    }

    /// The numbers of each asset's records.
    std::vector<std::vector<RecordNumber>> assets() const
    {
        const Records records(catalogue_.albums);
        const std::size_t count = linkAssets(catalogue_.albums);
        std::vector<std::vector<RecordNumber>> assets;
        for (RecordNumber first = 0; first < records.count(); ++first) {
            if (!linkOf(*records[first].record).isFirst)
                continue;
            assets.emplace_back();
            for (RecordNumber i = first; i != noRecord; i = linkOf(*records[i].record).next)
                assets.back().push_back(i);
        }
        EXPECT_EQ(assets.size(), count);
        return assets;
    }

    HandMadeCatalogue catalogue_;
};

using Numbers = std::vector<RecordNumber>;

} // namespace

TEST_F(RecordLinks, LeadThroughTheRecordsOfOneUuidInTheirOrder)
{
    addAlbum({"A", "B", "A"});
    addAlbum({});
    addAlbum({"C", "B", "A"});
    EXPECT_THAT(assets(), ElementsAre(Numbers{0, 2, 5}, Numbers{1, 4}, Numbers{3}));
    EXPECT_THAT(assets(), ElementsAre(Numbers{0, 2, 5}, Numbers{1, 4}, Numbers{3})); // once more
}

TEST_F(RecordLinks, LeadToTheRecordsOfTheSameFileWithoutAUuid)
{
    addAlbum({"", "A", ""});
    addAlbum({"", "A"});
    catalogue_.albums[0].photos[2]->fileName = "OTHER.JPG";
    EXPECT_THAT(assets(), ElementsAre(Numbers{0, 3}, Numbers{1, 4}, Numbers{2}));
}

TEST_F(RecordLinks, KeepApartRowsOfOneUuid)
{
    addAlbum({"A", "A", "A"});
    addAlbum({"A", "A", "A"});
    const auto set = [&](std::size_t album, std::size_t photo, const char *directory, int key) {
        catalogue_.albums[album].photos[photo]->directory = directory;
        catalogue_.albums[album].photos[photo]->assetId = key;
    };
    set(0, 0, "ONE", 7);
    set(0, 1, "TWO", 5);
    set(0, 2, "TWO", 6);
    set(1, 0, "TWO", 6);
    set(1, 1, "ONE", -1);
    set(1, 2, "TWO", -1);
    EXPECT_THAT(assets(), ElementsAre(Numbers{0, 4}, Numbers{1, 5}, Numbers{2, 3}));
}

TEST_F(RecordLinks, KeepApartWhatDiffersInTheMiddleAlone)
{
    const auto uuid = [](char middle) {
        return "AAAAAAAA-" + std::string(1, middle) + "-BBBBBBBB";
    };
    addAlbum({uuid('1'), uuid('2'), uuid('3'), uuid('2')});
    addAlbum({uuid('3'), uuid('1')});
    EXPECT_THAT(assets(), ElementsAre(Numbers{0, 5}, Numbers{1, 3}, Numbers{2, 4}));
}

TEST_F(RecordLinks, OfManyAreThoseOfTheirUuids)
{
    constexpr int many = 5000;
    std::vector<std::string> uuids;
    for (int i = 0; i < many; ++i)
        uuids.push_back(std::to_string(i));
    addAlbum(uuids);
    addAlbum({uuids.rbegin(), uuids.rend()});
    const auto found = assets();
    ASSERT_EQ(found.size(), many);
    for (RecordNumber i = 0; i < many; ++i)
        ASSERT_EQ(found[i], (Numbers{i, 2 * many - 1 - i}));
}

TEST_F(RecordLinks, LeadAnAssetToItsAlbums)
{
    addAlbum({"A", "B"});
    addAlbum({"B"});
    const AssetList list(catalogue_.albums);
    std::vector<std::string> seen;
    for (const Asset asset : list)
        for (const Appearance &appearance : asset)
            seen.push_back(asset.uuid() + std::to_string(appearance.album->albumIndex) +
                           std::to_string(appearance.position));
    EXPECT_THAT(seen, ElementsAre("A00", "B01", "B10"));
    EXPECT_EQ(list.size(), 2U);
}
