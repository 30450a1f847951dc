#include "input/tree/archive_tree.h"

#include "files/new_file.h"
#include "files/source_file.h"
#include "input/tree/archive_reader.h"
#include "input/tree/zip_times.h"

#include <algorithm>
#include <set>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// No path on a disk is longer.
constexpr std::size_t longestPath = 4096;

bool isTooDeep(const std::string &path)
{
    return path.size() > longestPath || std::count(path.begin(), path.end(), '/') > deepestFolder;
}

void addFoldersAround(const std::string &path, std::set<std::string> &folders)
{
    for (std::size_t slash = path.rfind('/');
         slash != std::string::npos && folders.insert(path.substr(0, slash)).second;
         slash = path.rfind('/', slash - 1)) {
    }
}

} // namespace

ArchiveTree::ArchiveTree(fs::path archive, std::string shownName)
    : archive_(std::move(archive)), shownName_(std::move(shownName)), state_(archive_)
{
    ArchiveReader reader(archive_, shownName_);
    while (reader.next()) {
        isZip_ = reader.isZip();
        const std::string path = reader.path();
        if (path.empty() || !(reader.isFile() || reader.isLink()))
            continue;
        if (isTooDeep(path)) {
            tooDeep_.push_back(path.substr(0, longestPath));
            continue;
        }
        if (reader.isLink()) {
            links_.push_back(path);
            continue;
        }
        const Entry entry = {{reader.size().value_or(0), {reader.modified()}},
                             reader.isHardLink(),
                             reader.isEncrypted(),
                             false};
        const auto [at, isNew] = entries_.emplace(path, entry);
        at->second.isTwice = !isNew;
    }
}

std::optional<FileFacts> ArchiveTree::find(const std::string &path) const
{
    const auto found = entries_.find(path);
    return found != entries_.end() ? std::make_optional(found->second.facts) : std::nullopt;
}

UnsearchedFolders ArchiveTree::searchFolders(const std::string &top, FolderVisitor &visitor) const
{
    std::set<std::string> folders = {top};
    for (const auto &[path, entry] : entries_)
        addFoldersAround(path, folders);
    for (const std::string &path : links_)
        addFoldersAround(path, folders);
    std::set<std::string> entered;
    for (const std::string &folder : folders) {
        const bool isToBeSeen = folder == top || entered.count(parentOf(folder)) != 0;
        if (isInside(folder, top) && isToBeSeen && visitor.enter(folder))
            entered.insert(folder);
    }
    for (const auto &[path, entry] : entries_)
        if (entered.count(parentOf(path)) != 0)
            visitor.meetFile(path);
    for (const std::string &path : links_)
        if (entered.count(parentOf(path)) != 0)
            visitor.meetLink(path);
    UnsearchedFolders unsearched;
    unsearched.hasTooDeep =
        std::any_of(tooDeep_.begin(), tooDeep_.end(),
                    [&](const std::string &path) { return isInside(path, top); });
    return unsearched;
}

bool ArchiveTree::hasFolder(const std::string &path) const
{
    const auto first = entries_.lower_bound(path + "/");
    return path.empty() || (first != entries_.end() && isInside(first->first, path));
}

bool ArchiveTree::hasTimeWithoutZone(const std::string &path) const
{
    return isZip_ && !hasZonedTime(archive_, path);
}

std::string ArchiveTree::shown(const std::string &path) const
{
    return joinedPath(shownName_, path);
}

void ArchiveTree::requirePlain(const std::string &path, const Entry &entry) const
{
    if (entry.isEncrypted)
        throw SourceError(SourceProblem::EncryptedEntry, {shown(path)});
    if (entry.isHardLink)
        throw SourceError(SourceProblem::LinkedEntry, {shown(path)});
    if (entry.isTwice)
        throw SourceError(SourceProblem::RepeatedEntry, {shown(path)});
}

void ArchiveTree::requireCopyable(const std::string &path) const
{
    if (const auto found = entries_.find(path); found != entries_.end())
        requirePlain(path, found->second);
}

void ArchiveTree::copyOut(const std::vector<FileToCopy> &files) const
{
    std::map<std::string, Target> targets;
    std::uint64_t bytes = 0;
    for (const FileToCopy &file : files) {
        const auto found = entries_.find(file.path);
        if (found == entries_.end())
            continue;
        requirePlain(file.path, found->second);
        requireNotLarger(shown(file.path), found->second.facts.size, file.most);
        targets[file.path] = {file.target, file.most};
        bytes += found->second.facts.size;
    }
    if (!targets.empty()) {
        requireRoom(targets.begin()->second.path, bytes);
        extract(std::move(targets));
    }
    if (!(FileStamp(archive_) == state_))
        throw SourceError(SourceProblem::ChangingArchive, {shownName_});
}

void ArchiveTree::extract(std::map<std::string, Target> targets) const
{
    ArchiveReader reader(archive_, shownName_);
    while (!targets.empty() && reader.next()) {
        const auto wanted = targets.find(reader.path());
        if (wanted == targets.end() || !reader.isFile())
            continue;
        reader.copyTo(wanted->second.path, wanted->second.most);
        targets.erase(wanted);
    }
}

} // namespace iosphoto::tool
