#include "rows/csv_writer.h"

#include "catalogue/moment.h"
#include "rows/csv_cell.h"

#include <fmt/format.h>

#include <cmath>
#include <iterator>

namespace iosphoto::tool {

namespace {

constexpr const char *lineEnd = "\r\n";

/// Appends a value to a line.
struct AppendValue
{
    std::string &line;

    void operator()(std::monostate) const {}
    void operator()(bool flag) const { line += flag ? "true" : "false"; }
    void operator()(std::int64_t number) const { append(number); }
    void operator()(double number) const
    {
        if (std::isfinite(number))
            append(number);
    }
    void operator()(const std::string &text) const { appendCsvCell(line, text); }
    void operator()(UtcTime time) const { line += utcTimeText(time.unixTime); }
    void operator()(const Items &items) const
    {
        std::string cell;
        for (const ListItem *item : items)
            cell += (cell.empty() ? "" : "; ") + item->plain;
        appendCsvCell(line, cell);
    }

    template <typename Number>
    void append(Number number) const
    {
        fmt::format_to(std::back_inserter(line), "{}", number);
    }
};

} // namespace

void CsvWriter::begin(const RowsHead & /*head*/, const std::vector<Column> &columns)
{
    for (const Column &column : columns) {
        buffer_ += buffer_.empty() ? "" : ",";
        buffer_ += column.key;
    }
    buffer_ += lineEnd;
}

void CsvWriter::row(const std::vector<Value> &values)
{
    const char *separator = "";
    for (const Value &value : values) {
        buffer_ += separator;
        separator = ",";
        std::visit(AppendValue{buffer_}, value);
    }
    buffer_ += lineEnd;
    constexpr std::size_t full = 1 << 16;
    if (buffer_.size() >= full)
        end();
}

void CsvWriter::end()
{
    out_ << buffer_;
    buffer_.clear();
}

} // namespace iosphoto::tool
