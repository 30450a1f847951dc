#include "rows/csv_writer.h"

#include "rows/formula_guard.h"
#include "text/lists.h"
#include "text/printable.h"
#include "time/time_text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstring>
#include <iterator>
#include <string_view>

namespace iosphoto::tool {

namespace {

constexpr const char *lineEnd = "\r\n";

/// Whether a text with this character is quoted: as it ends cells here, or for a spreadsheet that
/// takes foreign separators.
bool isSpecial(char character)
{
    return character == ',' || character == '"' ||
           (character != '\0' && std::strchr(foreignSeparators, character) != nullptr);
}

bool hasSpecial(const std::string &text)
{
    // Most characters are neither, and this is run for all of them.
    return std::any_of(text.begin(), text.end(), [](char character) {
        return static_cast<unsigned char>(character) <= ';' && isSpecial(character);
    });
}

bool isAlnum(char character)
{
    return std::isalnum(static_cast<unsigned char>(character)) != 0;
}

void appendQuoted(std::string &line, std::string_view text)
{
    line += '"';
    for (const char character : text) {
        if (character == '"')
            line += '"';
        line += character;
    }
    line += '"';
}

/// Appends values to a line.
struct AppendValue
{
    std::string &line;
    std::size_t begin; ///< of the line
    bool isOnTerminal;

    void operator()(std::monostate) const {}
    void operator()(bool flag) const { line += flag ? "true" : "false"; }
    void operator()(std::int64_t number) const { append(number); }
    void operator()(double number) const
    {
        if (std::isfinite(number))
            append(number);
    }
    void operator()(const std::string &text) const { appendText(text); }
    void operator()(UnixTime time) const { line += utcTimeText(time); }
    void operator()(const Items &items) const
    {
        appendText(joinedTexts(items, "; ", [](const ListItem *item) { return item->plain; }));
    }

    template <typename Number>
    void append(Number number) const
    {
        fmt::format_to(std::back_inserter(line), "{}", number);
    }

    void appendText(const std::string &text) const
    {
        if (isOnTerminal)
            appendExactly(printable(text));
        else
            appendExactly(text);
    }

    void appendExactly(const std::string &bytes) const
    {
        const bool isSplit = hasSpecial(bytes);
        std::string changed; // hardly ever, so that most texts are not copied
        if (!isUtf8(bytes))
            changed = asUtf8(bytes);
        if (isSplit || (!bytes.empty() && !isAlnum(bytes.front())))
            changed = withoutFormulas(changed.empty() ? bytes : changed);
        const std::string &text = changed.empty() ? bytes : changed;
        if (isSplit || mayBeginWithSign())
            appendQuoted(line, text);
        else
            line += text;
    }

    /// Where `;` separates cells, "-5,1+1" is one, and a formula unless the text is quoted. Blanks
    /// and quotes in front do not count; what is not ASCII may be such a blank.
    bool mayBeginWithSign() const
    {
        const std::size_t at = line.find_first_not_of(" \"", begin);
        return at != std::string::npos &&
               (line[at] == '-' || line[at] == '+' || static_cast<unsigned char>(line[at]) >= 0x80);
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
    const AppendValue append = {buffer_, buffer_.size(), isOnTerminal_};
    const char *separator = "";
    for (const Value &value : values) {
        buffer_ += separator;
        separator = ",";
        std::visit(append, value);
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
