#ifndef IOSPHOTO_TESTS_DATABASE_H
#define IOSPHOTO_TESTS_DATABASE_H

#include "model/store/sqlite_handles.h"

#include <string>

namespace iosphoto::test {

/// A plain connection to a database, which is made where there is none. Throws where it does not
/// open.
SqliteConnection openDatabase(const std::string &path);

/// The prepared statement. Throws where it does not prepare.
SqliteStatement prepare(const SqliteConnection &connection, const std::string &sql);

/// Runs any number of statements. Throws where one fails.
void execute(const SqliteConnection &connection, const std::string &sql);

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_DATABASE_H
