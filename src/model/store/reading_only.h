#ifndef IOSPHOTO_READING_ONLY_H
#define IOSPHOTO_READING_ONLY_H

#include <set>
#include <string>

struct sqlite3;

namespace iosphoto {

/// Lets the statements of a connection read tables, or ask for their columns, and do nothing else;
/// knows which tables they read. Outlives the connection.
class ReadingOnly
{
public:
    ReadingOnly() = default;
    ReadingOnly(const ReadingOnly &) = delete;
    ReadingOnly &operator=(const ReadingOnly &) = delete;

    /// To be called once, before any statement is prepared.
    void apply(sqlite3 *connection);

    /// The tables that the statements prepared so far read.
    const std::set<std::string> &tables() const { return tables_; }

    /// Whether memory ran out while a statement was prepared.
    bool isOutOfMemory() const { return isOutOfMemory_; }

private:
    static int judge(void *self, int action, const char *object, const char *detail,
                     const char *schema, const char *context) noexcept;
    void note(const char *table) noexcept;

    std::set<std::string> tables_;
    bool isOutOfMemory_ = false;
};

} // namespace iosphoto

#endif // IOSPHOTO_READING_ONLY_H
