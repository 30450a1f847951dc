#include "rows/table_writer.h"

#include "terminal/item_list.h"
#include "text/numbers.h"
#include "text/translate.h"
#include "time/time_text.h"

namespace iosphoto::tool {

namespace {

/// A value as a person reads it.
struct ShownValue
{
    Type type;

    std::string operator()(std::monostate) const { return ""; }
    std::string operator()(bool flag) const { return flag ? translate("yes") : ""; }
    std::string operator()(std::int64_t number) const
    {
        return type == Type::Bytes ? readableSize(number) : std::to_string(number);
    }
    std::string operator()(double number) const { return fmt::format("{}", number); }
    std::string operator()(const std::string &text) const { return text; }
    std::string operator()(UnixTime time) const { return localTimeText(time); }
    std::string operator()(const Items &items) const
    {
        std::vector<std::string> texts;
        for (const ListItem *item : items)
            texts.push_back(item->shown);
        return cellOfItems(texts);
    }
};

} // namespace

void TableWriter::begin(const RowsHead & /*head*/, const std::vector<Column> &columns)
{
    columns_ = columns;
    std::vector<TextTable::Column> shown;
    shown.reserve(columns.size());
    for (const Column &column : columns) {
        const bool isSource = column.type == Type::Source;
        shown.push_back({column.heading, column.align,
                         column.type == Type::Path || isSource ? Elide::Left : Elide::Right,
                         column.align == Align::Left && !column.isWhole &&
                             column.type != Type::Time && !isSource,
                         column.type == Type::List, column.spareRank, isSource});
    }
    table_.emplace(std::move(shown));
}

void TableWriter::row(const std::vector<Value> &values)
{
    table_->add(cellsOf(values));
}

void TableWriter::end()
{
    table_->print(out_, screen_);
}

/// First only the widths of the cells, then the rows with them: cells of millions of photos would
/// take more memory than the photos.
void TableWriter::all(const RowSource &rows)
{
    rows([this](const std::vector<Value> &values) { table_->measure(cellsOf(values)); });
    table_->print(out_, screen_, [&](const TextTable::TakeCells &take) {
        rows([&](const std::vector<Value> &values) { take(cellsOf(values)); });
    });
}

std::vector<std::string> TableWriter::cellsOf(const std::vector<Value> &values) const
{
    std::vector<std::string> cells;
    for (std::size_t i = 0; i < columns_.size(); ++i)
        cells.push_back(std::visit(ShownValue{columns_[i].type}, values[i]));
    return cells;
}

} // namespace iosphoto::tool
