#include "rows/difference_fields.h"

#include "rows/library_head.h"
#include "text/json.h"
#include "text/translate.h"

namespace iosphoto::tool {

namespace {

using Row = DifferenceRow;

ListItem itemOf(const char *name)
{
    return {oneLine(name), name, translateTerm(name)};
}

Items itemsOf(const AlbumItems &items, const std::vector<const CAlbumGroup *> &albums)
{
    Items chosen;
    for (const CAlbumGroup *album : albums)
        chosen.push_back(items.of(*album));
    return chosen;
}

template <typename Kind>
Items itemsOf(const std::map<Kind, ListItem> &items, const std::vector<Kind> &kinds)
{
    Items chosen;
    for (const Kind kind : kinds)
        chosen.push_back(&items.at(kind));
    return chosen;
}

std::optional<Row::Side> sideOf(const std::optional<Asset> &asset, const Library &library)
{
    return asset ? std::optional(
                       Row::Side{asset->facts(), library.dates(), library.trash().stayOf(*asset)})
                 : std::nullopt;
}

std::vector<Field<Row>> fieldsOfTheChange()
{
    return {
        {{"uuid", Type::Text}, [](const Row &row) { return knownText(row.photo.latest().uuid()); }},
        {{"path", Type::Path}, [](const Row &row) { return Value(row.photo.latest().path()); }},
        {{"changes", Type::List}, [](const Row &row) { return Value(row.changes); }},
        {{"addedTo", Type::List}, [](const Row &row) { return Value(row.addedTo); }},
        {{"removedFrom", Type::List}, [](const Row &row) { return Value(row.removedFrom); }},
        {{"changedFields", Type::List}, [](const Row &row) { return Value(row.changedFields); }},
    };
}

using Side = std::optional<Row::Side> Row::*;

template <Side side, auto member>
Value numberOn(const Row &row)
{
    return row.*side ? Value(std::int64_t((row.*side)->facts.*member)) : Value();
}

template <Side side, bool CPhotoData::*member>
Value flagOn(const Row &row)
{
    return row.*side ? Value((row.*side)->facts.*member) : Value();
}

template <Side side, QString CPhotoData::*member>
Value textOn(const Row &row)
{
    return row.*side ? Value(((row.*side)->facts.*member).toStdString()) : Value();
}

template <Side side, QString CPhotoData::*member>
Value knownTextOn(const Row &row)
{
    return row.*side ? knownText(((row.*side)->facts.*member).toStdString()) : Value();
}

template <Side side>
Value durationOn(const Row &row)
{
    return row.*side ? durationValue((row.*side)->facts.duration) : Value();
}

template <Side side>
Value burstPickOn(const Row &row)
{
    return row.*side ? Value((row.*side)->facts.isBurstPick != 0) : Value();
}

template <Side side, auto date>
Value timeOn(const Row &row)
{
    return row.*side ? timeValue(((row.*side)->dates.*date)((row.*side)->facts)) : Value();
}

template <Side side>
Value trashedOn(const Row &row)
{
    return row.*side && (row.*side)->trash ? Value((row.*side)->trash->trashed) : Value();
}

/// The facts that are compared: those with which documents began, then the others.
template <Side side>
std::vector<Field<Row>> factsOn(const std::string &group)
{
    using Photo = CPhotoData;
    return {
        {{group + ".directory", Type::Text}, textOn<side, &Photo::directory>},
        {{group + ".fileName", Type::Text}, textOn<side, &Photo::fileName>},
        {{group + ".created", Type::Time}, timeOn<side, &KnownDates::created>},
        {{group + ".modified", Type::Time}, timeOn<side, &KnownDates::modified>},
        {{group + ".fileSize", Type::Bytes}, numberOn<side, &Photo::fileSize>},
        {{group + ".width", Type::Number}, numberOn<side, &Photo::width>},
        {{group + ".height", Type::Number}, numberOn<side, &Photo::height>},
        {{group + ".isEdited", Type::Flag}, flagOn<side, &Photo::isEdited>},
        {{group + ".isFavorite", Type::Flag}, flagOn<side, &Photo::isFavorite>},
        {{group + ".isHidden", Type::Flag}, flagOn<side, &Photo::isHidden>},
        {{group + ".isDeleted", Type::Flag}, flagOn<side, &Photo::isDeleted>},
        {{group + ".originalFileName", Type::Text}, knownTextOn<side, &Photo::sourceFileName>},
        {{group + ".duration", Type::Real}, durationOn<side>},
        {{group + ".added", Type::Time}, timeOn<side, &KnownDates::added>},
        {{group + ".trashed", Type::Time}, trashedOn<side>},
        {{group + ".burstUuid", Type::Text}, knownTextOn<side, &Photo::burstUuid>},
        {{group + ".isBurstPick", Type::Flag}, burstPickOn<side>},
        {{group + ".isVideo", Type::Flag}, flagOn<side, &Photo::isVideo>},
        {{group + ".isTimelapse", Type::Flag}, flagOn<side, &Photo::isTimelapse>},
        {{group + ".isSlomo", Type::Flag}, flagOn<side, &Photo::isSlomo>},
        {{group + ".isScreenRecording", Type::Flag}, flagOn<side, &Photo::isScreenRecording>},
        {{group + ".isPanorama", Type::Flag}, flagOn<side, &Photo::isPanorama>},
        {{group + ".isBurst", Type::Flag}, flagOn<side, &Photo::isBurst>},
        {{group + ".isScreenshot", Type::Flag}, flagOn<side, &Photo::isScreenshot>},
        {{group + ".isLivePhoto", Type::Flag}, flagOn<side, &Photo::isLivePhoto>},
        {{group + ".isSelfie", Type::Flag}, flagOn<side, &Photo::isSelfie>},
        {{group + ".isPortrait", Type::Flag}, flagOn<side, &Photo::isPortrait>},
        {{group + ".isAnimated", Type::Flag}, flagOn<side, &Photo::isAnimated>},
        {{group + ".isRaw", Type::Flag}, flagOn<side, &Photo::isRaw>},
        {{group + ".isProRes", Type::Flag}, flagOn<side, &Photo::isProRes>},
    };
}

Json referenceOrNull(const CAlbumGroup *album)
{
    return album != nullptr ? albumReference(*album) : Json();
}

template <typename Changes>
Json countsOf(const LibraryDifference &difference, const Changes &changes)
{
    Json counts;
    for (const auto change : changes)
        counts[changeName(change)] = difference.count(change);
    return counts;
}

} // namespace

DifferenceRows::DifferenceRows(const Library &before, const Library &after)
    : before_(before), after_(after), albumsBefore_(before.albums()), albumsAfter_(after.albums())
{
    for (const Change change : allChanges)
        changes_[change] = itemOf(changeName(change));
    for (const ComparedFact &fact : comparedFacts())
        changedFields_[&fact] = itemOf(fact.key);
}

DifferenceRow DifferenceRows::of(const PhotoDifference &photo) const
{
    return {photo,
            sideOf(photo.before, before_),
            sideOf(photo.after, after_),
            itemsOf(changes_, photo.changes),
            itemsOf(albumsAfter_, photo.addedTo),
            itemsOf(albumsBefore_, photo.removedFrom),
            itemsOf(changedFields_, photo.changedFields)};
}

FieldTable<DifferenceRow> differenceFields()
{
    FieldTable<DifferenceRow> table;
    for (const auto &part :
         {fieldsOfTheChange(), factsOn<&Row::before>("before"), factsOn<&Row::after>("after")})
        table.fields.insert(table.fields.end(), part.begin(), part.end());
    return table;
}

Json albumChanges(const std::vector<AlbumDifference> &differences)
{
    Json albums = Json::array();
    for (const AlbumDifference &album : differences)
        albums.push_back({{"change", changeName(album.change)},
                          {"before", referenceOrNull(album.before)},
                          {"after", referenceOrNull(album.after)}});
    return albums;
}

RowsHead differenceHead(const Library &before, const Library &after,
                        const LibraryDifference &difference)
{
    Json names = sourceNamed("a", before);
    names.update(sourceNamed("b", after));
    return {"photos",
            {{"a", libraryHead(before)},
             {"b", libraryHead(after)},
             {"photoCounts", countsOf(difference, allChanges)},
             {"albumCounts", countsOf(difference, allAlbumChanges)},
             {"albums", albumChanges(difference.albums)}},
            std::move(names)};
}

} // namespace iosphoto::tool
