#include "rows/json_lines_writer.h"

#include "rows/json_buffer.h"
#include "rows/json_values.h"

#include <rapidjson/writer.h>

namespace iosphoto::tool {

void JsonLinesWriter::begin(const RowsHead &head, const std::vector<Column> &columns)
{
    columns_ = columns;
    for (const std::string &key : head.ofEachLine)
        ofEachLine_.emplace_back(key, oneLine(head.document.at(key)));
}

void JsonLinesWriter::row(const std::vector<Value> &values)
{
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer_);
    JsonValues json(writer);
    writer.StartObject();
    for (const auto &[key, member] : ofEachLine_) {
        json.key(key);
        json.raw(member);
    }
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        json.key(columns_[i].key);
        json.write(values[i]);
    }
    writer.EndObject();
    buffer_.Put('\n');
    flushWhenFull(buffer_, out_);
}

void JsonLinesWriter::end()
{
    flush(buffer_, out_);
}

} // namespace iosphoto::tool
