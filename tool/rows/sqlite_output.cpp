#include "rows/sqlite_output.h"

#include "files/output_file.h"
#include "files/sqlite_magic.h"
#include "formats/big_endian.h"
#include "rows/sqlite_values.h"
#include "sqlite/sqlite_error.h"
#include "text/lists.h"

#include <algorithm>
#include <fstream>
#include <string>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// SQLite's application_id of the databases that the tool writes: "iPho".
constexpr std::int32_t ownApplicationId = 0x6950686F;

/// Reads the header of a SQLite file: nothing is opened that could lock or change it.
bool isOwn(const fs::path &file)
{
    constexpr std::size_t idAt = 68;
    constexpr std::size_t idSize = 4;
    std::string header(idAt + idSize, '\0');
    std::ifstream in(file, std::ios::binary);
    if (!in.read(header.data(), static_cast<std::streamsize>(header.size())))
        return false;
    return header.compare(0, sqliteMagic.size(), sqliteMagic) == 0 &&
           bigEndian(std::string_view(header).substr(idAt, idSize)) == ownApplicationId;
}

/// Nobody is to lose a file that the tool did not write, or one that is in use.
void requireReplaceable(const fs::path &file)
{
    std::error_code ignored;
    for (const char *suffix : {"-wal", "-journal"})
        if (const fs::path log = file.string() + suffix; fs::exists(log, ignored))
            throw OutputError(OutputProblem::InUse, {file.string(), log.string()});
    if (fs::exists(file, ignored) && !isOwn(file))
        throw OutputError(OutputProblem::NotOurs, {file.string()});
}

} // namespace

SqliteOutput::SqliteOutput(FileUse &files, const fs::path &file, const fs::path &source,
                           const Json &head)
    : fileUse_(files), shownFile_(file)
{
    const fs::path place = outputPlace(files, file, source);
    requireReplaceable(place);
    removeUnfinishedFiles(place.parent_path());
    file_ = std::make_unique<AtomicFile>(place);
    sqlite3 *connection = nullptr;
    const int result = sqlite3_open_v2(file_->temporaryName().c_str(), &connection,
                                       SQLITE_OPEN_READWRITE, "unix-none"); // has a lock
    connection_.reset(connection);
    if (result != SQLITE_OK)
        throw unwritable();
    // A file that fails is thrown away, so nothing has to be kept safe while it is written.
    execute("pragma journal_mode = off; pragma synchronous = off; "
            "pragma locking_mode = exclusive; pragma application_id = " +
            std::to_string(ownApplicationId) + "; pragma user_version = 1; begin");
    writeHead(head);
}

SqliteOutput::~SqliteOutput() = default;

void SqliteOutput::writeHead(const Json &head)
{
    std::vector<std::string> columns;
    std::vector<Value> values;
    for (const auto &[key, member] : head.items()) {
        columns.push_back(quotedName(key));
        if (member.is_null())
            values.emplace_back();
        else if (member.is_boolean())
            values.emplace_back(member.get<bool>());
        else if (member.is_number_integer())
            values.emplace_back(member.get<std::int64_t>());
        else if (member.is_string())
            values.emplace_back(member.get<std::string>());
        else
            values.emplace_back(oneLine(member));
    }
    execute("create table library (" + joinedTexts(columns, ", ") + ")");
    SqliteInsert(*this, "library", values.size()).row(values);
}

void SqliteOutput::execute(const std::string &sql)
{
    if (sqlite3_exec(connection_.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw unwritable();
}

void SqliteOutput::finish()
{
    execute("commit");
    connection_.reset();
    file_->finish();
    fileUse_.wroteWhole(shownFile_);
}

OutputError SqliteOutput::unwritable() const
{
    return {OutputProblem::Unwritten, {shownFile_.string(), sqliteError(connection_.get())}};
}

SqliteInsert::SqliteInsert(SqliteOutput &output, const std::string &table, std::size_t columns)
    : output_(output), columns_(columns)
{
    const std::string places = joinedTexts(std::vector<std::string>(columns, "?"), ", ");
    const std::string sql = "insert into " + quotedName(table) + " values (" + places + ")";
    sqlite3_stmt *statement = nullptr;
    const int result =
        sqlite3_prepare_v2(output_.connection_.get(), sql.c_str(), -1, &statement, nullptr);
    statement_.reset(statement);
    if (result != SQLITE_OK)
        throw output_.unwritable();
}

void SqliteInsert::row(const std::vector<Value> &values)
{
    made_.resize(values.size());
    const int firstPlace = 1 + static_cast<int>(columns_ - values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const int place = firstPlace + static_cast<int>(i);
        if (bindValue(statement_.get(), place, values[i], made_[i]) != SQLITE_OK)
            throw output_.unwritable();
    }
    const int result = sqlite3_step(statement_.get());
    sqlite3_reset(statement_.get());
    if (result != SQLITE_DONE)
        throw output_.unwritable();
}

SqliteRows::SqliteRows(SqliteOutput &output, std::string key)
    : output_(output), key_(std::move(key))
{
}

void SqliteRows::begin(const RowsHead &head, const std::vector<Column> &columns)
{
    const bool isCounting = std::none_of(columns.begin(), columns.end(),
                                         [&](const Column &column) { return column.key == key_; });
    std::vector<std::string> definitions;
    if (isCounting)
        definitions.push_back(quotedName(key_) + " integer primary key");
    for (const Column &column : columns)
        definitions.push_back(columnDefinition(column) +
                              (column.key == key_ ? " primary key" : ""));
    output_.execute("create table " + quotedName(head.rows) + " (" +
                    joinedTexts(definitions, ", ") + ")");
    insert_ =
        std::make_unique<SqliteInsert>(output_, head.rows, columns.size() + (isCounting ? 1 : 0));
}

void SqliteRows::row(const std::vector<Value> &values)
{
    insert_->row(values);
}

void SqliteRows::end()
{
    insert_.reset();
}

} // namespace iosphoto::tool
