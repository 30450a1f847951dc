#include "files/output_file.h"

#include "files/atomic_file.h"
#include "files/disk_sync.h"
#include "process/failure.h"
#include "text/system_error.h"
#include "text/translate.h"

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// The file itself where `file` is a link.
fs::path targetOf(const fs::path &file)
{
    std::error_code ignored;
    return fs::exists(file, ignored) ? fs::canonical(file, ignored) : file;
}

void requirePlaceForFile(const fs::path &file)
{
    std::error_code ignored;
    const fs::file_status status = fs::status(file, ignored);
    if (fs::is_directory(status))
        throw cannotWrite(file, translate("it is a folder; name a file in it"));
    if (fs::exists(status) && !fs::is_regular_file(status))
        throw cannotWrite(file, translate("it is not a file; name a file"));
}

[[noreturn]] void refuseAsOutput(const fs::path &file)
{
    throw Failure(WrongUsage, translate("'{0}' is the source, which is never changed; choose "
                                        "another place for the output",
                                        file.string()));
}

} // namespace

void requireOther(const fs::path &file, const FileSet &sources)
{
    if (sources.contains(file))
        refuseAsOutput(file);
}

void requireUnprotected(const FileUse &files, const fs::path &file)
{
    if (files.isProtected(file))
        refuseAsOutput(file);
}

void requireWritable(const fs::path &file)
{
    requirePlaceForFile(file);
    const AtomicFile attempt(targetOf(file));
}

void requireNew(const FileUse &files, const fs::path &file, const fs::path &source)
{
    requirePlaceForFile(file);
    requireOther(file, FileSet(source));
    requireUnprotected(files, file);
    std::error_code ignored;
    if (fs::exists(fs::symlink_status(file, ignored)))
        throw FileIsThere{file};
}

fs::path outputPlace(FileUse &files, const fs::path &file, const fs::path &source)
{
    requirePlaceForFile(file);
    requireOther(file, FileSet(source));
    requireUnprotected(files, file);
    files.willWrite(file);
    return targetOf(file);
}

namespace {

void write(FileUse &files, const fs::path &file, const QByteArray &content, const fs::path &source,
           void (AtomicFile::*finish)())
{
    AtomicFile atomic(outputPlace(files, file, source));
    atomic.write(content);
    (atomic.*finish)();
    files.wrote(file, content);
}

} // namespace

void writeOutput(FileUse &files, const fs::path &file, const QByteArray &content,
                 const fs::path &source)
{
    removeUnfinishedFiles(targetOf(file).parent_path());
    write(files, file, content, source, &AtomicFile::finish);
}

OutputFolder::OutputFolder(const fs::path &folder) : folder_(folder), changed_({folder})
{
    std::error_code error;
    for (fs::path each = fs::absolute(folder, error); !each.empty() && !fs::exists(each, error);
         each = each.parent_path())
        changed_.push_back(each.parent_path());
    fs::create_directories(folder, error);
    if (!error && !fs::is_directory(folder, error))
        error = std::make_error_code(std::errc::not_a_directory);
    if (error)
        throw Failure(CannotAccess, translate("cannot make the folder '{0}': {1}; choose another "
                                              "place for the output",
                                              folder.string(), systemError(error.value())));
    removeUnfinishedFiles(folder);
}

void OutputFolder::write(FileUse &files, const std::string &name, const QByteArray &content,
                         const fs::path &source) const
{
    tool::write(files, folder_ / name, content, source, &AtomicFile::finishInFolder);
}

void OutputFolder::finish() const
{
    for (const fs::path &folder : changed_)
        if (const std::error_code error = syncFolder(folder))
            throw cannotWrite(folder, error);
}

} // namespace iosphoto::tool
