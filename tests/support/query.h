#ifndef IOSPHOTO_TESTS_QUERY_H
#define IOSPHOTO_TESTS_QUERY_H

#include <filesystem>
#include <string>
#include <vector>

namespace iosphoto::test {

/// What a query finds in a SQLite file, row by row as text; null is "null". Throws
/// std::runtime_error when the query fails.
std::vector<std::vector<std::string>> query(const std::filesystem::path &file,
                                            const std::string &sql);

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_QUERY_H
