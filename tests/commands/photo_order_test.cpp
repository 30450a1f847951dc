#include "support/case_name.h"
#include "support/listing_case.h"
#include "support/run_on.h"

#include <gtest/gtest.h>

using namespace iosphoto::test;

namespace {

const ListingCase orders[] = {
    {{}, {"b.JPG", "A.MOV", "c.MOV", "d.JPG"}},
    {{"--sort", "date"}, {"b.JPG", "A.MOV", "c.MOV", "d.JPG"}},
    {{"--reverse"}, {"d.JPG", "c.MOV", "A.MOV", "b.JPG"}},
    {{"--sort", "name"}, {"A.MOV", "b.JPG", "c.MOV", "d.JPG"}},
    {{"--sort", "name", "--reverse"}, {"d.JPG", "c.MOV", "b.JPG", "A.MOV"}},
    {{"--sort", "size"}, {"c.MOV", "d.JPG", "b.JPG", "A.MOV"}},
    {{"--sort", "duration"}, {"A.MOV", "c.MOV", "b.JPG", "d.JPG"}},
    {{"--sort", "added"}, {"d.JPG", "b.JPG", "A.MOV", "c.MOV"}},
    {{"--sort", "modified"}, {"c.MOV", "b.JPG", "A.MOV", "d.JPG"}},
    {{"--sort", "deleted"}, {"A.MOV", "d.JPG", "b.JPG", "c.MOV"}},
    {{"--sort", "size", "--limit", "2"}, {"c.MOV", "d.JPG"}},
    {{"--sort", "size", "--reverse", "--limit", "1"}, {"A.MOV"}},
    {{"--limit", "9"}, {"b.JPG", "A.MOV", "c.MOV", "d.JPG"}},
    {{"--kind", "photo", "--limit", "1"}, {"b.JPG"}},
};

} // namespace

class ToolPhotoOrder : public testing::TestWithParam<ListingCase>
{
};

TEST_P(ToolPhotoOrder, IsTheOneThatIsNamed)
{
    LibraryBuilder library(ios15);
    library.asset("b.JPG").set("ZORIGINALFILESIZE", 20);
    library.asset("A.MOV")
        .video()
        .set("ZORIGINALFILESIZE", 10)
        .set("ZDURATION", 60)
        .trashedAt(readingTime - 1 * days);
    library.asset("c.MOV")
        .video()
        .set("ZORIGINALFILESIZE", 5000000000)
        .set("ZDURATION", 30)
        .set("ZMODIFICATIONDATE", readingTime);
    library.asset("d.JPG")
        .set("ZORIGINALFILESIZE", 30)
        .set("ZADDEDDATE", readingTime)
        .trashedAt(readingTime - 2 * days);

    std::vector<std::string> arguments = {"--fields", "fileName"};
    arguments.insert(arguments.end(), GetParam().arguments.begin(), GetParam().arguments.end());
    EXPECT_EQ(runOn(library, "photos", arguments), fileNames(GetParam().names));
}

INSTANTIATE_TEST_SUITE_P(Orders, ToolPhotoOrder, testing::ValuesIn(orders), NameOfCase());

TEST(ToolPhotoOrders, DateIsOfAllAlbumsTogether)
{
    LibraryBuilder library(ios15);
    library.asset("old.JPG").set("ZDATECREATED", 500000000);
    library.asset("hidden.JPG").set("ZHIDDEN", 1); // in another album, behind the Camera Roll
    EXPECT_EQ(runOn(library, "photos", {"--fields", "fileName"}),
              fileNames({"hidden.JPG", "old.JPG"}));
}
