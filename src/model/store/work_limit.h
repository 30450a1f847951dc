#ifndef IOSPHOTO_WORK_LIMIT_H
#define IOSPHOTO_WORK_LIMIT_H

#include <cstdint>
#include <string>

struct sqlite3;

namespace iosphoto {

/// Ends statements that take more steps of SQLite's machine than a sound database of the same size
/// ever asks for, or many steps and much memory, as databases that were made to harm do. Nothing
/// depends on the clock: a slow machine reads the same as a fast one. Outlives the connection.
class WorkLimit
{
public:
    WorkLimit() = default;
    WorkLimit(const WorkLimit &) = delete;
    WorkLimit &operator=(const WorkLimit &) = delete;

    /// Counts what is done on the connection from now on.
    void apply(sqlite3 *connection);

    /// Whether a statement was ended, and why, in English.
    bool isExceeded() const { return isExceeded_; }
    std::string reason() const;

private:
    static int countTurn(void *self);
    bool allowsMore() const;

    std::int64_t pages_ = 0; ///< of the database and its log
    std::int64_t bytes_ = 0;
    std::int64_t steps_ = 0;
    std::int64_t memoryBefore_ = 0;
    bool isExceeded_ = false;
};

} // namespace iosphoto

#endif // IOSPHOTO_WORK_LIMIT_H
