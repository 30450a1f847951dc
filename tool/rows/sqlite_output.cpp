#include "rows/sqlite_output.h"

#include "language/said.h"
#include "language/sqlite_error.h"
#include "output/file_use_observer.h"
#include "output/output_file.h"
#include "rows/own_database.h"
#include "rows/sqlite_insert.h"

namespace iosphoto::tool {

namespace fs = std::filesystem;

std::string quotedName(const std::string &name)
{
    std::string quoted = "\"";
    for (const char character : name)
        quoted += character == '"' ? std::string("\"\"") : std::string(1, character);
    return quoted + "\"";
}

SqliteOutput::SqliteOutput(const fs::path &file, const fs::path &source, const Json &head)
    : shownFile_(file)
{
    const fs::path place = outputPlace(file, source);
    checkMayReplace(place);
    unfinished_ = std::make_unique<UnfinishedFile>(place);
    sqlite3 *connection = nullptr;
    const int result = sqlite3_open_v2(unfinished_->passingName().c_str(), &connection,
                                       SQLITE_OPEN_READWRITE, nullptr);
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
    std::string columns;
    std::vector<Value> values;
    for (const auto &[key, member] : head.items()) {
        columns += (columns.empty() ? "" : ", ") + quotedName(key);
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
    execute("create table library (" + columns + ")");
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
    unfinished_->finish();
    if (FileUseObserver *const observer = FileUseObserver::current())
        observer->wroteWhole(shownFile_);
}

Failure SqliteOutput::unwritable() const
{
    return cannotWrite(shownFile_, said("{0}; choose another place for the output",
                                        sqliteError(connection_.get())));
}

} // namespace iosphoto::tool
