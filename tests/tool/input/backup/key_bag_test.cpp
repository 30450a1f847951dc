#include "input/backup/key_bag.h"

#include "input/source_problem.h"
#include "support/backup_encryption.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace iosphoto::tool;
using namespace iosphoto::test;

namespace {

using Facts = std::vector<std::string>;

std::string bagOf(const EncryptionOptions &options)
{
    return BackupEncryption(options).keyBag();
}

EncryptionOptions altered(const std::function<void(KeyBagEntries &)> &alter)
{
    EncryptionOptions options;
    options.alterKeyBag = alter;
    return options;
}

/// Gives the first entry of that name another value.
EncryptionOptions with(const std::string &tag, const std::string &value)
{
    return altered([=](KeyBagEntries &entries) {
        for (auto &[name, content] : entries)
            if (name == tag) {
                content = value;
                return;
            }
    });
}

EncryptionOptions without(const std::string &tag)
{
    return altered([=](KeyBagEntries &entries) {
        entries.erase(std::remove_if(entries.begin(), entries.end(),
                                     [&](const auto &entry) { return entry.first == tag; }),
                      entries.end());
    });
}

void expectProblem(const std::string &bag, SourceProblem problem, const Facts &facts)
{
    try {
        (void)KeyBag(bag, "bag");
        ADD_FAILURE() << "nothing is wrong";
    } catch (const SourceError &error) {
        EXPECT_EQ(int(error.finding().kind), int(problem));
        Facts expected = {"bag"};
        expected.insert(expected.end(), facts.begin(), facts.end());
        EXPECT_EQ(error.finding().facts, expected);
    }
}

} // namespace

TEST(KeyBag, OpensTheKeysOfItsClassesWithThePassword)
{
    for (const bool hasTwoDerivations : {false, true}) {
        EncryptionOptions options;
        options.hasTwoDerivations = hasTwoDerivations;
        const auto keys = KeyBag(bagOf(options), "bag").unlock(Secret("correct horse"));
        ASSERT_TRUE(keys);
        for (const std::uint32_t each : {1U, 2U, 3U, 4U, 6U})
            EXPECT_TRUE(keys->has(each)) << each;
    }
}

TEST(KeyBag, OpensNoneWithAnotherPassword)
{
    const KeyBag bag(bagOf({}), "bag");
    for (const char *password : {"", "correct horsf", "correct horse ", "Correct horse"})
        EXPECT_FALSE(bag.unlock(Secret(password))) << password;
}

TEST(KeyBag, HasNoKeysOfClassesThatAreOfTheDevice)
{
    const auto keys = KeyBag(bagOf({}), "bag").unlock(Secret("correct horse"));
    EXPECT_FALSE(keys->has(11));
    EXPECT_TRUE(keys->isOfDevice(11));
    EXPECT_FALSE(keys->isOfDevice(3));
}

TEST(KeyBag, DoesWithoutAClassWhoseKeyIsDamaged)
{
    const EncryptionOptions options = with("WPKY", std::string(40, 'x'));
    const auto keys = KeyBag(bagOf(options), "bag").unlock(Secret("correct horse"));
    ASSERT_TRUE(keys);
    EXPECT_FALSE(keys->has(1));
    EXPECT_TRUE(keys->has(2));
}

TEST(KeyBag, CountsTheRounds)
{
    EncryptionOptions options;
    EXPECT_EQ(KeyBag(bagOf(options), "bag").rounds(), 300U);
    options.hasTwoDerivations = false;
    EXPECT_EQ(KeyBag(bagOf(options), "bag").rounds(), 100U);
}

TEST(KeyBag, CutShortAnywhereIsRefusedOrHasFewerClasses)
{
    const std::string bag = bagOf({});
    int refused = 0;
    for (std::size_t size = 0; size < bag.size(); ++size)
        try {
            (void)KeyBag(std::string_view(bag).substr(0, size), "bag");
        } catch (const SourceError &) {
            ++refused;
        }
    EXPECT_EQ(refused, int(bag.size()) - 5); // but where another class would begin
}

TEST(KeyBag, WithALengthBeyondItsEnd)
{
    const std::string bag = bagOf({});
    for (const std::uint64_t size :
         {std::uint64_t{1}, std::uint64_t{0x7fffffff}, std::uint64_t{0xffffffff}})
        expectProblem(bag + "NEXT" + bigEndian(size, 4), SourceProblem::KeyBagIsCutShort, {"NEXT"});
    expectProblem(bag + "NEX", SourceProblem::KeyBagIsCutShort, {"NEX"});
}

TEST(KeyBag, WithAPartTwice)
{
    expectProblem(bagOf(altered([](KeyBagEntries &entries) {
                      entries.insert(entries.begin(), {"SALT", "other"});
                  })),
                  SourceProblem::KeyBagRepeats, {"SALT"});
    expectProblem(bagOf(altered([](KeyBagEntries &entries) {
                      entries.emplace_back("WPKY", std::string(40, 'w'));
                  })),
                  SourceProblem::KeyBagRepeats, {"WPKY"});
}

TEST(KeyBag, WithAClassTwice)
{
    expectProblem(bagOf(altered([](KeyBagEntries &entries) {
                      const KeyBagEntries last(entries.end() - 5, entries.end());
                      entries.insert(entries.end(), last.begin(), last.end());
                  })),
                  SourceProblem::KeyBagRepeats, {"CLAS 11"});
}

TEST(KeyBag, WithoutAPart)
{
    for (const char *tag : {"SALT", "ITER", "DPSL", "DPIC", "CLAS", "WRAP", "WPKY"})
        expectProblem(bagOf(without(tag)), SourceProblem::KeyBagLacks, {tag});
    expectProblem("", SourceProblem::KeyBagLacks, {"ITER"});
}

TEST(KeyBag, WithAnEmptyPart)
{
    for (const char *tag : {"SALT", "ITER", "DPSL", "DPIC", "CLAS", "WPKY"})
        expectProblem(bagOf(with(tag, "")), SourceProblem::KeyBagLacks, {tag});
}

TEST(KeyBag, WithANumberOfOddLength)
{
    for (const char *tag : {"ITER", "DPIC", "CLAS"})
        expectProblem(bagOf(with(tag, "12345")), SourceProblem::KeyBagHasOddPart, {tag, "5", "4"});
}

TEST(KeyBag, WithAWrappedKeyOfOddLength)
{
    for (const std::size_t size : {1U, 39U, 41U, 48U, 4000U})
        expectProblem(bagOf(with("WPKY", std::string(size, 'w'))), SourceProblem::KeyBagHasOddPart,
                      {"WPKY", std::to_string(size), "40"});
}

TEST(KeyBag, ThatAsksForTooManyRoundsOrNone)
{
    for (const std::uint32_t rounds : {0U, 100'000'001U, 0x80000000U, 0xffffffffU})
        for (const char *tag : {"ITER", "DPIC"})
            expectProblem(bagOf(with(tag, bigEndian(rounds, 4))), SourceProblem::KeyBagHasOddRounds,
                          {tag, std::to_string(rounds), "100000000"});
}

TEST(KeyBag, LargerThanAnyIsRefused)
{
    const std::string bag = bagOf({});
    expectProblem(bag + "PADD" + bigEndian(70'000, 4) + std::string(70'000, 'p'),
                  SourceProblem::TooLarge, {"65536"});
}

TEST(KeyBag, WithoutAnyClassOfThePassword)
{
    expectProblem(bagOf(altered([](KeyBagEntries &entries) { entries.resize(10); })),
                  SourceProblem::KeyBagLacks, {"WPKY"});
}
