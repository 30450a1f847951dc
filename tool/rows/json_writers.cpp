#include "rows/json_writers.h"

#include <rapidjson/writer.h>

namespace iosphoto::tool {

JsonWriter::JsonWriter(std::ostream &out) : out_(out), writer_(buffer_)
{
    constexpr unsigned indent = 2;
    writer_.SetIndent(' ', indent);
}

void JsonWriter::begin(const RowsHead &head, const std::vector<Column> &columns)
{
    columns_ = columns;
    JsonValues json(writer_);
    writer_.StartObject();
    for (const auto &[key, member] : head.document.items()) {
        json.key(key);
        json.write(member);
    }
    json.key(head.rows);
    writer_.StartArray();
}

void JsonWriter::row(const std::vector<Value> &values)
{
    JsonValues json(writer_);
    writer_.StartObject();
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        json.key(columns_[i].key);
        json.write(values[i]);
    }
    writer_.EndObject();
    flushWhenFull(buffer_, out_);
}

void JsonWriter::end()
{
    writer_.EndArray();
    writer_.EndObject();
    buffer_.Put('\n');
    flush(buffer_, out_);
}

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
