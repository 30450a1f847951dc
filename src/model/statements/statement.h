#ifndef IOSPHOTO_STATEMENT_H
#define IOSPHOTO_STATEMENT_H

namespace iosphoto {

/// A statement of src/model/statements/sql/, embedded at build time.
struct Statement
{
    const char *name; ///< the file's name without ".sql"
    const char *text; ///< UTF-8, with the placeholders %1, %2, ...
};

} // namespace iosphoto

#endif // IOSPHOTO_STATEMENT_H
