#ifndef IOSPHOTO_TOOL_JSON_WRITERS_H
#define IOSPHOTO_TOOL_JSON_WRITERS_H

#include "rows/row_writer.h"

#include <memory>
#include <ostream>

namespace iosphoto::tool {

/// One indented JSON document: the members of the head, then an array of the rows.
class JsonWriter : public RowWriter
{
public:
    explicit JsonWriter(std::ostream &out);
    ~JsonWriter() override;

    void begin(const RowsHead &head, const std::vector<Column> &columns) override;
    void row(const std::vector<Value> &values) override;
    void end() override;

private:
    struct State;
    std::unique_ptr<State> state_;
};

/// One JSON object a line. Each begins with RowsHead::ofEachLine, so that the lines of many runs
/// make one table.
class JsonLinesWriter : public RowWriter
{
public:
    explicit JsonLinesWriter(std::ostream &out);
    ~JsonLinesWriter() override;

    void begin(const RowsHead &head, const std::vector<Column> &columns) override;
    void row(const std::vector<Value> &values) override;
    void end() override;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_JSON_WRITERS_H
