#ifndef IOSPHOTO_TOOL_PRIVATE_COPY_H
#define IOSPHOTO_TOOL_PRIVATE_COPY_H

#include "source/private_folder.h"
#include "source/rollback_journal.h"
#include "source/source.h"

#include <fstream>
#include <string>
#include <string_view>

namespace iosphoto::tool {

/// A copy of a source's database with its write-ahead log and journal, which goes with the object.
/// So the original is never opened for writing.
class PrivateCopy
{
public:
    /// Throws Failure when something cannot be read or copied.
    explicit PrivateCopy(const Source &source)
    {
        source.copyDatabaseTo(folder_.path());
        forgetSuperJournal(database());
    }

    std::string database() const { return (folder_ / Source::databaseFile).string(); }

    /// Whether a write-ahead log that is not empty came with it.
    bool hasLog() const
    {
        std::error_code ignored;
        const auto size = std::filesystem::file_size(database() + "-wal", ignored);
        return !ignored && size > 0;
    }

    /// Whether that log is one, as far as its beginning tells.
    bool hasReadableLog() const
    {
        std::ifstream log(database() + "-wal", std::ios::binary);
        char magic[4] = {};
        log.read(magic, sizeof magic);
        const std::string_view found(magic, sizeof magic);
        using namespace std::string_view_literals;
        return found == "\x37\x7f\x06\x82"sv || found == "\x37\x7f\x06\x83"sv;
    }

private:
    PrivateFolder folder_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PRIVATE_COPY_H
