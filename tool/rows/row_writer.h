#ifndef IOSPHOTO_TOOL_ROW_WRITER_H
#define IOSPHOTO_TOOL_ROW_WRITER_H

#include "output/json_document.h"
#include "rows/value.h"

#include <string>
#include <vector>

namespace iosphoto::tool {

/// What the values of a column are. Each may be null besides.
enum class Type { Flag, Number, Real, Bytes, Text, Time, List };

struct Column
{
    std::string key;     ///< for machines
    std::string heading; ///< for people, in their language
    Type type = Type::Text;
};

/// What is said once for all rows.
struct RowsHead
{
    std::string rows; ///< what the rows are, such as "photos"
    Json document;    ///< an object; see libraryHead()
    /// The members of it that make a row stand for itself where rows of several runs are mixed.
    std::vector<std::string> ofEachLine = {"source"};
};

/// Writes rows in one format as they come, without keeping them; only tables, which are aligned,
/// have to. Text may hold any bytes.
class RowWriter
{
public:
    RowWriter() = default;
    virtual ~RowWriter() = default;
    RowWriter(const RowWriter &) = delete;
    RowWriter &operator=(const RowWriter &) = delete;

    virtual void begin(const RowsHead &head, const std::vector<Column> &columns) = 0;
    /// @param values  one for each column
    virtual void row(const std::vector<Value> &values) = 0;
    virtual void end() = 0;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ROW_WRITER_H
