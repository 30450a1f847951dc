#ifndef IOSPHOTO_TOOL_SQLITE_VALUES_H
#define IOSPHOTO_TOOL_SQLITE_VALUES_H

#include "rows/row_writer.h"

#include <string>

struct sqlite3_stmt;

namespace iosphoto::tool {

/// Binds a value to a place of a statement and gives SQLite's result. Text is not copied, so value
/// and `made`, which keeps a text that is made here, stay until the step.
int bindValue(sqlite3_stmt *statement, int place, const Value &value, std::string &made);

/// A name as SQL has it, whatever it is made of.
std::string quotedName(const std::string &name);

/// A column as a table is created with: name and type.
std::string columnDefinition(const Column &column);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SQLITE_VALUES_H
