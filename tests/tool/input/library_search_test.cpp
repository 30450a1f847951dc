#include "input/library_search.h"

#include "input/tree/folder_tree.h"
#include "support/source_folder.h"

using namespace iosphoto::test;
using iosphoto::tool::FolderTree;
using iosphoto::tool::LibrarySearch;
using iosphoto::tool::NoLibraryFound;
using iosphoto::tool::onlyLibrary;
using iosphoto::tool::searchLibraries;
using iosphoto::tool::Session;
using iosphoto::tool::SourceProblem;

namespace fs = std::filesystem;

/// A search that looks at five folders: the top, "a" to "c", and one below "a".
class BoundedSearch : public SourceFolder
{
protected:
    BoundedSearch()
    {
        for (const char *const name : {"a/1", "a/2", "b", "c"})
            fs::create_directories(folder_ / name);
    }

    LibrarySearch search() { return searchLibraries(session_, tree_, "", "disk", 20); }
    /// Throws what says that there is not one library.
    void require(LibrarySearch search) { (void)onlyLibrary(session_, tree_, search, "", "disk"); }

    Session session_;
    const FolderTree tree_{folder_.path(), 5};
};

TEST_F(BoundedSearch, SaysWhereItEnded)
{
    putMedia(folder_ / "c");
    const LibrarySearch found = search();
    ASSERT_EQ(found.libraries.size(), 1U);
    EXPECT_EQ(found.libraries[0].path, "c");
    ASSERT_EQ(found.unsearched.size(), 1U);
    EXPECT_EQ(found.unsearched[0].kind, SourceProblem::EndedSearch);
    EXPECT_EQ(found.unsearched[0].facts, (std::vector<std::string>{"disk", "5"}));
    EXPECT_NO_THROW(require(found));
}

TEST_F(BoundedSearch, SaysNothingWhereAllWasLookedAt)
{
    fs::remove(folder_ / "a/2");
    fs::remove(folder_ / "c"); // for the PhotoData, which is looked at too
    putMedia(folder_ / "a/1");
    EXPECT_EQ(search().libraries.size(), 1U);
    EXPECT_THAT(search().unsearched, testing::IsEmpty());
}

TEST_F(BoundedSearch, ThatFoundNothingSaysHowFarItCame)
{
    putMedia(folder_ / "a/2");
    try {
        require(search());
        FAIL() << "a library was found";
    } catch (const NoLibraryFound &none) {
        EXPECT_EQ(none.finding.kind, SourceProblem::NoLibrarySoFar);
        EXPECT_EQ(none.finding.facts, (std::vector<std::string>{"disk", "5"}));
    }
}
