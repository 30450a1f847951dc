#include "input/backup/backup_records.h"

#include "formats/property_list.h"
#include "formats/versions.h"
#include "sqlite/rollback_journal.h"

#include <utility>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

constexpr const char *database = backupIndexNames[0];
constexpr const char *mbdb = backupIndexNames[1];
constexpr const char *indexNames[] = {database, "Manifest.db-wal", "Manifest.db-journal", mbdb};

std::optional<RecordedDevice> recordedDevice(const PropertyList &info, const PropertyList &manifest)
{
    const RecordedDevice fromInfo = {versionOrNothing(info.text({"Product Version"})),
                                     productOrNothing(info.text({"Product Type"})),
                                     info.text({"Build Version"}), backupInfo};
    if (!fromInfo.iosVersion.empty() || !fromInfo.productType.empty())
        return fromInfo;
    const RecordedDevice fromManifest = {
        versionOrNothing(manifest.text({"Lockdown", "ProductVersion"})),
        productOrNothing(manifest.text({"Lockdown", "ProductType"})),
        manifest.text({"Lockdown", "BuildVersion"}), backupManifest};
    if (!fromManifest.iosVersion.empty() || !fromManifest.productType.empty())
        return fromManifest;
    return std::nullopt;
}

std::string firstKnown(std::initializer_list<std::string> texts)
{
    for (const std::string &text : texts)
        if (!text.empty())
            return text;
    return {};
}

DeviceIdentity identityIn(const PropertyList &info, const PropertyList &manifest)
{
    return {
        firstKnown({info.text({"Device Name"}), info.text({"Display Name"}),
                    manifest.text({"Lockdown", "DeviceName"})}),
        firstKnown({info.text({"Serial Number"}), manifest.text({"Lockdown", "SerialNumber"})})};
}

} // namespace

BackupRecords::BackupRecords(Session &session, const FileTree &tree, std::string folder,
                             Extent extent)
    : tree_(tree), folder_(std::move(folder)),
      names_(std::begin(backupPropertyLists), std::end(backupPropertyLists))
{
    if (extent == Extent::ListsAndIndex)
        names_.insert(names_.end(), std::begin(indexNames), std::end(indexNames));
    copy(session.files);
    read();
}

void BackupRecords::copy(FileUse &fileUse) const
{
    std::vector<FileToCopy> files;
    std::vector<fs::path> onDisk;
    for (const std::string &name : names_) {
        files.push_back({joinedPath(folder_, name), copyOf(name)});
        if (files.back().target.extension() == ".plist")
            files.back().most = PropertyList::largest;
        if (has(name))
            onDisk.push_back(tree_.onDisk(files.back().path));
    }
    fileUse.willRead(onDisk);
    tree_.copyOut(files);
    forgetSuperJournal(copyOf(database));
}

void BackupRecords::read()
{
    const PropertyList info(copyOf(backupInfo));
    const PropertyList manifest(copyOf(backupManifest));
    isManifestDamaged_ = manifest.isDamaged();
    for (const auto &[list, name] :
         {std::pair(&info, backupInfo), std::pair(&manifest, backupManifest)})
        if (list->isDamaged())
            findings_.push_back({SourceProblem::DamagedPropertyList, {shown(name)}});
    if (has(backupManifest) && !manifest.isDamaged())
        isEncrypted_ = manifest.isTrue({"IsEncrypted"});
    keyBag_ = manifest.data({"BackupKeyBag"});
    indexKey_ = manifest.data({"ManifestKey"});
    device_ = recordedDevice(info, manifest);
    identity_ = identityIn(info, manifest);
    date_ = info.time({"Last Backup Date"});
    if (!date_)
        date_ = manifest.time({"Date"});
    readStatus();
}

void BackupRecords::readStatus()
{
    const PropertyList status(copyOf(backupStatus));
    if (status.isDamaged())
        findings_.push_back({SourceProblem::DamagedPropertyList, {shown(backupStatus)}});
    if (!date_)
        date_ = status.time({"Date"});
    // "new" is what BackupState says of most that are finished.
    const std::string snapshot = status.text({"SnapshotState"});
    const std::string state = status.text({"BackupState"});
    if (!snapshot.empty())
        isFinished_ = snapshot == "finished";
    else if (state == "empty" || state == "uploading")
        isFinished_ = false;
    if (isFinished_ == false)
        findings_.push_back({SourceProblem::UnfinishedBackup,
                             {tree_.shown(folder_), backupStatus, firstKnown({snapshot, state})}});
}

std::vector<std::string> BackupRecords::files() const
{
    std::vector<std::string> paths;
    for (const std::string &name : names_)
        if (has(name))
            paths.push_back(joinedPath(folder_, name));
    return paths;
}

bool BackupRecords::has(const std::string &name) const
{
    return tree_.find(joinedPath(folder_, name)).has_value();
}

std::string BackupRecords::shown(const std::string &name) const
{
    return tree_.shown(joinedPath(folder_, name));
}

} // namespace iosphoto::tool
