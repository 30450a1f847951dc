#ifndef IOSPHOTO_TOOL_JSON_WRITERS_H
#define IOSPHOTO_TOOL_JSON_WRITERS_H

#include "rows/row_writer.h"
#include "rows/values.h"
#include "text/json.h"
#include "text/printable.h"
#include "time/time_text.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/rapidjson.h>
#include <rapidjson/stringbuffer.h>

#include <cmath>
#include <ostream>

namespace iosphoto::tool {

/// Prints what a RapidJSON writer has put into the buffer so far; the writer goes on with it.
inline void flush(rapidjson::StringBuffer &buffer, std::ostream &out)
{
    out.write(buffer.GetString(), static_cast<std::streamsize>(buffer.GetSize()));
    buffer.Clear();
}

/// The same, once it is worth it.
inline void flushWhenFull(rapidjson::StringBuffer &buffer, std::ostream &out)
{
    constexpr std::size_t full = 1 << 16;
    if (buffer.GetSize() >= full)
        flush(buffer, out);
}

/// Hands values to a RapidJSON writer, plain or pretty.
template <typename Writer>
class JsonValues
{
public:
    explicit JsonValues(Writer &writer) : writer_(writer) {}

    void key(const std::string &key) { writer_.Key(key.data(), length(key)); }
    void write(const Value &value) { std::visit(*this, value); }
    void write(const Json &document) { raw(oneLine(document)); }
    /// What is JSON already.
    void raw(const std::string &text)
    {
        writer_.RawValue(text.data(), text.size(), rapidjson::kObjectType);
    }

    void operator()(std::monostate) { writer_.Null(); }
    void operator()(bool flag) { writer_.Bool(flag); }
    void operator()(std::int64_t number) { writer_.Int64(number); }
    void operator()(double number)
    {
        std::isfinite(number) ? writer_.Double(number) : writer_.Null();
    }
    void operator()(const std::string &text)
    {
        if (isUtf8(text))
            string(text);
        else
            string(asUtf8(text));
    }
    void operator()(UtcTime time)
    {
        const std::string text = utcTimeText(time.unixTime);
        text.empty() ? writer_.Null() : writer_.String(text.data(), length(text));
    }
    void operator()(const Items &items)
    {
        writer_.StartArray();
        for (const ListItem *item : items)
            raw(item->json);
        writer_.EndArray();
    }

private:
    static rapidjson::SizeType length(const std::string &text)
    {
        return static_cast<rapidjson::SizeType>(text.size());
    }
    void string(const std::string &text) { writer_.String(text.data(), length(text)); }

    Writer &writer_;
};

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

#endif // IOSPHOTO_TOOL_JSON_WRITERS_H
