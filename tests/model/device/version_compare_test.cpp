#include "model/model_devicephoto_dbmgr.h"

#include <gtest/gtest.h>

#include <climits>

TEST(IosVersion, ComparesByDifferenceOfTheFirstComponentsThatDiffer)
{
    EXPECT_EQ(cmpiOSVersion("15.0", "9"), 6);
    EXPECT_EQ(cmpiOSVersion("8.4", "9.0"), -1);
    EXPECT_EQ(cmpiOSVersion("10.3", "10.1"), 2);
}

TEST(IosVersion, MissingComponentsCountAsZero)
{
    EXPECT_EQ(cmpiOSVersion("11.0", "11"), 0);
    EXPECT_EQ(cmpiOSVersion("9", "9.0.0"), 0);
    EXPECT_EQ(cmpiOSVersion("9", "9.0.1"), -1);
    EXPECT_EQ(cmpiOSVersion("", ""), 0);
    EXPECT_EQ(cmpiOSVersion("", "9"), -9);
    EXPECT_EQ(cmpiOSVersion("9.", "9"), 0);
}

TEST(IosVersion, StopsWhereBothComponentsAreEmpty)
{
    EXPECT_EQ(cmpiOSVersion("9..1", "9..2"), 0);
    EXPECT_EQ(cmpiOSVersion("9..1", "9.0.2"), -1);
}

TEST(IosVersion, ComparesFourComponentsAtMost)
{
    EXPECT_EQ(cmpiOSVersion("1.2.3.4", "1.2.3.5"), -1);
    EXPECT_EQ(cmpiOSVersion("1.2.3.4.5", "1.2.3.4.6"), 0);
    EXPECT_EQ(cmpiOSVersion("10.3.3.1.7", "10.3.3.1.9"), 0);
}

TEST(IosVersion, ComponentsCountByTheirLeadingDigits)
{
    EXPECT_EQ(cmpiOSVersion("14b", "14"), 0);
    EXPECT_EQ(cmpiOSVersion("beta", "0"), 0);
    EXPECT_EQ(cmpiOSVersion("x15", "15"), -15);
}

TEST(IosVersion, NumbersBeyondAnIntCountAsTheLargest)
{
    EXPECT_EQ(cmpiOSVersion("99999999999999999999", "0"), INT_MAX);
    EXPECT_EQ(cmpiOSVersion("-99999999999999999999", "1"), INT_MIN);
    EXPECT_EQ(cmpiOSVersion("4294967305", "9"), INT_MAX - 9);
}

TEST(ProductType, ComparesMajorThenMinorNumber)
{
    EXPECT_EQ(cmpProductVersion("iPhone14,2", "iPhone8,1"), 6);
    EXPECT_EQ(cmpProductVersion("iPhone8,4", "iPhone8,1"), 3);
    EXPECT_EQ(cmpProductVersion("iPhone4,1", "iPhone14,2"), -10);
}

TEST(ProductType, LettersDoNotCount)
{
    EXPECT_EQ(cmpProductVersion("iPhone8,1", "iPad8,1"), 0);
    EXPECT_EQ(cmpProductVersion("8,1", "iPad8,1"), 0);
    EXPECT_EQ(cmpProductVersion("iPhone8x,y1", "iPhone8,1"), 0);
}

TEST(ProductType, MissingNumbersAreZero)
{
    EXPECT_EQ(cmpProductVersion("iPhone9", "iPhone9,0"), 0);
    EXPECT_EQ(cmpProductVersion("", "iPhone"), 0);
    EXPECT_EQ(cmpProductVersion("", "iPhone9,1"), -9);
}

TEST(ProductType, LaterCommasAndDigitsBelongToTheMinorNumber)
{
    EXPECT_EQ(cmpProductVersion("iPhone8,1,2", "iPhone8,12"), 0);
}

TEST(ProductType, DigitsOfOtherScriptsJoinTheNumberAndMakeItUnreadable)
{
    const QString arabicOne = QString::fromUtf8("\u0661");
    EXPECT_EQ(cmpProductVersion("iPhone1" + arabicOne + ",2", "iPhone0,2"), 0);
    const QString oneHalf = QString::fromUtf8("\u00bd"); // a number, but no digit
    EXPECT_EQ(cmpProductVersion("iPhone1" + oneHalf + ",2", "iPhone1,2"), 0);
}
