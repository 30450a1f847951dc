#ifndef IOSPHOTO_READING_ONLY_H
#define IOSPHOTO_READING_ONLY_H

#include <set>
#include <string>

struct sqlite3;

namespace iosphoto {

/// Lets the statements of a connection read tables and nothing else, and knows which tables they
/// read. Outlives the connection.
class ReadingOnly
{
public:
    ReadingOnly() = default;
    ReadingOnly(const ReadingOnly &) = delete;
    ReadingOnly &operator=(const ReadingOnly &) = delete;

    /// To be called once, before any statement is prepared.
    void apply(sqlite3 *connection);

    /// Finds a table, among those that the statements prepared so far read, that has a column that
    /// is computed.
    /// @param table  [out] its name; empty where there is none
    /// @return an SQLite code
    int findComputed(std::string &table) const;

    /// Finds what stands in the place of a table of a statement that does not prepare: a view or a
    /// virtual table. Neither can be read.
    /// @param impostor  [out] its name; empty where there is none
    /// @return an SQLite code
    int findImpostor(const char *statement, std::string &impostor) const;

    /// Whether memory ran out while a statement was prepared.
    bool isOutOfMemory() const { return isOutOfMemory_; }

private:
    static int judge(void *self, int action, const char *object, const char *detail,
                     const char *schema, const char *context) noexcept;
    void note(const char *table) noexcept;

    sqlite3 *connection_ = nullptr;
    std::set<std::string> tables_;
    bool isOutOfMemory_ = false;
};

} // namespace iosphoto

#endif // IOSPHOTO_READING_ONLY_H
