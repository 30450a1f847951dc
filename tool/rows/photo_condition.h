#ifndef IOSPHOTO_TOOL_PHOTO_CONDITION_H
#define IOSPHOTO_TOOL_PHOTO_CONDITION_H

#include "model/store/sqlite_handles.h"
#include "process/finding.h"
#include "rows/photo_fields.h"

#include <string>
#include <vector>

namespace iosphoto::tool {

/// What is wrong with a condition, with the facts of each in their order.
enum class ConditionProblem {
    NoColumn,    ///< what is none, all columns
    NotAllowed,  ///< the condition
    NotOne,      ///< the condition
    Wrong,       ///< what SQLite says
    TooMuchWork, ///< none
};

using ConditionError = FindingError<ConditionProblem>;

/// An expression of SQL over the columns that a database of photos has. It sees one photo, in a
/// table in memory, and reads nothing else: no other table, no file.
class PhotoCondition
{
public:
    /// Throws ConditionError when the text is no such expression.
    /// @param columns  all that there are, such as photoColumns()
    PhotoCondition(std::string expression, std::vector<Field<PhotoRow>> columns);
    PhotoCondition(const PhotoCondition &) = delete;
    PhotoCondition &operator=(const PhotoCondition &) = delete;

    /// The columns that the expression asks for.
    const std::vector<Field<PhotoRow>> &fields() const { return fields_; }

    /// Throws ConditionError when SQLite cannot tell.
    bool isMetBy(const PhotoRow &photo);

private:
    static int judge(void *self, int action, const char *object, const char *detail,
                     const char *schema, const char *context) noexcept;
    bool noteReading(const char *name) noexcept;
    static int countTurn(void *self) noexcept;

    void open();
    SqliteStatement prepareOwn(const std::string &statement) const;
    SqliteStatement prepareForeign(const std::string &statement);
    void run(const SqliteStatement &statement) const;
    ConditionError errorOf(int code) const;

    std::string expression_;
    std::vector<Field<PhotoRow>> columns_;
    std::vector<bool> isRead_;            ///< of each column, whether the expression does
    std::vector<Field<PhotoRow>> fields_; ///< those columns
    bool isForeign_ = false;              ///< whether what is prepared holds the expression
    int queries_ = 0;                     ///< in the statement that is prepared
    int turns_ = 0;                       ///< of work on the photo that is looked at
    SqliteConnection connection_;
    SqliteStatement insert_;
    SqliteStatement select_;
    SqliteStatement remove_;
    std::vector<Value> values_;
    std::vector<std::string> made_; ///< texts that are not the values themselves
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PHOTO_CONDITION_H
