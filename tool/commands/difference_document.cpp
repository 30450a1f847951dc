#include "commands/difference_document.h"

#include "rows/library_head.h"

namespace iosphoto::tool {

namespace {

Json referenceOrNull(const CAlbumGroup *album)
{
    return album != nullptr ? albumReference(*album) : Json();
}

Json references(const std::vector<const CAlbumGroup *> &albums)
{
    Json list = Json::array();
    for (const CAlbumGroup *album : albums)
        list.push_back(albumReference(*album));
    return list;
}

Json factsOrNull(const std::optional<Asset> &asset)
{
    return asset ? comparedFacts(asset->facts()) : Json();
}

Json asJson(const AlbumDifference &album)
{
    return {{"change", changeName(album.change)},
            {"before", referenceOrNull(album.before)},
            {"after", referenceOrNull(album.after)}};
}

template <typename Changes>
Json counts(const LibraryDifference &difference, const Changes &changes)
{
    Json counted;
    for (const auto change : changes)
        counted[changeName(change)] = difference.count(change);
    return counted;
}

} // namespace

Json comparedFacts(const CPhotoData &photo)
{
    return {{"directory", photo.directory.toStdString()},
            {"fileName", photo.fileName.toStdString()},
            {"created", utcTime(photo.createdTime)},
            {"modified", utcTime(photo.modifiedTime)},
            {"fileSize", photo.fileSize},
            {"width", photo.width},
            {"height", photo.height},
            {"isEdited", photo.isEdited},
            {"isFavorite", photo.isFavorite},
            {"isHidden", photo.isHidden},
            {"isDeleted", photo.isDeleted}};
}

Json differenceHead(const Library &before, const Library &after,
                    const LibraryDifference &difference)
{
    Json head = {{"a", libraryHead(before)},
                 {"b", libraryHead(after)},
                 {"photoCounts", counts(difference, allChanges)},
                 {"albumCounts", counts(difference, allAlbumChanges)}};
    Json &albums = head["albums"] = Json::array();
    for (const AlbumDifference &album : difference.albums)
        albums.push_back(asJson(album));
    return head;
}

Json asJson(const PhotoDifference &photo)
{
    Json changes = Json::array();
    for (const Change change : photo.changes)
        changes.push_back(changeName(change));
    Json fields = Json::array();
    for (const ChangedField field : photo.changedFields)
        fields.push_back(fieldName(field));
    return {{"uuid", textOrNull(photo.latest().uuid())},
            {"path", photo.latest().path()},
            {"changes", std::move(changes)},
            {"addedTo", references(photo.addedTo)},
            {"removedFrom", references(photo.removedFrom)},
            {"changedFields", std::move(fields)},
            {"before", factsOrNull(photo.before)},
            {"after", factsOrNull(photo.after)}};
}

} // namespace iosphoto::tool
