#ifndef IOSPHOTO_TOOL_FIELDS_H
#define IOSPHOTO_TOOL_FIELDS_H

#include "rows/row_format.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// That somebody chose a field that rows do not have.
struct UnknownField
{
    std::string key;
    std::vector<std::string> known;
};

/// Where in `all` the `chosen` keys are, each once. Throws UnknownField when one is unknown.
std::vector<std::size_t> placesOfKeys(const std::vector<std::string> &all,
                                      const std::vector<std::string> &chosen);

/// Something that every row of a kind has: the only place that says so.
template <typename Row>
struct Field
{
    Column column;
    Value (*value)(const Row &);
    bool isFact = true; ///< not only another view of other fields, for tables
};

/// The fields of the rows of a kind, in the order of documents.
template <typename Row>
struct FieldTable
{
    std::vector<Field<Row>> fields;
    std::vector<std::string> inTables; ///< the keys that tables show unless others are chosen
    std::vector<std::string>
        spare; ///< of these, those that narrow tables do without, first to last
};

/// The fields that are no mere views of others.
template <typename Row>
std::vector<Field<Row>> factsOf(const FieldTable<Row> &table)
{
    std::vector<Field<Row>> facts;
    for (const Field<Row> &field : table.fields)
        if (field.isFact)
            facts.push_back(field);
    return facts;
}

/// The keys of all fields, as somebody may choose them.
template <typename Row>
std::vector<std::string> keysOf(const FieldTable<Row> &table)
{
    std::vector<std::string> keys;
    for (const Field<Row> &field : table.fields)
        keys.push_back(field.column.key);
    return keys;
}

/// The fields of these keys in their order. Throws UnknownField when one is unknown.
template <typename Row>
std::vector<Field<Row>> fieldsOfKeys(const FieldTable<Row> &table,
                                     const std::vector<std::string> &keys)
{
    std::vector<Field<Row>> chosen;
    for (const std::size_t place : placesOfKeys(keysOf(table), keys))
        chosen.push_back(table.fields.at(place));
    return chosen;
}

/// The fields that tables show unless others are chosen.
template <typename Row>
std::vector<Field<Row>> fieldsInTables(const FieldTable<Row> &table)
{
    std::vector<Field<Row>> fields = fieldsOfKeys(table, table.inTables);
    for (Field<Row> &field : fields) {
        const auto spare = std::find(table.spare.begin(), table.spare.end(), field.column.key);
        if (spare != table.spare.end())
            field.column.spareRank = static_cast<std::size_t>(spare - table.spare.begin()) + 1;
    }
    return fields;
}

/// The fields that are to be shown: the chosen ones, or the usual ones of the format. Throws
/// UnknownField when one is unknown.
template <typename Row>
std::vector<Field<Row>> fieldsToShow(const FieldTable<Row> &table, const RowFormat &format)
{
    if (!format.fields.empty())
        return fieldsOfKeys(table, format.fields);
    return format.format == Format::Table ? fieldsInTables(table) : factsOf(table);
}

/// The fields, those of the unknown keys null in every row.
/// @param group  of the keys, such as "before."; empty for those without one
template <typename Row>
std::vector<Field<Row>> withUnknown(std::vector<Field<Row>> fields,
                                    const std::vector<std::string> &unknownKeys,
                                    const std::string &group = "")
{
    for (Field<Row> &field : fields)
        for (const std::string &key : unknownKeys)
            if (field.column.key == group + key)
                field.value = [](const Row & /*row*/) { return Value(); };
    return fields;
}

/// Turns rows of one kind into the values that a writer takes.
template <typename Row>
class RowStream
{
public:
    RowStream(RowWriter &writer, const RowsHead &head, std::vector<Field<Row>> fields)
        : writer_(writer), fields_(std::move(fields))
    {
        std::vector<Column> columns;
        for (const Field<Row> &field : fields_)
            columns.push_back(field.column);
        writer_.begin(head, columns);
    }

    void write(const Row &row)
    {
        setValues(row);
        writer_.row(values_);
    }

    void end() { writer_.end(); }

    /// Writes the rows that `rowOf` makes of `things`, and ends. Each is made when it is written,
    /// and more than once where the format needs it.
    template <typename Things, typename RowOf>
    void writeAll(const Things &things, RowOf rowOf)
    {
        writer_.all([&](const TakeRow &take) {
            for (const auto &thing : things) {
                setValues(rowOf(thing));
                take(values_);
            }
        });
    }

private:
    void setValues(const Row &row)
    {
        values_.clear();
        for (const Field<Row> &field : fields_)
            values_.push_back(field.value(row));
    }

    RowWriter &writer_;
    std::vector<Field<Row>> fields_;
    std::vector<Value> values_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FIELDS_H
