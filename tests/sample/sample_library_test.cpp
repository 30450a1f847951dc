#include "model/clock.h"
#include "support/catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <utility>

using namespace iosphoto;
using namespace iosphoto::test;

using KindAndSmart = std::pair<int, bool>;

TEST(SampleLibrary, HasEveryKindOfAlbumThatACatalogueCanShow)
{
    LibraryBuilder library(ios15);
    library.execute(readFile(IOSPHOTO_SAMPLE_LIBRARY));

    const StoppedClock may20th2023(1684584000);
    const Catalogue catalogue(library);

    std::set<KindAndSmart> shown;
    for (const CAlbumGroup &album : catalogue.albums) {
        if (!album.photos.empty())
            shown.emplace(album.albumKind, album.isSmartAlbum);
    }
    std::set<KindAndSmart> expected = {
        {AlbumKind::CameraRoll, false},  {AlbumKind::PhotoLibrary, false},
        {AlbumKind::Selfies, false}, // the four that collect
        {AlbumKind::Portrait, false},    {AlbumKind::Panoramas, false},
        {AlbumKind::Screenshots, false}, {AlbumKind::User, false}, // imported from a computer
        {AlbumKind::PhotoStream, true}};
    for (int kind = AlbumKind::Videos; kind < AlbumKind::AllDeleted; ++kind)
        expected.emplace(kind, true);
    EXPECT_EQ(shown, expected);
    const AlbumKinds kinds = albumKinds(catalogue.albums);
    EXPECT_EQ(std::count(kinds.begin(), kinds.end(), AlbumKind::PhotoLibrary), 2)
        << "the second is the untitled album";
}
