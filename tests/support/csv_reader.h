#ifndef IOSPHOTO_TESTS_CSV_READER_H
#define IOSPHOTO_TESTS_CSV_READER_H

#include <map>
#include <string>
#include <vector>

namespace iosphoto::test {

/// A line of CSV by the headings above it.
using CsvRow = std::map<std::string, std::string>;

/// Reads CSV as RFC 4180 has it, the first line being headings. Throws std::runtime_error where the
/// text is not exactly that: bare quotes, bare line ends, lines of another length than the first.
std::vector<CsvRow> readCsv(const std::string &text);

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_CSV_READER_H
