#include "input/backup/backup.h"

#include "formats/property_list.h"
#include "formats/versions.h"
#include "input/backup/manifest_db.h"
#include "input/backup/manifest_mbdb.h"
#include "input/backup/stored_names.h"
#include "sqlite/rollback_journal.h"

#include <algorithm>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

constexpr const char *info = "Info.plist";
constexpr const char *manifest = "Manifest.plist";
constexpr const char *status = "Status.plist";
constexpr const char *database = backupIndexNames[0];
constexpr const char *mbdb = backupIndexNames[1];

constexpr const char *recordNames[] = {
    info, manifest, status, database, "Manifest.db-wal", "Manifest.db-journal", mbdb};

std::optional<RecordedDevice> recordedDevice(const PropertyList &infoList,
                                             const PropertyList &manifestList)
{
    const RecordedDevice fromInfo = {versionOrNothing(infoList.text({"Product Version"})),
                                     productOrNothing(infoList.text({"Product Type"})),
                                     infoList.text({"Build Version"}), info};
    if (!fromInfo.iosVersion.empty() || !fromInfo.productType.empty())
        return fromInfo;
    const RecordedDevice fromManifest = {
        versionOrNothing(manifestList.text({"Lockdown", "ProductVersion"})),
        productOrNothing(manifestList.text({"Lockdown", "ProductType"})),
        manifestList.text({"Lockdown", "BuildVersion"}), manifest};
    if (!fromManifest.iosVersion.empty() || !fromManifest.productType.empty())
        return fromManifest;
    return std::nullopt;
}

} // namespace

bool isBackup(const FileTree &tree, const std::string &folder)
{
    const auto has = [&](const char *name) {
        return tree.find(joinedPath(folder, name)).has_value();
    };
    // Other programs have a Manifest.db or Manifest.plist too, but not both.
    const bool hasLists = has(manifest) || has(info);
    return has(mbdb) || (has(database) && hasLists) || (has(manifest) && has(info)) ||
           StoredNames(tree, folder).locate(databaseBelowMedia);
}

Backup::Backup(Session &session, const FileTree &tree, std::string folder)
    : fileUse_(session.files), tree_(tree), folder_(std::move(folder))
{
    copyRecords();
    readProperties();
    index_ = openIndex();
    requireDatabase();
    noteWhatIsMissing();
}

void Backup::copyRecords() const
{
    std::vector<FileToCopy> files;
    std::vector<fs::path> onDisk;
    for (const char *const name : recordNames) {
        files.push_back({joinedPath(folder_, name), copies_ / name});
        if (files.back().target.extension() == ".plist")
            files.back().most = PropertyList::largest;
        if (has(name))
            onDisk.push_back(tree_.onDisk(files.back().path));
    }
    fileUse_.willRead(onDisk);
    tree_.copyOut(files);
    forgetSuperJournal(copies_ / database);
}

void Backup::readProperties()
{
    const PropertyList infoList(copies_ / info);
    const PropertyList manifestList(copies_ / manifest);
    isManifestDamaged_ = manifestList.isDamaged();
    for (const auto &[list, name] :
         {std::pair(&infoList, info), std::pair(&manifestList, manifest)})
        if (list->isDamaged())
            missing_.push_back({SourceProblem::DamagedPropertyList, {shown(name)}});
    if (manifestList.isTrue({"IsEncrypted"}))
        throw SourceError(SourceProblem::EncryptedBackup, {tree_.shown(folder_)});
    device_ = recordedDevice(infoList, manifestList);
    date_ = infoList.time({"Last Backup Date"});
    if (!date_)
        date_ = manifestList.time({"Date"});
    if (!date_)
        date_ = PropertyList(copies_ / status).time({"Date"});
}

void Backup::requireKnownEncryption() const
{
    if (isManifestDamaged_ &&
        !CopyDatabase((copies_ / database).string(), shown(database), IfDamaged::CopyBackupAgain)
             .isDatabase())
        throw SourceError(SourceProblem::UnknownEncryption,
                          {tree_.shown(folder_), manifest, database});
}

std::unique_ptr<BackupIndex> Backup::openIndex()
{
    for (const char *const name : backupIndexNames)
        if (indexName_.empty() && has(name))
            indexName_ = name;
    if (indexName_.empty())
        return std::make_unique<StoredNames>(tree_, folder_);
    if (indexName_ == database) {
        requireKnownEncryption();
        return std::make_unique<ManifestDb>(copies_ / database, shown(database));
    }
    return std::make_unique<ManifestMbdb>(copies_ / mbdb, shown(mbdb));
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
    if (indexName_.empty()) {
        missing_.push_back({SourceProblem::BackupWithoutIndex, {tree_.shown(folder_)}});
        return;
    }
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
    const std::vector<std::string> listed = index_->storedFiles();
    const auto absent = std::count_if(listed.begin(), listed.end(), [&](const std::string &path) {
        return !tree_.find(joinedPath(folder_, path));
    });
    if (absent > 0)
        missing_.push_back({SourceProblem::BackupWithoutMedia,
                            {tree_.shown(folder_), std::to_string(absent),
                             std::to_string(listed.size()), indexName_}});
}

std::optional<std::string> Backup::locate(const std::string &mediaPath) const
{
    const auto path = index_->locate(mediaPath);
    return path ? std::make_optional(joinedPath(folder_, *path)) : std::nullopt;
}

std::vector<std::string> Backup::records() const
{
    std::vector<std::string> paths;
    for (const char *const name : recordNames)
        if (has(name))
            paths.push_back(joinedPath(folder_, name));
    return paths;
}

bool Backup::has(const std::string &name) const
{
    return tree_.find(joinedPath(folder_, name)).has_value();
}

std::string Backup::shown(const std::string &name) const
{
    return tree_.shown(joinedPath(folder_, name));
}

} // namespace iosphoto::tool
