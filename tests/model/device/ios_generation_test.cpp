#include "model/device/ios_generation.h"
#include "support/case_name.h"

#include <gtest/gtest.h>

#include <limits>

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

TEST_P(GenerationOfAVersion, IsTheNumberThatItReaches)
{
    EXPECT_EQ(iosGeneration(GetParam().text), GetParam().generation);
}

constexpr Version boundaries[] = {
    {"0", IosGeneration::Oldest},  {"0.9", IosGeneration::Oldest},  {"5.9.9", IosGeneration{5}},
    {"6.0", IosGeneration::Ios6},  {"6.9.9", IosGeneration{6}},     {"13.9.9", IosGeneration{13}},
    {"14.0", IosGeneration{14}},   {"17.9.9.9", IosGeneration{17}}, {"18.0", IosGeneration{18}},
    {"100.0", IosGeneration{100}},
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
    {"10.0.-1", IosGeneration::Ios9},
    {"99999999999999999999", IosGeneration{std::numeric_limits<int>::max()}},
};

INSTANTIATE_TEST_SUITE_P(OddTexts, GenerationOfAVersion, testing::ValuesIn(oddTexts), NameOfCase());
