#include "input/library_description.h"

#include "files/private_folder.h"
#include "formats/property_list.h"
#include "input/backup/backup_records.h"
#include "input/tree/folder_tree.h"

#include <filesystem>
#include <memory>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

void describeDatabase(const FileTree &tree, const FoundLibrary &library,
                      LibraryDescription &description)
{
    description.database = tree.find(library.kind == SourceKind::Database
                                         ? library.path
                                         : joinedPath(library.path, databaseBelowMedia));
}

void describeBackup(Session &session, const FileTree &tree, const std::string &folder,
                    LibraryDescription &description)
{
    const BackupRecords records(session, tree, folder, BackupRecords::Extent::Lists);
    description.device = records.device();
    description.deviceName = records.identity().name;
    description.backupDate = records.date();
    description.isEncrypted = records.isEncrypted();
    description.isFinished = records.isFinished();
    description.findings = records.findings();
}

LibraryDescription describeOne(Session &session, const FileTree &tree, const FoundLibrary &library)
{
    LibraryDescription description;
    description.kind = library.kind;
    description.name = tree.shown(library.path);
    try {
        if (library.kind == SourceKind::Backup)
            describeBackup(session, tree, library.path, description);
        else
            describeDatabase(tree, library, description);
    } catch (const Failure &failure) {
        description.findings = {
            {SourceProblem::UnsearchedPlaces, {description.name, "1", failure.what()}}};
    } catch (const SourceError &error) {
        description.findings = {error.finding()};
    }
    return description;
}

/// The property lists of the backups in an archive, each in a folder of its own: read together, as
/// each reading begins at the beginning of the archive.
class CopiedRecords
{
public:
    CopiedRecords(Session &session, const FileTree &archive,
                  const std::vector<FoundLibrary> &libraries)
        : archive_(archive)
    {
        session.files.passOver(copies_.path());
        session.files.willRead({archive.onDisk("")});
        std::vector<FileToCopy> files;
        for (std::size_t i = 0; i < libraries.size(); ++i) {
            if (libraries[i].kind != SourceKind::Backup)
                continue;
            fs::create_directory(folderOf(i));
            for (const char *const name : backupPropertyLists)
                files.push_back({joinedPath(libraries[i].path, name), folderOf(i) / name,
                                 PropertyList::largest});
        }
        archive.copyOut(files);
    }

    /// The backup of that number as a folder of its records.
    FolderTree tree(std::size_t number, const std::string &path) const
    {
        return {folderOf(number), archive_.shown(path)};
    }

private:
    fs::path folderOf(std::size_t number) const { return copies_ / std::to_string(number); }

    const FileTree &archive_;
    PrivateFolder copies_;
};

std::unique_ptr<CopiedRecords> copiedTogether(Session &session, const FileTree &archive,
                                              const std::vector<FoundLibrary> &libraries)
{
    try {
        return std::make_unique<CopiedRecords>(session, archive, libraries);
    } catch (const Failure &) { // of a single library, which says so when it is described alone
        return nullptr;
    } catch (const SourceError &) {
        return nullptr;
    }
}

} // namespace

std::vector<LibraryDescription> describe(Session &session, const FileTree &tree,
                                         const std::vector<FoundLibrary> &libraries)
{
    const auto records = tree.isArchive() ? copiedTogether(session, tree, libraries) : nullptr;
    std::vector<LibraryDescription> descriptions;
    for (std::size_t i = 0; i < libraries.size(); ++i) {
        const FoundLibrary &library = libraries[i];
        if (records != nullptr && library.kind == SourceKind::Backup)
            descriptions.push_back(
                describeOne(session, records->tree(i, library.path), {library.kind, ""}));
        else
            descriptions.push_back(describeOne(session, tree, library));
    }
    return descriptions;
}

} // namespace iosphoto::tool
