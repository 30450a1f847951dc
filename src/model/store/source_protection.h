#ifndef IOSPHOTO_SOURCE_PROTECTION_H
#define IOSPHOTO_SOURCE_PROTECTION_H

struct sqlite3;

namespace iosphoto {

/// What would become of the files of a database if it were read.
enum class ReadingRisk {
    None,
    RollsBack,        ///< the journal of a writer that died would be rolled back
    DeletesCompanion, ///< the log or journal beside an empty database would be deleted
};

/// Makes sure that reading through this connection, and closing it, changes no byte of the
/// database, its log or its journal. To be called before the first reading; where there is a risk
/// nothing may be read.
ReadingRisk protectSource(sqlite3 *connection);

/// Whether a writer has died since then, so that the next reading would roll back its journal.
bool hasWriterDied(sqlite3 *connection);

/// To be called before the connection is closed: keeps a log that somebody else wrote meanwhile.
void protectLog(sqlite3 *connection);

} // namespace iosphoto

#endif // IOSPHOTO_SOURCE_PROTECTION_H
