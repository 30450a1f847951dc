#include "rows/csv_writer.h"

#include "text/printable.h"
#include "time/time_text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <string_view>

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
    void operator()(UnixTime time) const { line += utcTimeText(time); }
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

/// The last four are the full-width forms, which spreadsheets read alike.
constexpr std::array<std::string_view, 10> formulaStarts = {
    "=", "+", "-", "@", "\t", "\r", "\uFF1D", "\uFF0B", "\uFF0D", "\uFF20"};

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// "-5" or "+1.25", in which nothing can run.
bool isPlainNumber(std::string_view text)
{
    text.remove_prefix(text.front() == '-' || text.front() == '+' ? 1 : 0);
    const std::size_t point = std::min(text.find('.'), text.size());
    const std::string_view whole = text.substr(0, point);
    const std::string_view fraction = text.substr(std::min(point + 1, text.size()));
    return !whole.empty() && std::all_of(whole.begin(), whole.end(), isDigit) &&
           std::all_of(fraction.begin(), fraction.end(), isDigit);
}

bool runsAsFormula(std::string_view text)
{
    return std::any_of(
               formulaStarts.begin(), formulaStarts.end(),
               [&](std::string_view start) { return text.substr(0, start.size()) == start; }) &&
           !isPlainNumber(text);
}

void appendQuoted(std::string &line, std::string_view text)
{
    for (const char character : text) {
        if (character == '"')
            line += '"';
        line += character;
    }
}

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

void appendCsvCell(std::string &line, const std::string &bytes)
{
    std::string repaired; // hardly ever, so that most cells are not copied
    if (!isUtf8(bytes))
        repaired = asUtf8(bytes);
    const std::string &text = repaired.empty() ? bytes : repaired;
    const bool needsGuard = runsAsFormula(text);
    const bool needsQuotes = text.find_first_of("\",\r\n") != std::string::npos;
    line += needsQuotes ? "\"" : "";
    line += needsGuard ? "'" : "";
    if (needsQuotes)
        appendQuoted(line, text);
    else
        line += text;
    line += needsQuotes ? "\"" : "";
}

} // namespace iosphoto::tool
