#ifndef IOSPHOTO_TOOL_SQLITE_OUTPUT_H
#define IOSPHOTO_TOOL_SQLITE_OUTPUT_H

#include "files/atomic_file.h"
#include "files/file_use.h"
#include "model/store/sqlite_handles.h"
#include "rows/output_problem.h"
#include "rows/row_writer.h"
#include "rows/values.h"
#include "text/json.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// A SQLite database that is written whole or not at all. Throws when it cannot be: OutputError,
/// and Failure for what is wrong with the place of the file.
class SqliteOutput
{
public:
    /// Refuses to replace the source and any file but an output of this kind.
    /// @param head  becomes the one row of the table `library`
    /// @param source  as the user named it
    SqliteOutput(FileUse &files, const std::filesystem::path &file,
                 const std::filesystem::path &source, const Json &head);
    ~SqliteOutput();
    SqliteOutput(const SqliteOutput &) = delete;
    SqliteOutput &operator=(const SqliteOutput &) = delete;

    void execute(const std::string &sql);

    /// Gives the file its name. Nothing may be written behind this.
    void finish();

private:
    friend class SqliteInsert;

    void writeHead(const Json &head);
    OutputError unwritable() const;

    FileUse &fileUse_;
    std::filesystem::path shownFile_;
    std::unique_ptr<AtomicFile> file_;
    SqliteConnection connection_;
};

/// Inserts rows into a table of an output, which outlives it and is finished after it is gone.
class SqliteInsert
{
public:
    SqliteInsert(SqliteOutput &output, const std::string &table, std::size_t columns);

    /// @param values  of the last columns; those in front of them stay null, for which SQLite puts
    ///                the next number into an integer primary key
    void row(const std::vector<Value> &values);

private:
    SqliteOutput &output_;
    std::size_t columns_;
    SqliteStatement statement_;
    std::vector<std::string> made_; ///< texts of the row that are not the values themselves
};

/// Writes rows into a table of an output that is named as RowsHead::rows says. The output's
/// finish() comes after end().
class SqliteRows : public RowWriter
{
public:
    /// @param key  the column that is the primary key; one that the rows do not have is added in
    ///             front and counts them from 1
    explicit SqliteRows(SqliteOutput &output, std::string key = "id");

    void begin(const RowsHead &head, const std::vector<Column> &columns) override;
    void row(const std::vector<Value> &values) override;
    void end() override;

private:
    SqliteOutput &output_;
    std::string key_;
    std::unique_ptr<SqliteInsert> insert_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SQLITE_OUTPUT_H
