#ifndef IOSPHOTO_TOOL_TEXT_TABLE_H
#define IOSPHOTO_TOOL_TEXT_TABLE_H

#include <ostream>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// A table with aligned columns for a terminal.
class TextTable
{
public:
    enum class Align { Left, Right };
    struct Column
    {
        std::string heading;
        Align align = Align::Left;
    };

    explicit TextTable(std::vector<Column> columns);

    /// Adds a row, a cell for each column. Cells may hold any text; they are made printable.
    void add(const std::vector<std::string> &cells);

    void print(std::ostream &out) const;

private:
    std::vector<Column> columns_;
    std::vector<std::vector<std::string>> rows_;
    std::vector<std::size_t> widths_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_TEXT_TABLE_H
