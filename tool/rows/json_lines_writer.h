#ifndef IOSPHOTO_TOOL_JSON_LINES_WRITER_H
#define IOSPHOTO_TOOL_JSON_LINES_WRITER_H

#include "rows/row_writer.h"

#include <rapidjson/stringbuffer.h>

#include <ostream>

namespace iosphoto::tool {

/// One JSON object a line. Each begins with RowsHead::ofEachLine, so that the lines of many runs
/// make one table.
class JsonLinesWriter : public RowWriter
{
public:
    explicit JsonLinesWriter(std::ostream &out) : out_(out) {}

    void begin(const RowsHead &head, const std::vector<Column> &columns) override;
    void row(const std::vector<Value> &values) override;
    void end() override;

private:
    std::ostream &out_;
    rapidjson::StringBuffer buffer_;
    std::vector<Column> columns_;
    std::vector<std::pair<std::string, std::string>> ofEachLine_; ///< keys and values, as JSON
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_JSON_LINES_WRITER_H
