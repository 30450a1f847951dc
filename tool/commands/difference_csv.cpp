#include "commands/difference_csv.h"

#include "commands/difference_document.h"
#include "rows/csv_writer.h"

namespace iosphoto::tool {

namespace {

/// An item of a list: the name of an album, or a text.
std::string plainText(const Json &item)
{
    return (item.is_object() ? item.at("name") : item).get<std::string>();
}

std::string joined(const Json &list)
{
    std::string text;
    for (const Json &item : list)
        text += (text.empty() ? "" : "; ") + plainText(item);
    return text;
}

Value asValue(const Json &member)
{
    if (member.is_boolean())
        return member.get<bool>();
    if (member.is_number())
        return member.get<std::int64_t>();
    if (member.is_array())
        return joined(member);
    return member.is_string() ? Value(member.get<std::string>()) : Value();
}

/// Hands the key and value of each cell of a photo to `take`.
template <typename Take>
void forEachCell(const PhotoDifference &photo, Take take)
{
    static const Json noFacts = comparedFacts({});
    const Json members = asJson(photo);
    for (const auto &[key, member] : members.items()) {
        if (key != "before" && key != "after") {
            take(key, asValue(member));
            continue;
        }
        for (const auto &[fact, unknown] : noFacts.items())
            take(key + "." + fact, member.is_null() ? Value() : asValue(member.at(fact)));
    }
}

/// Any photo tells the columns.
std::vector<Column> columns()
{
    static const CAlbumGroup album;
    static const CPhotoData record;
    static const Appearance appearance = {&record, &album};
    PhotoDifference photo;
    photo.after = Asset(&appearance, &appearance + 1);
    std::vector<Column> columns;
    forEachCell(photo, [&](const std::string &key, const Value &) {
        columns.push_back({key, key, Type::Text});
    });
    return columns;
}

} // namespace

void printDifferenceAsCsv(const std::vector<PhotoDifference> &photos, std::ostream &out)
{
    CsvWriter writer(out);
    writer.begin({}, columns());
    std::vector<Value> values;
    for (const PhotoDifference &photo : photos) {
        values.clear();
        forEachCell(photo,
                    [&](const std::string &, Value value) { values.push_back(std::move(value)); });
        writer.row(values);
    }
    writer.end();
}

} // namespace iosphoto::tool
