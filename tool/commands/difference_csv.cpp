#include "commands/difference_csv.h"

#include "catalogue/album_kinds.h"
#include "commands/difference_document.h"
#include "rows/csv_writer.h"

#include <fmt/format.h>

namespace iosphoto::tool {

namespace {

std::string joined(const std::vector<std::string> &items)
{
    std::string text;
    for (const std::string &item : items)
        text += (text.empty() ? "" : "; ") + item;
    return text;
}

std::string names(const std::vector<const CAlbumGroup *> &albums)
{
    std::vector<std::string> names;
    names.reserve(albums.size());
    for (const CAlbumGroup *album : albums)
        names.push_back(englishName(*album));
    return joined(names);
}

Value asValue(const Json &member)
{
    if (member.is_boolean())
        return member.get<bool>();
    if (member.is_number())
        return member.get<std::int64_t>();
    if (member.is_array())
        return joined(member.get<std::vector<std::string>>());
    return member.is_string() ? Value(member.get<std::string>()) : Value();
}

/// Hands the key and value of each cell of a photo to `take`.
template <typename Take>
void forEachCell(const PhotoDifference &photo, Take take)
{
    static const Json noFacts = comparedFacts({});
    const Json members = asJson(photo);
    for (const auto &[key, member] : members.items()) {
        if (key == "before" || key == "after")
            for (const auto &[fact, unknown] : noFacts.items())
                take(fmt::format("{}.{}", key, fact),
                     member.is_null() ? Value() : asValue(member.at(fact)));
        else if (key == "addedTo" || key == "removedFrom")
            take(key, names(key == "addedTo" ? photo.addedTo : photo.removedFrom));
        else
            take(key, asValue(member));
    }
}

/// Any photo tells the columns.
std::vector<Column> columns()
{
    static const CAlbumGroup album;
    static const CPhotoData record;
    static const Appearance appearance = {&record, &album, 0};
    PhotoDifference photo;
    photo.after = Asset(&appearance, &appearance + 1);
    std::vector<Column> columns;
    forEachCell(photo, [&](const std::string &key, const Value &) {
        columns.emplace_back(key, Type::Text);
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
