#include "catalogue/library_list.h"

#include "support/source_folder.h"

using namespace iosphoto::test;
using iosphoto::tool::LibraryList;
using iosphoto::tool::listLibraries;
using iosphoto::tool::Session;
using iosphoto::tool::SourceProblem;

class LibraryListTest : public SourceFolder
{
};

TEST_F(LibraryListTest, SaysThatItEnds)
{
    for (const char *const name : {"a/Media", "b/Media", "c/Media"})
        putMedia(folder_ / name);
    Session session;
    const LibraryList list = listLibraries(session, folder_.path().string(), 2);
    EXPECT_EQ(list.libraries.size(), 2U);
    EXPECT_FALSE(list.isComplete());
    ASSERT_EQ(list.unsearched.size(), 1U);
    EXPECT_EQ(list.unsearched[0].kind, SourceProblem::EndedList);
    EXPECT_EQ(list.unsearched[0].facts, (std::vector<std::string>{folder_.path().string(), "2"}));
    EXPECT_TRUE(listLibraries(session, folder_.path().string(), 3).isComplete());
}
