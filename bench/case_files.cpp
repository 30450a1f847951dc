#include "case_files.h"

#include "thumbnails.h"

namespace iosphoto::bench {

namespace {

namespace fs = std::filesystem;

constexpr char databaseName[] = "Photos.sqlite";

fs::path realLibrary()
{
    return fs::path(IOSPHOTO_REAL_LIBRARIES) / "ios15-a" / databaseName;
}

/// Only the copy is opened, whatever SQLite does to it.
void copyRealLibrary(const fs::path &database)
{
    for (const char *suffix : {"", "-wal"}) {
        const fs::path file = database.string() + suffix;
        fs::copy_file(realLibrary().string() + suffix, file);
        fs::permissions(file, fs::perms::owner_write, fs::perm_options::add);
    }
}

} // namespace

bool isAvailable(const Case &wanted)
{
    return wanted.subject != Subject::RealLibrary || fs::exists(realLibrary());
}

fs::path subjectIn(const fs::path &folder, const Case &wanted)
{
    return folder / (wanted.subject == Subject::ThumbCache ? "166x166.ithmb" : databaseName);
}

void makeSubject(const fs::path &folder, const Case &wanted)
{
    const fs::path subject = subjectIn(folder, wanted);
    switch (wanted.subject) {
    case Subject::RealLibrary:
        copyRealLibrary(subject);
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
