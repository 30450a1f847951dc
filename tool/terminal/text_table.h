#ifndef IOSPHOTO_TOOL_TEXT_TABLE_H
#define IOSPHOTO_TOOL_TEXT_TABLE_H

#include "terminal/column_layout.h"
#include "terminal/display_width.h"
#include "terminal/terminal.h"

#include <functional>
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
        Elide elide = Elide::Right;        ///< of cells that are cut; the end of paths tells more
        bool isCut = align == Align::Left; ///< where there is little room; numbers never are
        bool isList = false;               ///< its cells are those of cellOfItems()
        std::size_t spareRank = 0; ///< which one narrow terminals do without first; 0: none do
        bool isCutLast = false;    ///< only where leaving out others does not help, as is then said
    };

    explicit TextTable(std::vector<Column> columns);

    /// Adds a row, a cell for each column. Cells may hold any text; they are made printable.
    void add(const std::vector<std::string> &cells);

    /// Makes the columns as wide as a row needs that is not kept, but made again to be printed.
    void measure(const std::vector<std::string> &cells);

    /// Takes the cells of a row.
    using TakeCells = std::function<void(const std::vector<std::string> &)>;
    /// Makes all rows, one after the other.
    using CellSource = std::function<void(const TakeCells &)>;

    /// On a terminal that is too narrow, long cells are cut, and spare columns left out, as a last
    /// line says; where that does not help, each row is a block of lines, a cell after the other.
    void print(std::ostream &out, const Screen &screen) const;
    /// The same of rows that were measured.
    void print(std::ostream &out, const Screen &screen, const CellSource &rows) const;

private:
    using Row = std::vector<std::string>;

    std::vector<ColumnNeeds> needs() const;
    void printRows(std::ostream &out, const Screen &screen, const CellSource &rows,
                   const ColumnWidths &widths) const;
    void printBlocks(std::ostream &out, const Screen &screen, const CellSource &rows) const;
    void printWhatIsLeftOut(std::ostream &out, const Screen &screen,
                            const ColumnWidths &widths) const;
    std::string line(const Row &row, const ColumnWidths &widths) const;
    std::string whole(std::size_t column, const std::string &cell) const;
    Row wholeRow(const std::vector<std::string> &cells) const;
    Row printableRow(const std::vector<std::string> &cells) const;
    Row headings() const;

    std::vector<Column> columns_;
    std::vector<Row> rows_;
    std::vector<std::size_t> widths_;
};

/// Prints the rows of a table, such as one that is too wide for a terminal: each as a block of
/// lines "HEADING  value", without those that have no value. Long values go on in further lines.
void printBlocks(std::ostream &out, const std::vector<std::string> &headings,
                 const std::vector<std::vector<std::string>> &rows, const Screen &screen);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_TEXT_TABLE_H
