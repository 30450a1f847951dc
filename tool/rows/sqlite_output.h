#ifndef IOSPHOTO_TOOL_SQLITE_OUTPUT_H
#define IOSPHOTO_TOOL_SQLITE_OUTPUT_H

#include "output/json_document.h"
#include "output/unfinished_file.h"

#include <sqlite3.h>

#include <filesystem>
#include <memory>
#include <string>

namespace iosphoto::tool {

/// A SQLite database that is written whole or not at all. Throws Failure when it cannot be.
class SqliteOutput
{
public:
    /// Refuses to replace the source and any file but an output of this kind.
    /// @param head  becomes the one row of the table `library`
    SqliteOutput(const std::filesystem::path &file, const std::filesystem::path &source,
                 const Json &head);
    ~SqliteOutput();
    SqliteOutput(const SqliteOutput &) = delete;
    SqliteOutput &operator=(const SqliteOutput &) = delete;

    void execute(const std::string &sql);

    /// Gives the file its name. Nothing may be written behind this.
    void finish();

private:
    friend class SqliteInsert;

    struct Close
    {
        void operator()(sqlite3 *connection) const { sqlite3_close(connection); }
        void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
    };

    void writeHead(const Json &head);
    Failure unwritable() const;

    std::filesystem::path shownFile_;
    std::unique_ptr<UnfinishedFile> unfinished_;
    std::unique_ptr<sqlite3, Close> connection_;
};

/// A name as SQL has it, whatever it is made of.
std::string quotedName(const std::string &name);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SQLITE_OUTPUT_H
