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

/// No phone has paths beyond these, and the folders of one that is far beyond fill the memory.
bool isOfAPhone(const std::string &path)
{
    constexpr std::size_t longest = 4096;
    constexpr std::ptrdiff_t deepest = 64;
    return !path.empty() && path.size() <= longest &&
           std::count(path.begin(), path.end(), '/') < deepest;
}

std::string parentOf(const std::string &path)
{
    const std::size_t slash = path.rfind('/');
    return slash != std::string::npos ? path.substr(0, slash) : "";
}

} // namespace

ArchiveTree::ArchiveTree(fs::path archive, std::string shownName)
    : archive_(std::move(archive)), shownName_(std::move(shownName)), state_(archive_)
{
    ArchiveReader reader(archive_);
    while (reader.next()) {
        isZip_ = reader.isZip();
        const std::string path = reader.path();
        if (!isOfAPhone(path) || !reader.isFile())
            continue;
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

UnsearchedFolders
ArchiveTree::searchFolders(const std::string &top,
                           const std::function<bool(const std::string &)> &look) const
{
    std::set<std::string> folders = {top};
    for (const auto &[path, entry] : entries_)
        for (std::size_t slash = path.rfind('/');
             slash != std::string::npos && folders.insert(path.substr(0, slash)).second;
             slash = path.rfind('/', slash - 1)) {
        }
    std::set<std::string> passedOver;
    for (const std::string &folder : folders) {
        const std::string parent = parentOf(folder);
        const bool isToBePassed = folder != top && passedOver.count(parent) != 0;
        if (isInside(folder, top) && (isToBePassed || !look(folder)))
            passedOver.insert(folder);
    }
    return {};
}

std::vector<std::string> ArchiveTree::loneFiles(const std::string &top) const
{
    std::vector<std::string> files;
    for (const auto &[path, entry] : entries_) {
        const fs::path name = fs::path(path).filename();
        // A Mac packs notes of its own on a file as "._" and its name.
        if (name.extension() == ".sqlite" && name.string().compare(0, 2, "._") != 0 &&
            isInside(path, top))
            files.push_back(path);
    }
    return files;
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
    ArchiveReader reader(archive_);
    while (!targets.empty() && reader.next()) {
        const auto wanted = targets.find(reader.path());
        if (wanted == targets.end() || !reader.isFile())
            continue;
        reader.copyTo(wanted->second.path, wanted->second.most);
        targets.erase(wanted);
    }
}

} // namespace iosphoto::tool
