#ifndef IOSPHOTO_TOOL_ROLLBACK_JOURNAL_H
#define IOSPHOTO_TOOL_ROLLBACK_JOURNAL_H

#include <filesystem>

namespace iosphoto::tool {

/// Makes the journal beside a private copy of a database one of that database alone; nothing where
/// there is none. A journal may end with the path of another file, the journal of a transaction
/// over several databases, and SQLite deletes that file once it has rolled back: on this computer
/// the path can name anything. Throws Failure when the journal cannot be changed.
void forgetSuperJournal(const std::filesystem::path &database);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ROLLBACK_JOURNAL_H
