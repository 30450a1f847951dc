#include "support/catalogue.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

class CameraRollOfEverySchema : public testing::TestWithParam<Schema>
{
};

TEST_P(CameraRollOfEverySchema, ShowsTheDevicesPhotosNewestFirst)
{
    LibraryBuilder library(GetParam());
    // Below iOS 8 the Camera Roll is what an untitled album holds.
    const AlbumRow roll = library.album(library.schema().hasBlobUuids ? Value() : Value(""));
    library.asset("IMG_0001.JPG").in(roll);
    library.asset("IMG_0002.JPG").in(roll);

    const Catalogue catalogue(library);

    EXPECT_EQ(catalogue.result, 0);
    EXPECT_EQ(files(catalogue.cameraRoll()), (Files{"IMG_0001.JPG", "IMG_0002.JPG"}));
}

INSTANTIATE_TEST_SUITE_P(Schemas, CameraRollOfEverySchema, testing::ValuesIn(allSchemas),
                         SchemaName());
