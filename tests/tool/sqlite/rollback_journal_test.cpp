// A journal may name any file of this computer to be deleted after a rollback.
#include "sqlite/rollback_journal.h"

#include "support/archive_builder.h"
#include "support/database.h"
#include "support/source_folder.h"

using namespace iosphoto::test;

namespace fs = std::filesystem;

namespace {

constexpr std::size_t sectorSize = 512;
constexpr std::size_t pageSize = 4096;
const std::string magic = "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7";

std::string number(std::size_t value)
{
    std::string bytes;
    for (unsigned shift = 32; shift > 0; shift -= 8)
        bytes += static_cast<char>(value >> (shift - 8) & 0xffU);
    return bytes;
}

/// A journal without pages, of a transaction that `superJournal` was the journal of.
std::string journalOf(const std::string &database, const std::string &superJournal)
{
    std::string journal = magic + number(0) + number(0) + number(database.size() / pageSize) +
                          number(sectorSize) + number(pageSize);
    journal.resize(sectorSize, '\0');
    constexpr std::size_t lockedByte = 0x40000000;
    std::size_t sum = 0;
    for (const char character : superJournal)
        sum += static_cast<unsigned char>(character);
    return journal + number(lockedByte / pageSize + 1) + superJournal +
           number(superJournal.size()) + number(sum) + magic;
}

} // namespace

class ToolSuperJournal : public SourceFolder
{
protected:
    ToolSuperJournal()
    {
        library_.execute("pragma journal_mode = delete");
        EXPECT_EQ(library_.number("pragma page_size"), int(pageSize));
        library_.close();
        database_ = readFile(library_.path());
        writeFile(victim_, "precious");
    }

    void expectReadAndVictimKept(const fs::path &source) const
    {
        const ToolRun run = albums(source);
        expectWhole(run);
        EXPECT_EQ(readFile(victim_), "precious");
    }

    const fs::path victim_ = folder_ / "victim";
    std::string database_;
};

TEST_F(ToolSuperJournal, OfTheDatabaseDeletesNothing)
{
    const fs::path source = folder_ / "Photos.sqlite";
    writeFile(source, database_);
    const std::string journal = journalOf(database_, victim_.string());
    writeFile(source.string() + "-journal", journal);
    expectReadAndVictimKept(source);
    EXPECT_EQ(readFile(source.string() + "-journal"), journal);

    writeFile(source.string() + "-journal", journalOf(database_, source.string()));
    expectReadAndVictimKept(source);
    EXPECT_EQ(readFile(source), database_);
}

TEST_F(ToolSuperJournal, OfAnArchivedDatabaseDeletesNothing)
{
    const fs::path archive = folder_ / "library.zip";
    ArchiveBuilder(archive, zip)
        .add(mediaDatabase, database_)
        .add(std::string(mediaDatabase) + "-journal", journalOf(database_, victim_.string()));
    expectReadAndVictimKept(archive);
}

TEST_F(ToolSuperJournal, OfABackupsIndexDeletesNothing)
{
    const fs::path backup = writeBackup(folder_ / "backup", library_);
    const fs::path journal = backup / "Manifest.db-journal";
    writeFile(journal, journalOf(readFile(backup / "Manifest.db"), victim_.string()));
    expectReadAndVictimKept(backup);
    EXPECT_TRUE(fs::exists(journal));
}

TEST_F(ToolSuperJournal, IsDeletedBySqliteItself)
{
    const fs::path source = folder_ / "Photos.sqlite";
    writeFile(source, database_);
    writeFile(source.string() + "-journal", journalOf(database_, victim_.string()));
    execute(openDatabase(source), "select count(*) from ZASSET");
    EXPECT_FALSE(fs::exists(victim_)) << "otherwise the tests here show nothing";
}

TEST_F(ToolSuperJournal, LeavesOtherJournalsAsTheyAre)
{
    const fs::path source = folder_ / "Photos.sqlite";
    for (const std::string &journal : {std::string(), magic.substr(1), "journal" + magic.substr(1),
                                       std::string(sectorSize, '\0')}) {
        writeFile(source.string() + "-journal", journal);
        iosphoto::tool::forgetSuperJournal(source);
        EXPECT_EQ(readFile(source.string() + "-journal"), journal);
    }
}
