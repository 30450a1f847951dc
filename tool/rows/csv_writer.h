#ifndef IOSPHOTO_TOOL_CSV_WRITER_H
#define IOSPHOTO_TOOL_CSV_WRITER_H

#include "rows/row_writer.h"

#include <ostream>
#include <string>

namespace iosphoto::tool {

/// Comma-separated values as RFC 4180 has them, with a line of the keys first. Formulas in texts
/// get an apostrophe in front: see withoutFormulas(). A text is quoted also where it has what
/// separates cells elsewhere, such as a semicolon. On a terminal, which would obey them, control
/// characters are escaped.
class CsvWriter : public RowWriter
{
public:
    explicit CsvWriter(std::ostream &out, const Screen &screen = {})
        : out_(out), isOnTerminal_(screen.isTerminal)
    {
    }

    void begin(const RowsHead &head, const std::vector<Column> &columns) override;
    void row(const std::vector<Value> &values) override;
    void end() override;

private:
    std::ostream &out_;
    bool isOnTerminal_;
    std::string buffer_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_CSV_WRITER_H
