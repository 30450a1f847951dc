#include "rows/photo_fields.h"

#include "catalogue/album_kinds.h"
#include "catalogue/photo_kinds.h"
#include "rows/library_head.h"
#include "rows/values.h"
#include "text/json.h"
#include "text/lists.h"
#include "text/translate.h"
#include "time/time_text.h"

#include <iterator>
#include <utility>

namespace iosphoto::tool {

namespace {

using Row = PhotoRow;

Value text(const QString &text)
{
    return text.toStdString();
}

Value knownText(const QString &text)
{
    return tool::knownText(text.toStdString());
}

Value number(std::int64_t number)
{
    return number;
}

std::vector<Field<Row>> fieldsOfTheFile()
{
    return {
        {{"uuid", Type::Text}, [](const Row &row) { return tool::knownText(row.facts.uuid); }},
        {{"assetId", Type::Number},
         [](const Row &row) {
             return row.facts.assetId >= 0 ? number(row.facts.assetId) : Value();
         }},
        {{"mediaKind", Type::Text},
         [](const Row &row) { return Value(std::string(isVideo(row.asset) ? "video" : "photo")); }},
        {{"path", Type::Path, translate("FILE")},
         [](const Row &row) { return Value(row.asset.path()); }},
        {{"directory", Type::Text}, [](const Row &row) { return text(row.facts.directory); }},
        {{"fileName", Type::Text}, [](const Row &row) { return text(row.facts.fileName); }},
        {{"originalFileName", Type::Text},
         [](const Row &row) { return knownText(row.facts.sourceFileName); }},
        {{"width", Type::Number}, [](const Row &row) { return number(row.facts.width); }},
        {{"height", Type::Number}, [](const Row &row) { return number(row.facts.height); }},
        {{"fileSize", Type::Bytes, translate("SIZE")},
         [](const Row &row) { return number(row.facts.fileSize); }},
        {{"duration", Type::Real},
         [](const Row &row) { return durationValue(row.facts.duration); }},
    };
}

std::vector<Field<Row>> fieldsOfTimes()
{
    return {
        {{"created", Type::Time, translate("TAKEN")},
         [](const Row &row) { return timeValue(row.dates.created(row.facts)); }},
        {{"modified", Type::Time},
         [](const Row &row) { return timeValue(row.dates.modified(row.facts)); }},
        {{"added", Type::Time},
         [](const Row &row) { return timeValue(row.dates.added(row.facts)); }},
        {{"createdSince2001", Type::Real},
         [](const Row &row) {
             const auto created = row.dates.created(row.facts);
             return created ? Value(created->seconds) : Value();
         }},
        {{"localDay", Type::Text, translate("DAY")},
         [](const Row &row) { return localDayValue(row.facts, row.dates); }},
        {{"trashed", Type::Time},
         [](const Row &row) { return row.trash ? Value(row.trash->trashed) : Value(); }},
        {{"goes", Type::Time, translate("GOES")},
         [](const Row &row) { return row.trash ? Value(row.trash->goes) : Value(); }},
        {{"daysLeft", Type::Number, translate("DAYS LEFT")},
         [](const Row &row) { return row.trash ? number(row.trash->daysLeft) : Value(); }},
    };
}

std::vector<Field<Row>> fieldsOfBursts()
{
    return {
        {{"thumbnailIndex", Type::Number},
         [](const Row &row) { return number(row.facts.thumbnailIndex); }},
        {{"burstUuid", Type::Text}, [](const Row &row) { return knownText(row.facts.burstUuid); }},
        {{"burstCount", Type::Number},
         [](const Row &row) {
             return row.leftOutBecause ? Value() : number(row.facts.burstCount);
         }},
        {{"burstFrames", Type::Number},
         [](const Row &row) { return row.burstFrames > 0 ? number(row.burstFrames) : Value(); }},
        {{"isBurstPick", Type::Flag},
         [](const Row &row) { return Value(row.facts.isBurstPick != 0); }},
    };
}

template <std::size_t index>
Value traitOf(const Row &row)
{
    constexpr auto flag = traits[index].flag;
    return Value(row.facts.*flag);
}

template <std::size_t... indices>
std::vector<Field<Row>> fieldsOfTraits(std::index_sequence<indices...> /*all*/)
{
    return {{{traits[indices].key, Type::Flag}, traitOf<indices>}...};
}

std::string wordsForTrash(const TrashStay &stay)
{
    const std::string day = localDayText(stay.goes);
    return stay.daysLeft == 1 ? translate("deleted, 1 day left, goes {0}", day)
                              : translate("deleted, {0} days left, goes {1}", stay.daysLeft, day);
}

std::string wordsForTrait(const Trait &trait, const PhotoRow &row)
{
    if (!(row.facts.*trait.flag))
        return "";
    if (trait.flag == &CPhotoData::isBurst && row.burstFrames > 0)
        return translate("burst of {0}", row.burstFrames);
    return translateTerm(trait.word);
}

std::string wordOrStay(const Trait &trait, const PhotoRow &row)
{
    if (trait.flag == &CPhotoData::isDeleted && row.trash)
        return wordsForTrash(*row.trash);
    return wordsForTrait(trait, row);
}

template <typename WordFor>
std::string wordsFor(const PhotoRow &row, WordFor wordFor)
{
    std::vector<std::string> words;
    for (const Trait &trait : traits)
        if (const std::string word = wordFor(trait, row); !word.empty())
            words.push_back(word);
    return listForPeople(words);
}

/// "4032x3024"
std::string pixelsOf(const CPhotoData &photo)
{
    return std::to_string(photo.width) + "x" + std::to_string(photo.height);
}

/// What is special about a photo, as "burst of 10, favorite" or "deleted, 12 days left, goes
/// 2024-05-03", in the user's language.
std::string wordsFor(const PhotoRow &row)
{
    return wordsFor(row, wordOrStay);
}

/// The same without its stay in the trash: "favorite, deleted".
std::string kindsOf(const PhotoRow &row)
{
    return wordsFor(row, wordsForTrait);
}

std::vector<Field<Row>> viewsForPeople()
{
    constexpr bool isFact = false;
    Column reason("reason", Type::Text, translate("LEFT OUT"));
    reason.isWhole = true;
    return {
        {{"pixels", Type::Text, translate("PIXELS"), Align::Right},
         [](const Row &row) { return Value(pixelsOf(row.facts)); },
         isFact},
        {{"what", Type::Text, translate("WHAT")},
         [](const Row &row) { return Value(wordsFor(row)); },
         isFact},
        {{"kinds", Type::Text, translate("WHAT")},
         [](const Row &row) { return Value(kindsOf(row)); },
         isFact},
        {reason,
         [](const Row &row) {
             return row.leftOutBecause ? Value(translateTerm(words(*row.leftOutBecause))) : Value();
         },
         isFact},
    };
}

} // namespace

FieldTable<PhotoRow> photoFields()
{
    const std::vector<Field<Row>> places = {
        {{"albums", Type::List, translate("ALBUMS")},
         [](const Row &row) { return Value(row.albums); }},
        {{"leftOutBecause", Type::Text},
         [](const Row &row) {
             return row.leftOutBecause ? Value(std::string(machineName(*row.leftOutBecause)))
                                       : Value();
         }},
    };
    FieldTable<PhotoRow> table;
    for (const auto &part :
         {fieldsOfTheFile(), fieldsOfTimes(), fieldsOfBursts(),
          fieldsOfTraits(std::make_index_sequence<std::size(traits)>()), places, viewsForPeople()})
        table.fields.insert(table.fields.end(), part.begin(), part.end());
    table.inTables = {"created", "path", "pixels", "fileSize", "what", "albums"};
    table.spare = {"pixels", "fileSize"};
    return table;
}

FieldTable<PhotoRow> photoFieldsOfTheTrash()
{
    FieldTable<PhotoRow> table = photoFields();
    table.inTables = {"created", "path",     "pixels", "fileSize",
                      "kinds",   "daysLeft", "goes",   "albums"};
    table.spare = {"pixels", "fileSize", "albums", "kinds", "created"};
    return table;
}

FieldTable<PhotoRow> photoFieldsOfLeftOut()
{
    FieldTable<PhotoRow> table = photoFields();
    table.inTables = {"created", "path", "pixels", "fileSize", "what", "reason"};
    table.spare = {"pixels", "fileSize", "what", "created"};
    return table;
}

FieldTable<PhotoRow> photoFieldsWithLeftOut()
{
    FieldTable<PhotoRow> table = photoFields();
    table.inTables.emplace_back("reason");
    table.spare = {"pixels", "fileSize", "what", "created", "albums"};
    return table;
}

PhotoRow PhotoRows::of(const Asset &asset) const
{
    const auto reason = library_.leftOutPhotos().reasonFor(asset);
    return {asset,
            asset.facts(),
            library_.trash().stayOf(asset),
            reason ? 0 : bursts_.count(asset),
            albums_.of(asset),
            library_.dates(),
            reason};
}

std::vector<Field<PhotoRow>> photoColumns()
{
    std::vector<Field<PhotoRow>> columns;
    for (const Field<PhotoRow> &field : factsOf(photoFields()))
        if (field.column.type != Type::List)
            columns.push_back(field);
    return columns;
}

AlbumItems::AlbumItems(const std::vector<CAlbumGroup> &catalogue) : catalogue_(catalogue)
{
    for (const CAlbumGroup &album : catalogue)
        items_.push_back({oneLine(albumReference(album)), englishName(album), shownName(album)});
}

Items AlbumItems::of(const Asset &asset) const
{
    Items items;
    for (const CAlbumGroup *album : asset.albums())
        items.push_back(of(*album));
    return items;
}

const ListItem *AlbumItems::of(const CAlbumGroup &album) const
{
    return &items_[static_cast<std::size_t>(&album - catalogue_.data())];
}

} // namespace iosphoto::tool
