#ifndef IOSPHOTO_TOOL_ROW_WRITER_H
#define IOSPHOTO_TOOL_ROW_WRITER_H

#include "rows/values.h"
#include "terminal/text_table.h"
#include "text/json.h"

#include <functional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// What the values of a column are. Each may be null besides. A Source is a path that a person
/// gives to the command, and so is cut where nothing else helps.
enum class Type { Flag, Number, Real, Bytes, Text, Path, Source, Time, List };

using Align = TextTable::Align;

/// Where numbers, and only they, usually stand in tables.
constexpr Align alignmentOf(Type type)
{
    const bool isNumber = type == Type::Number || type == Type::Real || type == Type::Bytes;
    return isNumber ? Align::Right : Align::Left;
}

/// What the values of a field are. In JSON, fields whose keys begin with the same word and a dot,
/// such as "before.width", are members of one object, which is null where all of them are.
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

    /// What stands before the dot of the key and behind it; without a dot, nothing and the key.
    std::string group() const { return hasGroup() ? key.substr(0, dot_) : ""; }
    std::string member() const { return hasGroup() ? key.substr(dot_ + 1) : key; }
    bool hasGroup() const { return dot_ != std::string::npos; }

    std::string key; ///< for machines
    Type type;
    std::string heading; ///< in tables; the key unless a word of the user's language stands there
    Align align;
    bool isWhole = false;      ///< whether narrow tables cut other columns rather than this
    std::size_t spareRank = 0; ///< which one narrow tables do without first; 0: none do

private:
    std::size_t dot_ = key.find('.');
};

/// What is said once for all rows.
struct RowsHead
{
    std::string rows; ///< what the rows are, such as "photos"
    Json document;    ///< an object, for documents
    Json ofEachLine;  ///< likewise: what makes a row stand for itself where several runs are mixed
};

/// Takes the values of a row, one for each column.
using TakeRow = std::function<void(const std::vector<Value> &)>;

/// Makes all rows, one after the other, as often as it is called.
using RowSource = std::function<void(const TakeRow &)>;

/// Writes rows in one format as they come, without keeping them. Tables, which are aligned, have
/// to, but where they can have the rows made twice. Text may hold any bytes.
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

    /// All rows and the end, for rows that are made again where a format needs them twice.
    virtual void all(const RowSource &rows)
    {
        rows([this](const std::vector<Value> &values) { row(values); });
        end();
    }
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ROW_WRITER_H
