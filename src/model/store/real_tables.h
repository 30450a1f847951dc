/// Tables that are nothing but tables. Where a view, a virtual table or a computed column takes the
/// place of one, reading it makes SQLite do whatever the database says.
#ifndef IOSPHOTO_REAL_TABLES_H
#define IOSPHOTO_REAL_TABLES_H

#include <functional>
#include <string>

struct sqlite3;

namespace iosphoto {

/// @param schema  "main", or what was attached
/// @param isSo    [out] whether a column of the table is computed
/// @return an SQLite code
int hasComputedColumn(sqlite3 *connection, const std::string &schema, const std::string &table,
                      bool &isSo);

/// Finds a view, a virtual table or a table with a computed column among those that are meant.
/// @param isMeant   tells by the name
/// @param impostor  [out] the name; empty where there is none
/// @return an SQLite code
int findImpostor(sqlite3 *connection, const std::string &schema,
                 const std::function<bool(const std::string &)> &isMeant, std::string &impostor);

} // namespace iosphoto

#endif // IOSPHOTO_REAL_TABLES_H
