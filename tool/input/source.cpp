#include "input/source.h"

#include "input/library_layout.h"
#include "input/library_search.h"

#include <algorithm>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

constexpr const char *databaseSuffixes[] = {"", "-wal", "-journal"};

/// Paths come from databases, which may say anything.
bool staysBelowMedia(const std::string &mediaPath)
{
    const fs::path path(mediaPath);
    return path.is_relative() && std::find(path.begin(), path.end(), "..") == path.end();
}

} // namespace

Source::Source(Session &session, const std::string &name, Opening opening)
    : Source(session, openPlace(session, name), opening)
{
}

Source::Source(Session &session, Place place, Opening opening) : place_(std::move(place))
{
    const std::string &name = place_.name;
    if (place_.database) {
        layout_ = std::make_unique<LoneDatabase>(*place_.database);
    } else {
        LibrarySearch search =
            searchLibraries(session, tree(), place_.top, name, SeveralLibraries::mostCounted);
        layout_ = onlyLibrary(session, tree(), search, place_.top, name);
        unsearched_ = search.unsearched;
        passedOver_ = namesOf(tree(), search.passedOver);
    }
    if (opening == Opening::AtOnce)
        open();
}

void Source::open()
{
    layout_->open();
    const bool isNamed = place_.database && !isArchive();
    databaseName_ = isNamed ? name() : tree().shown(databaseFiles().front().path);
}

std::vector<SourceFinding> Source::missing() const
{
    std::vector<SourceFinding> all = unsearched_;
    for (SourceFinding &finding : layout_->missing())
        all.push_back(std::move(finding));
    return all;
}

UnixTime Source::lastChange() const
{
    UnixTime last;
    for (const char *const suffix : {"", "-wal"})
        if (const auto facts = find(std::string(databaseBelowMedia) + suffix))
            last = std::max(last, facts->modified);
    return last;
}

bool Source::isLastChangeWithoutZone() const
{
    const UnixTime last = lastChange();
    for (const char *const suffix : {"", "-wal"}) {
        const auto path = locate(std::string(databaseBelowMedia) + suffix);
        const auto facts = path ? tree().find(*path) : std::nullopt;
        if (facts && facts->modified == last && tree().hasTimeWithoutZone(*path))
            return true;
    }
    return false;
}

std::vector<fs::path> Source::inputs() const
{
    std::vector<std::string> paths = layout_->records();
    for (const FileToCopy &file : databaseFiles())
        paths.push_back(file.path);
    std::vector<fs::path> files;
    files.reserve(paths.size());
    for (const std::string &path : paths)
        files.push_back(tree().onDisk(path));
    files.erase(std::unique(files.begin(), files.end()), files.end());
    return files;
}

void Source::announceReading(FileUse &fileUse) const
{
    if (place_.folder)
        fileUse.protectFolder(*place_.folder);
    const std::vector<fs::path> files = inputs();
    fileUse.protectFiles(files);
    const std::string database = tree().onDisk(databaseFiles().front().path).string();
    fileUse.protectFiles({database + "-wal", database + "-journal", database + "-shm"});
    fileUse.willRead(files);
}

std::vector<FileToCopy> Source::databaseFiles() const
{
    std::vector<FileToCopy> files;
    for (const char *const suffix : databaseSuffixes)
        if (const auto path = layout_->locate(std::string(databaseBelowMedia) + suffix))
            files.push_back({*path, std::string(databaseFile) + suffix});
    return files;
}

std::vector<SourceFinding> Source::copyDatabaseTo(const fs::path &folder) const
{
    std::vector<FileToCopy> files = databaseFiles();
    for (FileToCopy &file : files)
        file.target = folder / file.target;
    tree().copyOut(files);
    if (!fs::exists(folder / databaseFile))
        throw SourceError(SourceProblem::VanishedDatabase, {databaseName_});
    return decryptDatabase(folder);
}

std::vector<SourceFinding> Source::decryptDatabase(const fs::path &folder) const
{
    std::vector<SourceFinding> missing;
    for (const char *const suffix : databaseSuffixes) {
        const fs::path copy = folder / (std::string(databaseFile) + suffix);
        const auto finding = fs::exists(copy)
                                 ? layout_->decrypt(std::string(databaseBelowMedia) + suffix, copy)
                                 : std::nullopt;
        if (finding && copy.filename() == databaseFile && !fs::exists(copy))
            throw SourceError(finding->kind, finding->facts);
        if (finding)
            missing.push_back(*finding);
    }
    return missing;
}

std::optional<std::string> Source::locate(const std::string &mediaPath) const
{
    return staysBelowMedia(mediaPath) ? layout_->locate(mediaPath) : std::nullopt;
}

std::optional<FileFacts> Source::find(const std::string &mediaPath) const
{
    const auto path = locate(mediaPath);
    return path ? tree().find(*path) : std::nullopt;
}

std::vector<SourceFinding> Source::copyOut(const std::vector<FileToCopy> &files) const
{
    std::vector<FileToCopy> located;
    for (const FileToCopy &file : files)
        if (const auto path = locate(file.path))
            located.push_back({*path, file.target});
    tree().copyOut(located);
    std::vector<SourceFinding> missing;
    for (const FileToCopy &file : files)
        if (fs::exists(file.target))
            if (const auto finding = layout_->decrypt(file.path, file.target))
                missing.push_back(*finding);
    return missing;
}

} // namespace iosphoto::tool
