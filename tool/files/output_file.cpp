#include "files/output_file.h"

#include "files/atomic_file.h"
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

fs::path outputPlace(FileUse &files, const fs::path &file, const fs::path &source)
{
    requirePlaceForFile(file);
    requireOther(file, FileSet(source));
    requireUnprotected(files, file);
    files.willWrite(file);
    return targetOf(file);
}

void writeOutput(FileUse &files, const fs::path &file, const QByteArray &content,
                 const fs::path &source)
{
    AtomicFile atomic(outputPlace(files, file, source));
    atomic.write(content);
    atomic.finish();
    files.wrote(file, content);
}

void makeOutputFolder(const fs::path &folder)
{
    std::error_code error;
    fs::create_directories(folder, error);
    if (!error && !fs::is_directory(folder))
        error = std::make_error_code(std::errc::not_a_directory);
    if (error)
        throw Failure(CannotAccess, translate("cannot make the folder '{0}': {1}; choose another "
                                              "place for the output",
                                              folder.string(), systemError(error.value())));
}

} // namespace iosphoto::tool
