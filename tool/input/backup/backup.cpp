#include "input/backup/backup.h"

#include "input/backup/encrypted_file.h"
#include "input/backup/manifest_db.h"
#include "input/backup/manifest_mbdb.h"
#include "input/backup/stored_names.h"
#include "sqlite/database_size.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

constexpr const char *database = backupIndexNames[0];
constexpr const char *mbdb = backupIndexNames[1];

} // namespace

bool isBackup(const FileTree &tree, const std::string &folder)
{
    const auto has = [&](const char *name) {
        return tree.find(joinedPath(folder, name)).has_value();
    };
    // Other programs have a Manifest.db or Manifest.plist too, but not both.
    const bool hasLists = has(backupManifest) || has(backupInfo);
    return has(mbdb) || (has(database) && hasLists) || (has(backupManifest) && has(backupInfo)) ||
           StoredNames(tree, folder).locate(databaseBelowMedia);
}

Backup::Backup(Session &session, const FileTree &tree, std::string folder)
    : fileUse_(session.files), tree_(tree), folder_(std::move(folder)),
      records_(session, tree_, folder_, BackupRecords::Extent::ListsAndIndex),
      missing_(records_.findings())
{
    if (records_.isEncrypted() == true)
        beginUnlocking(session);
}

void Backup::beginUnlocking(Session &session)
{
    if (!records_.keyBag())
        throw SourceError(SourceProblem::BackupWithoutKeyBag,
                          {tree_.shown(folder_), backupManifest});
    KeyBag keyBag(*records_.keyBag(), records_.shown(backupManifest));
    encryption_ = {keyBag.rounds(), keyBag.classesOfDevice()};
    unlocking_ = std::make_unique<Unlocking>(session, std::move(keyBag), tree_.shown(folder_));
}

void Backup::open()
{
    if (unlocking_)
        keys_ = unlocking_->finish();
    index_ = openIndex();
    requireDatabase();
    noteWhatIsMissing();
}

std::unique_ptr<BackupIndex> Backup::openIndex()
{
    for (const char *const name : backupIndexNames)
        if (indexName_.empty() && records_.has(name))
            indexName_ = name;
    if (indexName_.empty())
        return std::make_unique<StoredNames>(tree_, folder_);
    if (keys_) // which are of no use without an index
        return readIndex();
    try {
        return readIndex();
    } catch (const SourceError &error) {
        if (!isOfDamage(error.finding().kind))
            throw;
        auto names = std::make_unique<StoredNames>(tree_, folder_);
        if (!names->locate(databaseBelowMedia))
            throw;
        noteDamagedIndex();
        return names;
    }
}

std::unique_ptr<BackupIndex> Backup::readIndex()
{
    std::unique_ptr<BackupIndex> index;
    if (indexName_ == database)
        index = std::make_unique<ManifestDb>(records_.copyOf(database), records_.shown(database),
                                             decryptIndex());
    else
        index = std::make_unique<ManifestMbdb>(records_.copyOf(mbdb), records_.shown(mbdb));
    for (const char *const suffix : {"", "-wal", "-journal"}) // which may meet damage too
        (void)index->locate(std::string(databaseBelowMedia) + suffix);
    listed_ = index->storedFiles();
    return index;
}

std::optional<EncryptedIndex> Backup::decryptIndex() const
{
    if (!keys_)
        return std::nullopt;
    EncryptedIndex encryption(*keys_, records_.indexKey(), records_.shown(backupManifest));
    const std::filesystem::path copy = records_.copyOf(database);
    if (encryption.decrypt(copy, records_.shown(database)))
        fileUse_.decrypted(records_.shown(database), copy);
    return encryption;
}

bool Backup::isOfDamage(SourceProblem problem) const
{
    if (problem != SourceProblem::IndexIsNoDatabase)
        return problem == SourceProblem::IndexIsDamaged ||
               problem == SourceProblem::IndexIsCutShort;
    if (records_.isManifestDamaged())
        throw SourceError(SourceProblem::UnknownEncryption,
                          {tree_.shown(folder_), backupManifest, database});
    return records_.isEncrypted() == false;
}

void Backup::noteDamagedIndex()
{
    const std::string index = records_.shown(indexName_);
    const auto cut = indexName_ == database ? cutOf(records_.copyOf(database)) : std::nullopt;
    if (cut)
        missing_.push_back({SourceProblem::BackupWithShortIndex,
                            {index, std::to_string(cut->size), std::to_string(cut->whole)}});
    else
        missing_.push_back({SourceProblem::BackupWithDamagedIndex, {index}});
}

void Backup::requireDatabase() const
{
    const auto path = locate(databaseBelowMedia);
    if (!path)
        throw SourceError(SourceProblem::BackupWithoutLibrary,
                          {tree_.shown(folder_), indexName_, databaseBelowMedia});
    if (!tree_.find(*path))
        throw SourceError(SourceProblem::BackupWithoutDatabase,
                          {tree_.shown(folder_), tree_.shown(*path), databaseBelowMedia});
}

void Backup::noteWhatIsMissing()
{
    if (indexName_.empty())
        missing_.push_back({SourceProblem::BackupWithoutIndex, {tree_.shown(folder_)}});
    if (!listed_)
        return;
    bool isLogMissing = false;
    for (const char *const suffix : {"-wal", "-journal"}) {
        const std::string log = std::string(databaseBelowMedia) + suffix;
        const auto path = locate(log);
        if (!path || tree_.find(*path))
            continue;
        isLogMissing = true;
        missing_.push_back({SourceProblem::BackupWithoutLog, {tree_.shown(*path), log}});
    }
    if (!isLogMissing)
        noteMissingMedia();
}

void Backup::noteMissingMedia()
{
    const auto absent = std::count_if(listed_->begin(), listed_->end(), [&](const auto &path) {
        return !tree_.find(joinedPath(folder_, path));
    });
    if (absent > 0)
        missing_.push_back({SourceProblem::BackupWithoutMedia,
                            {tree_.shown(folder_), std::to_string(absent),
                             std::to_string(listed_->size()), indexName_}});
}

std::optional<std::string> Backup::locate(const std::string &mediaPath) const
{
    const auto path = index_->locate(mediaPath);
    return path ? std::make_optional(joinedPath(folder_, *path)) : std::nullopt;
}

std::optional<SourceFinding> Backup::decrypt(const std::string &mediaPath,
                                             const std::filesystem::path &copy) const
{
    if (!keys_)
        return std::nullopt;
    const std::string stored = tree_.shown(locate(mediaPath).value_or(folder_));
    const auto record = index_->record(mediaPath);
    auto finding = decryptStoredFile({stored, pathInDomain(mediaPath)}, record, *keys_, copy);
    std::error_code ignored;
    if (record && record->key && std::filesystem::exists(copy, ignored))
        fileUse_.decrypted(stored, copy);
    return finding;
}

} // namespace iosphoto::tool
