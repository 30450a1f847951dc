#ifndef IOSPHOTO_TOOL_SQLITE_ERROR_LOG_H
#define IOSPHOTO_TOOL_SQLITE_ERROR_LOG_H

#include <string>

/// What goes wrong inside SQLite while the library reads. The library's result does not tell a
/// damaged database from a short one; SQLite's own log does.
namespace iosphoto::tool::sqlite_error_log {

/// To be called before anything uses SQLite. Throws Failure when that was not so.
void install();

/// Forgets the errors so far: a probe meets some on its way.
void clear();

/// The first error since then, such as "database disk image is malformed"; empty if there was none.
std::string firstError();

} // namespace iosphoto::tool::sqlite_error_log

#endif // IOSPHOTO_TOOL_SQLITE_ERROR_LOG_H
