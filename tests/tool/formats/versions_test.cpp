#include "formats/versions.h"

#include "schema/store_metadata.h"

#include <gtest/gtest.h>

#include <limits>

using namespace iosphoto::tool;

TEST(ToolDeviceWords, KeepWhatLooksLikeAVersion)
{
    EXPECT_EQ(versionOrNothing("17.4.1"), "17.4.1");
    EXPECT_EQ(versionOrNothing(std::string(16, '1')), std::string(16, '1'));
    for (const std::string &text : {std::string(17, '1'), std::string("17a"), std::string("-1"),
                                    std::string("17\n"), std::string()})
        EXPECT_EQ(versionOrNothing(text), "") << text;
}

TEST(ToolDeviceWords, KeepWhatLooksLikeAProductType)
{
    for (const char *text : {"iPhone14,2", "iPad1,1", "AppleTV14,10"})
        EXPECT_EQ(productOrNothing(text), text);
    for (const std::string &text :
         {std::string(), std::string("iPhone"), std::string("iPhone14"), std::string("iPhone14,"),
          std::string("iPhone14,,2"), std::string("14,2"), std::string("iPhone14,2x"),
          std::string("iPhone,2"), std::string(30, 'i') + "1,1"})
        EXPECT_EQ(productOrNothing(text), "") << text;
}

TEST(ToolDeviceWords, BeginWithANumber)
{
    EXPECT_EQ(firstNumber("17.4"), 17);
    EXPECT_EQ(firstNumber("22A3354"), 22);
    EXPECT_EQ(firstNumber(""), 0);
    EXPECT_EQ(firstNumber("-7"), 0);
    EXPECT_EQ(firstNumber("99999999999999999999"), std::numeric_limits<int>::max());
}

TEST(ToolDeviceWords, ModelNumberThatIsTooLargeTellsNothing)
{
    StoreMetadata metadata;
    metadata.modelVersion = 18212;
    EXPECT_EQ(metadata.iosMajor(), 18);
    const std::int64_t wraps = ((std::int64_t(1) << 32) + 17) * 10'000'000;
    for (const std::int64_t model : {wraps, std::numeric_limits<std::int64_t>::max(),
                                     std::numeric_limits<std::int64_t>::min()}) {
        metadata.modelVersion = model;
        EXPECT_EQ(metadata.iosMajor(), std::nullopt) << model;
    }
}
