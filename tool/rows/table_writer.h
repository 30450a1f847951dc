#ifndef IOSPHOTO_TOOL_TABLE_WRITER_H
#define IOSPHOTO_TOOL_TABLE_WRITER_H

#include "rows/row_writer.h"
#include "terminal/text_table.h"

#include <optional>
#include <ostream>

namespace iosphoto::tool {

/// An aligned table for people.
class TableWriter : public RowWriter
{
public:
    TableWriter(std::ostream &out, const Screen &screen) : out_(out), screen_(screen) {}

    void begin(const RowsHead &head, const std::vector<Column> &columns) override;
    void row(const std::vector<Value> &values) override;
    void end() override;
    void all(const RowSource &rows) override;

private:
    std::vector<std::string> cellsOf(const std::vector<Value> &values) const;

    std::ostream &out_;
    Screen screen_;
    std::vector<Column> columns_;
    std::optional<TextTable> table_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_TABLE_WRITER_H
