#ifndef IOSPHOTO_STORED_BYTES_H
#define IOSPHOTO_STORED_BYTES_H

#include <cstdint>

namespace iosphoto {

/// How many bytes a file holds at most; 0 where there is none. Holes do not count, since
/// anybody can make a file of any size out of them.
std::int64_t storedBytes(const char *file);

/// The same of a database together with its write-ahead log.
/// @param database  its name as SQLite has it, or as the file system does
std::int64_t storedBytesOfDatabase(const char *database);

} // namespace iosphoto

#endif // IOSPHOTO_STORED_BYTES_H
