#include "rows/json_writers.h"

#include "text/json.h"
#include "text/printable.h"
#include "time/time_text.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace iosphoto::tool {

namespace {

/// A member of a row's object: the value of a column, or an object of those of a group.
struct Member
{
    std::string key;
    std::vector<std::string> ofGroup; ///< keys; none for a single value
};

/// Keys and values that are JSON already, made once for all rows.
using RawMembers = std::vector<std::pair<std::string, std::string>>;

std::vector<Member> membersOf(const std::vector<Column> &columns)
{
    std::vector<Member> members;
    for (const Column &column : columns) {
        if (!column.hasGroup())
            members.push_back({column.key, {}});
        else if (members.empty() || members.back().key != column.group())
            members.push_back({column.group(), {column.member()}});
        else
            members.back().ofGroup.push_back(column.member());
    }
    return members;
}

/// Hands values to a RapidJSON writer, plain or pretty.
template <typename Writer>
class JsonValues
{
public:
    explicit JsonValues(Writer &writer) : writer_(writer) {}

    void members(const Json &object)
    {
        for (const auto &[key, member] : object.items()) {
            writeKey(key);
            write(member);
        }
    }

    void members(const RawMembers &members)
    {
        for (const auto &[key, json] : members) {
            writeKey(key);
            writer_.RawValue(json.data(), json.size(), rapidjson::kObjectType);
        }
    }

    void members(const std::vector<Member> &members, const std::vector<Value> &values)
    {
        const Value *next = values.data();
        for (const Member &member : members) {
            writeKey(member.key);
            if (member.ofGroup.empty())
                std::visit(*this, *next);
            else
                writeGroup(member, next);
            next += std::max<std::size_t>(member.ofGroup.size(), 1);
        }
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
            writeText(text);
        else
            writeText(asUtf8(text));
    }
    void operator()(UnixTime time)
    {
        const std::string text = utcTimeText(time);
        text.empty() ? (void)writer_.Null() : writeText(text);
    }
    void operator()(const Items &items)
    {
        writer_.StartArray();
        for (const ListItem *item : items)
            writer_.RawValue(item->json.data(), item->json.size(), rapidjson::kObjectType);
        writer_.EndArray();
    }

private:
    static rapidjson::SizeType length(const std::string &text)
    {
        return static_cast<rapidjson::SizeType>(text.size());
    }
    void writeKey(const std::string &key) { writer_.Key(key.data(), length(key)); }
    void writeText(const std::string &text) { writer_.String(text.data(), length(text)); }

    void writeGroup(const Member &group, const Value *values)
    {
        const Value *const end = values + group.ofGroup.size();
        if (std::all_of(values, end, [](const Value &value) { return value.index() == 0; })) {
            writer_.Null();
            return;
        }
        writer_.StartObject();
        for (const std::string &key : group.ofGroup) {
            writeKey(key);
            std::visit(*this, *values++);
        }
        writer_.EndObject();
    }

    void write(const Json &value)
    {
        if (value.is_object()) {
            writer_.StartObject();
            members(value);
            writer_.EndObject();
        } else if (value.is_array()) {
            writer_.StartArray();
            for (const Json &item : value)
                write(item);
            writer_.EndArray();
        } else if (value.is_string()) {
            (*this)(value.get<std::string>());
        } else {
            const std::string text = oneLine(value);
            writer_.RawValue(text.data(), text.size(), rapidjson::kNumberType);
        }
    }

    Writer &writer_;
};

/// Prints what a writer has put into the buffer so far; the writer goes on with it.
void flush(rapidjson::StringBuffer &buffer, std::ostream &out)
{
    out.write(buffer.GetString(), static_cast<std::streamsize>(buffer.GetSize()));
    buffer.Clear();
}

/// The same, once it is worth it.
void flushWhenFull(rapidjson::StringBuffer &buffer, std::ostream &out)
{
    constexpr std::size_t full = 1 << 16;
    if (buffer.GetSize() >= full)
        flush(buffer, out);
}

} // namespace

struct JsonWriter::State
{
    explicit State(std::ostream &itsOut) : out(itsOut), writer(buffer)
    {
        constexpr unsigned indent = 2;
        writer.SetIndent(' ', indent);
    }

    std::ostream &out;
    rapidjson::StringBuffer buffer;
    rapidjson::PrettyWriter<rapidjson::StringBuffer> writer;
    std::vector<Member> members;
};

JsonWriter::JsonWriter(std::ostream &out) : state_(std::make_unique<State>(out)) {}

JsonWriter::~JsonWriter() = default;

void JsonWriter::begin(const RowsHead &head, const std::vector<Column> &columns)
{
    state_->members = membersOf(columns);
    state_->writer.StartObject();
    JsonValues(state_->writer).members(head.document);
    state_->writer.Key(head.rows.c_str());
    state_->writer.StartArray();
}

void JsonWriter::row(const std::vector<Value> &values)
{
    state_->writer.StartObject();
    JsonValues(state_->writer).members(state_->members, values);
    state_->writer.EndObject();
    flushWhenFull(state_->buffer, state_->out);
}

void JsonWriter::end()
{
    state_->writer.EndArray();
    state_->writer.EndObject();
    state_->buffer.Put('\n');
    flush(state_->buffer, state_->out);
}

struct JsonLinesWriter::State
{
    explicit State(std::ostream &itsOut) : out(itsOut) {}

    std::ostream &out;
    rapidjson::StringBuffer buffer;
    std::vector<Member> members;
    RawMembers ofEachLine;
};

JsonLinesWriter::JsonLinesWriter(std::ostream &out) : state_(std::make_unique<State>(out)) {}

JsonLinesWriter::~JsonLinesWriter() = default;

void JsonLinesWriter::begin(const RowsHead &head, const std::vector<Column> &columns)
{
    state_->members = membersOf(columns);
    for (const auto &[key, member] : head.ofEachLine.items())
        state_->ofEachLine.emplace_back(key, oneLine(member));
}

void JsonLinesWriter::row(const std::vector<Value> &values)
{
    rapidjson::Writer<rapidjson::StringBuffer> writer(state_->buffer);
    JsonValues json(writer);
    writer.StartObject();
    json.members(state_->ofEachLine);
    json.members(state_->members, values);
    writer.EndObject();
    state_->buffer.Put('\n');
    flushWhenFull(state_->buffer, state_->out);
}

void JsonLinesWriter::end()
{
    flush(state_->buffer, state_->out);
}

} // namespace iosphoto::tool
