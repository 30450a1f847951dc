#ifndef IOSPHOTO_TOOL_ROW_WRITER_H
#define IOSPHOTO_TOOL_ROW_WRITER_H

#include "rows/library_head.h"
#include "rows/values.h"
#include "terminal/text_table.h"
#include "text/json.h"

#include <string>
#include <vector>

namespace iosphoto::tool {

/// What the values of a column are. Each may be null besides.
enum class Type { Flag, Number, Real, Bytes, Text, Path, Time, List };

using Align = TextTable::Align;

/// Where numbers, and only they, usually stand in tables.
constexpr Align alignmentOf(Type type)
{
    const bool isNumber = type == Type::Number || type == Type::Real || type == Type::Bytes;
    return isNumber ? Align::Right : Align::Left;
}

struct Column
{
    Column(std::string itsKey, Type itsType, std::string itsHeading = "")
        : Column(std::move(itsKey), itsType, std::move(itsHeading), alignmentOf(itsType))
    {
    }
    Column(std::string itsKey, Type itsType, std::string itsHeading, Align itsAlign)
        : key(std::move(itsKey)), type(itsType),
          heading(itsHeading.empty() ? key : std::move(itsHeading)), align(itsAlign)
    {
    }

    std::string key; ///< for machines
    Type type;
    std::string heading; ///< in tables; the key unless a word of the user's language stands there
    Align align;
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
