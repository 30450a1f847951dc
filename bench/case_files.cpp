#include "case_files.h"

#include "thumbnails.h"

namespace iosphoto::bench {

namespace {

namespace fs = std::filesystem;

constexpr char databaseName[] = "Photos.sqlite";

fs::path realLibraryIn(const fs::path &folder)
{
    return folder / "ios15-a" / databaseName;
}

/// Only the copy is opened, whatever SQLite does to it.
void copyLibrary(const fs::path &original, const fs::path &database)
{
    for (const char *suffix : {"", "-wal"}) {
        const fs::path file = database.string() + suffix;
        fs::copy_file(original.string() + suffix, file);
        fs::permissions(file, fs::perms::owner_write, fs::perm_options::add);
    }
}

} // namespace

bool isAvailable(const Case &wanted, const fs::path &realLibraries)
{
    return wanted.subject != Subject::RealLibrary || fs::exists(realLibraryIn(realLibraries));
}

fs::path subjectIn(const fs::path &folder, const Case &wanted)
{
    return folder / (wanted.subject == Subject::ThumbCache ? "166x166.ithmb" : databaseName);
}

void makeSubject(const fs::path &folder, const Case &wanted, const fs::path &realLibraries)
{
    const fs::path subject = subjectIn(folder, wanted);
    switch (wanted.subject) {
    case Subject::RealLibrary:
        copyLibrary(realLibraryIn(realLibraries), subject);
        break;
    case Subject::GeneratedLibrary:
        generateStore(subject, wanted.shape);
        break;
    case Subject::ThumbCache:
        makeThumbCache(subject, wanted.shape.assets);
        break;
    }
}

} // namespace iosphoto::bench
