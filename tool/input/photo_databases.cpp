#include "input/photo_databases.h"

#include "files/private_folder.h"
#include "sqlite/rollback_journal.h"
#include "terminal/busy_line.h"
#include "text/translate.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <utility>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

constexpr const char *suffixes[] = {"", "-wal", "-journal"};

/// What is copied at a time to look into it, in bytes.
constexpr std::uint64_t mostBytes = std::uint64_t{256} * 1024 * 1024;

/// Files that are copied at a time, as an archive is read from its beginning each time.
using Batch = std::vector<std::string>;

std::uint64_t sizeOf(const FileTree &tree, const std::string &file)
{
    std::uint64_t size = 0;
    for (const char *const suffix : suffixes)
        if (const auto facts = tree.find(file + suffix))
            size += facts->size;
    return size;
}

bool isPhotoDatabase(const fs::path &copy, const std::string &shownName)
{
    forgetSuperJournal(copy);
    const CopyDatabase database(copy.string(), shownName);
    return database.isDatabase() && (hasPhotoTables(database) || hasPhotoTablesOfOldIos(database));
}

void copyOut(Session &session, const FileTree &tree, const Batch &batch, const fs::path &folder)
{
    std::vector<FileToCopy> files;
    std::vector<fs::path> onDisk;
    for (std::size_t i = 0; i < batch.size(); ++i)
        for (const char *const suffix : suffixes)
            if (tree.find(batch[i] + suffix)) {
                files.push_back({batch[i] + suffix, folder / (std::to_string(i) + suffix)});
                onDisk.push_back(tree.onDisk(batch[i] + suffix));
            }
    session.files.willRead(onDisk);
    tree.copyOut(files);
}

Batch photoDatabasesIn(Session &session, const FileTree &tree, const Batch &batch)
{
    const PrivateFolder folder;
    try {
        copyOut(session, tree, batch, folder.path());
    } catch (const Failure &) { // who names one of them is told
        return batch;
    } catch (const SourceError &) {
        return batch;
    }
    Batch photoDatabases;
    for (std::size_t i = 0; i < batch.size(); ++i)
        try {
            if (isPhotoDatabase(folder / std::to_string(i), tree.shown(batch[i])))
                photoDatabases.push_back(batch[i]);
        } catch (const Failure &) {
            photoDatabases.push_back(batch[i]);
        }
    return photoDatabases;
}

} // namespace

std::string assetTableOf(const CopyDatabase &database)
{
    for (const char *table : {"ZASSET", "ZGENERICASSET"})
        if (database.hasTable(table))
            return table;
    return {};
}

bool hasPhotoTables(const CopyDatabase &database)
{
    const std::string assets = assetTableOf(database);
    if (assets.empty())
        return false;
    const auto hasAll = [](const auto &names, const auto &has) {
        return std::all_of(std::begin(names), std::end(names), has);
    };
    constexpr const char *others[] = {"Z_PRIMARYKEY", "ZGENERICALBUM",
                                      "ZADDITIONALASSETATTRIBUTES"};
    constexpr const char *columnsOfFiles[] = {"Z_PK", "ZDIRECTORY", "ZFILENAME"};
    return hasAll(others, [&](const char *table) { return database.hasTable(table); }) ||
           hasAll(columnsOfFiles,
                  [&](const char *column) { return database.hasColumn(assets, column); });
}

bool hasPhotoTablesOfOldIos(const CopyDatabase &database)
{
    return database.hasTable("PhotoAlbum") && database.hasTable("PhotoExtras");
}

std::vector<std::string> photoDatabasesAmong(Session &session, const FileTree &tree,
                                             const std::vector<std::string> &files)
{
    const BusyLine busy(session.terminal, translate("looking into databases"));
    std::vector<std::string> result;
    Batch batch;
    std::uint64_t bytes = 0;
    const auto finishBatch = [&] {
        const Batch found = photoDatabasesIn(session, tree, std::exchange(batch, {}));
        result.insert(result.end(), found.begin(), found.end());
        bytes = 0;
    };
    for (const std::string &file : files) {
        const std::uint64_t size = sizeOf(tree, file);
        if (size > mostBytes) {
            result.push_back(file);
            continue;
        }
        if (bytes + size > mostBytes)
            finishBatch();
        batch.push_back(file);
        bytes += size;
    }
    finishBatch();
    return result;
}

} // namespace iosphoto::tool
