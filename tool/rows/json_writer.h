#ifndef IOSPHOTO_TOOL_JSON_WRITER_H
#define IOSPHOTO_TOOL_JSON_WRITER_H

#include "rows/row_writer.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <ostream>

namespace iosphoto::tool {

/// One indented JSON document: the members of the head, then an array of the rows.
class JsonWriter : public RowWriter
{
public:
    explicit JsonWriter(std::ostream &out);

    void begin(const RowsHead &head, const std::vector<Column> &columns) override;
    void row(const std::vector<Value> &values) override;
    void end() override;

private:
    std::ostream &out_;
    rapidjson::StringBuffer buffer_;
    rapidjson::PrettyWriter<rapidjson::StringBuffer> writer_;
    std::vector<Column> columns_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_JSON_WRITER_H
