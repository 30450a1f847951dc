#ifndef IOSPHOTO_TOOL_JSON_VALUES_H
#define IOSPHOTO_TOOL_JSON_VALUES_H

#include "catalogue/moment.h"
#include "output/json_document.h"
#include "output/printable.h"
#include "rows/value.h"

#include <rapidjson/rapidjson.h>

#include <cmath>

namespace iosphoto::tool {

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

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_JSON_VALUES_H
