#include "support/catalogue.h"
#include "support/plain_user.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <optional>

using namespace iosphoto;
using namespace iosphoto::test;

namespace fs = std::filesystem;

namespace {

using Contents = std::map<std::string, std::string>; ///< by file name

Contents contentsOf(const fs::path &folder)
{
    Contents contents;
    for (const auto &entry : fs::directory_iterator(folder))
        contents[entry.path().filename().string()] = readFile(entry.path());
    return contents;
}

/// A folder with a database as another process left it.
class Evidence
{
public:
    /// A library whose last photo is only in its write-ahead log.
    static Evidence withLog()
    {
        LibraryBuilder library(ios15);
        library.execute("pragma journal_mode = wal");
        library.asset("IMG_0001.JPG");
        library.execute("pragma wal_checkpoint(truncate)");
        library.asset("IMG_0002.JPG");
        return copyOf(library, {"", "-wal"});
    }

    /// A library in write-ahead-log mode whose log was moved into it.
    static Evidence withoutLog()
    {
        LibraryBuilder library(ios15);
        library.execute("pragma journal_mode = wal");
        library.asset("IMG_0001.JPG");
        library.close();
        return copyOf(library, {""});
    }

    static Evidence inRollbackMode()
    {
        LibraryBuilder library(ios15);
        library.asset("IMG_0001.JPG");
        return copyOf(library, {""});
    }

    /// A library that was being changed when its writer died.
    static Evidence withHotJournal()
    {
        LibraryBuilder library(ios15);
        library.asset("IMG_0001.JPG");
        library.execute("pragma cache_size = 1");
        library.execute("begin");
        for (int i = 0; i < 200; ++i)
            library.asset("UNFINISHED.JPG");
        Evidence evidence = copyOf(library, {"", "-journal"});
        library.execute("rollback");
        return evidence;
    }

    static Evidence emptyWith(const char *companion)
    {
        Evidence evidence;
        writeFile(evidence.database(), "");
        writeFile(evidence.database() + companion, "left over");
        return evidence;
    }

    std::string database() const { return (*folder_ / "Photos.sqlite").string(); }
    const fs::path &folder() const { return folder_->path(); }
    Contents contents() const { return contentsOf(folder()); }

private:
    Evidence() : folder_(std::make_unique<TemporaryFolder>()) {}

    static Evidence copyOf(const LibraryBuilder &library, std::initializer_list<const char *> parts)
    {
        Evidence evidence;
        for (const char *part : parts) {
            fs::copy_file(library.path() + part, evidence.database() + part);
            fs::permissions(evidence.database() + part, fs::perms(0666));
        }
        return evidence;
    }

    std::unique_ptr<TemporaryFolder> folder_;
};

/// What a file that was there before holds now, and which files came.
void expectUnchanged(const Contents &before, const Contents &after, const Files &mayHaveCome = {})
{
    for (const auto &[name, content] : before)
        EXPECT_TRUE(after.count(name) != 0 && after.at(name) == content) << name;
    for (const auto &[name, content] : after) {
        if (before.count(name) == 0) {
            EXPECT_THAT(mayHaveCome, testing::Contains(name));
        }
    }
}

enum class User { AsStarted, Plain };

} // namespace

/// Each case runs as the user of the tests, often root, whom permissions do not stop, and as a user
/// without rights. The evidence is prepared before the change of user.
class SourceProtection : public testing::TestWithParam<User>
{
protected:
    void SetUp() override
    {
        if (GetParam() == User::Plain && !PlainUser().isPlain())
            GTEST_SKIP() << "this process may not become another user";
    }

    /// The file names that the user of the case finds in the Camera Roll.
    static Files photosIn(const std::string &database)
    {
        std::optional<PlainUser> user;
        if (GetParam() == User::Plain)
            user.emplace();
        const Catalogue catalogue(database, "15.0", "iPhone14,2");
        EXPECT_EQ(catalogue.result, 0);
        return files(catalogue.cameraRoll());
    }
};

TEST_P(SourceProtection, LogIsReadAndKept)
{
    const Evidence evidence = Evidence::withLog();
    const Contents before = evidence.contents();
    ASSERT_FALSE(before.at("Photos.sqlite-wal").empty());

    EXPECT_EQ(photosIn(evidence.database()), (Files{"IMG_0001.JPG", "IMG_0002.JPG"}));

    expectUnchanged(before, evidence.contents(), {"Photos.sqlite-shm"});
}

TEST_P(SourceProtection, LogBesideTheTargetOfALinkIsReadAndKept)
{
    const Evidence evidence = Evidence::withLog();
    const TemporaryFolder elsewhere;
    const std::string link = (elsewhere / "link.sqlite").string();
    fs::create_symlink(evidence.database(), link);
    const Contents before = evidence.contents();

    EXPECT_EQ(photosIn(link), (Files{"IMG_0001.JPG", "IMG_0002.JPG"}));

    expectUnchanged(before, evidence.contents(), {"Photos.sqlite-shm"});
    EXPECT_EQ(contentsOf(elsewhere.path()).size(), 1U);
}

