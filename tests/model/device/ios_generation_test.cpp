#include "model/device/ios_generation.h"
#include "support/case_name.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

struct Version
{
    const char *text;
    IosGeneration generation;

    std::string name() const { return text; }
};

std::ostream &operator<<(std::ostream &stream, const Version &version)
{
    return stream << '"' << version.text << '"';
}

} // namespace

class GenerationOfAVersion : public testing::TestWithParam<Version>
{
};

TEST_P(GenerationOfAVersion, IsTheNewestThatItReaches)
{
    EXPECT_EQ(iosGeneration(GetParam().text), GetParam().generation);
}

constexpr Version boundaries[] = {
    {"0", IosGeneration::Oldest},     {"5.9.9", IosGeneration::Oldest},
    {"6.0", IosGeneration::Ios6},     {"6.9.9", IosGeneration::Ios6},
    {"7.0", IosGeneration::Ios7},     {"7.9.9", IosGeneration::Ios7},
    {"8.0", IosGeneration::Ios8},     {"8.9.9", IosGeneration::Ios8},
    {"9.0", IosGeneration::Ios9},     {"9.9.9", IosGeneration::Ios9},
    {"10.0", IosGeneration::Ios10},   {"10.9.9", IosGeneration::Ios10},
    {"11.0", IosGeneration::Ios11},   {"12.5.7", IosGeneration::Ios11},
    {"13.9.9", IosGeneration::Ios11}, {"14.0", IosGeneration::Ios14},
    {"14.9.9", IosGeneration::Ios14}, {"15.0", IosGeneration::Ios15},
    {"16.0", IosGeneration::Ios15},   {"17.9.9.9", IosGeneration::Ios15},
    {"18.0", IosGeneration::Ios18},   {"26.0", IosGeneration::Ios18},
    {"100.0", IosGeneration::Ios18},
};

INSTANTIATE_TEST_SUITE_P(Boundaries, GenerationOfAVersion, testing::ValuesIn(boundaries),
                         NameOfCase());

constexpr Version wholeNumbers[] = {
    {"6", IosGeneration::Ios6},   {"7", IosGeneration::Ios7},   {"8", IosGeneration::Ios8},
    {"9", IosGeneration::Ios9},   {"10", IosGeneration::Ios10}, {"11", IosGeneration::Ios11},
    {"14", IosGeneration::Ios14}, {"15", IosGeneration::Ios15}, {"18", IosGeneration::Ios18},
};

INSTANTIATE_TEST_SUITE_P(WholeNumbers, GenerationOfAVersion, testing::ValuesIn(wholeNumbers),
                         NameOfCase());

constexpr Version oddTexts[] = {
    {"", IosGeneration::Oldest},
    {"beta", IosGeneration::Oldest},
    {"v15.0", IosGeneration::Oldest},
    {".9", IosGeneration::Oldest},
    {"-15.0", IosGeneration::Oldest},
    {"\xEF\xBC\x91\xEF\xBC\x95", IosGeneration::Oldest}, // full-width digits
    {"15b3", IosGeneration::Ios15},
    {"015.0", IosGeneration::Ios15},
    {"9.", IosGeneration::Ios9},
    {"9..1", IosGeneration::Ios9},
    {"10.-1", IosGeneration::Ios9},
    {"15,9", IosGeneration::Ios15},
    {"99999999999999999999", IosGeneration::Ios18},
};

INSTANTIATE_TEST_SUITE_P(OddTexts, GenerationOfAVersion, testing::ValuesIn(oddTexts), NameOfCase());
