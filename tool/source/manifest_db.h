#ifndef IOSPHOTO_TOOL_MANIFEST_DB_H
#define IOSPHOTO_TOOL_MANIFEST_DB_H

#include "source/backup_index.h"

#include <filesystem>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace iosphoto::tool {

/// The index of a backup since iOS 10: a database.
class ManifestDb : public BackupIndex
{
public:
    /// Throws Failure when it cannot be read.
    /// @param copy       a private copy, as SQLite may change it
    /// @param shownName  the file in the backup, for messages
    ManifestDb(const std::filesystem::path &copy, std::string shownName);

    std::optional<std::string> locate(const std::string &mediaPath) const override;
    std::vector<std::string> storedFiles() const override;

private:
    struct Close
    {
        void operator()(sqlite3 *connection) const;
        void operator()(sqlite3_stmt *statement) const;
    };

    [[noreturn]] void fail() const;

    std::string shownName_;
    std::unique_ptr<sqlite3, Close> connection_;
    std::unique_ptr<sqlite3_stmt, Close> lookup_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_MANIFEST_DB_H