TEST_P(SourceProtection, LogIsKeptWhenThePathIsRelative)
{
    const Evidence evidence = Evidence::withLog();
    const Contents before = evidence.contents();
    const fs::path here = fs::current_path();
    fs::current_path(evidence.folder());

    EXPECT_EQ(photosIn("Photos.sqlite"), (Files{"IMG_0001.JPG", "IMG_0002.JPG"}));

    fs::current_path(here);
    expectUnchanged(before, evidence.contents(), {"Photos.sqlite-shm"});
}

TEST_P(SourceProtection, NothingIsLeftWhereNoLogWas)
{
    for (const Evidence &evidence : {Evidence::withoutLog(), Evidence::inRollbackMode()}) {
        const Contents before = evidence.contents();
        EXPECT_EQ(photosIn(evidence.database()), (Files{"IMG_0001.JPG"}));
        EXPECT_EQ(evidence.contents(), before);
    }
}

TEST_P(SourceProtection, EmptyDatabaseKeepsItsLogAndItsJournal)
{
    for (const char *companion : {"-wal", "-journal"}) {
        const Evidence evidence = Evidence::emptyWith(companion);
        const Contents before = evidence.contents();
        EXPECT_EQ(photosIn(evidence.database()), Files());
        EXPECT_EQ(evidence.contents(), before);
    }
}

TEST_P(SourceProtection, UnfinishedChangeIsNotRolledBack)
{
    const Evidence evidence = Evidence::withHotJournal();
    const Contents before = evidence.contents();
    ASSERT_FALSE(before.at("Photos.sqlite-journal").empty());

    EXPECT_EQ(photosIn(evidence.database()), Files());

    EXPECT_EQ(evidence.contents(), before);
}

TEST_P(SourceProtection, ChangeThatIsBeingMadeIsNotSeenAndNotDisturbed)
{
    LibraryBuilder library(ios15);
    fs::permissions(library.path(), fs::perms(0666));
    library.asset("IMG_0001.JPG");
    library.execute("begin");
    library.asset("UNFINISHED.JPG");
    const std::string journal = readFile(library.path() + "-journal");
    ASSERT_FALSE(journal.empty());

    EXPECT_EQ(photosIn(library.path()), (Files{"IMG_0001.JPG"}));

    EXPECT_EQ(readFile(library.path() + "-journal"), journal);
    library.execute("commit");
    EXPECT_EQ(photosIn(library.path()), (Files{"IMG_0001.JPG", "UNFINISHED.JPG"}));
}

TEST_P(SourceProtection, JournalThatIsDoneWithDoesNotMatter)
{
    const Evidence evidence = Evidence::inRollbackMode();
    writeFile(evidence.database() + "-journal", std::string(512, '\0'));
    const Contents before = evidence.contents();

    EXPECT_EQ(photosIn(evidence.database()), (Files{"IMG_0001.JPG"}));

    EXPECT_EQ(evidence.contents(), before);
}

TEST_P(SourceProtection, FileThatMayNotBeWrittenIsReadThoughAnEmptyLogStays)
{
    const Evidence evidence = Evidence::withoutLog();
    fs::permissions(evidence.database(), fs::perms(0444));
    const Contents before = evidence.contents();

    EXPECT_EQ(photosIn(evidence.database()), (Files{"IMG_0001.JPG"}));

    const Contents after = evidence.contents();
    expectUnchanged(before, after, {"Photos.sqlite-wal", "Photos.sqlite-shm"});
    if (after.count("Photos.sqlite-wal") != 0) {
        EXPECT_EQ(after.at("Photos.sqlite-wal"), "");
    }
}

TEST_P(SourceProtection, FolderThatMayNotBeWrittenStaysAsItIs)
{
    for (const Evidence &evidence : {Evidence::withLog(), Evidence::inRollbackMode()}) {
        for (const auto &entry : fs::directory_iterator(evidence.folder()))
            fs::permissions(entry, fs::perms(0444));
        fs::permissions(evidence.folder(), fs::perms(0555));
        const Contents before = evidence.contents();

        photosIn(evidence.database());

        expectUnchanged(before, evidence.contents(), {"Photos.sqlite-shm"});
        fs::permissions(evidence.folder(), fs::perms(0777));
    }
}

INSTANTIATE_TEST_SUITE_P(Users, SourceProtection, testing::Values(User::AsStarted, User::Plain),
                         [](const auto &test) {
                             return test.param == User::Plain ? "PlainUser" : "UserOfTheTests";
                         });
