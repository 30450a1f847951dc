#include "catalogue/difference.h"

#include "catalogue/album_kinds.h"
#include "model/core_data_time.h"
#include "text/translate.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace iosphoto::tool {

namespace {

bool isEditedBetween(const CPhotoData &before, const CPhotoData &after)
{
    if (before.isEdited != after.isEdited)
        return true;
    return before.isEdited &&
           (wholeSeconds(before.modifiedTime) != wholeSeconds(after.modifiedTime) ||
            before.fileSize != after.fileSize || before.width != after.width ||
            before.height != after.height);
}

std::vector<ChangedField> changedFields(const CPhotoData &before, const CPhotoData &after)
{
    std::vector<ChangedField> fields;
    if (before.isFavorite != after.isFavorite)
        fields.push_back(ChangedField::Favorite);
    if (before.isHidden != after.isHidden)
        fields.push_back(ChangedField::Hidden);
    if (before.fileName != after.fileName)
        fields.push_back(ChangedField::FileName);
    if (wholeSeconds(before.createdTime) != wholeSeconds(after.createdTime))
        fields.push_back(ChangedField::Created);
    return fields;
}

PhotoDifference compareAssets(const Asset &before, const Asset &after)
{
    const CPhotoData old = before.facts();
    const CPhotoData now = after.facts();
    PhotoDifference difference = {before, after, {}, {}, {}, changedFields(old, now)};
    if (old.isDeleted != now.isDeleted) {
        difference.changes.push_back(now.isDeleted ? Change::Trashed : Change::Restored);
    } else {
        difference.addedTo = albumsMissingFrom(before.albums(), after.albums());
        difference.removedFrom = albumsMissingFrom(after.albums(), before.albums());
    }
    if (isEditedBetween(old, now))
        difference.changes.push_back(Change::Edited);
    if (!difference.addedTo.empty() || !difference.removedFrom.empty())
        difference.changes.push_back(Change::Moved);
    if (!difference.changedFields.empty())
        difference.changes.push_back(Change::Changed);
    return difference;
}

using AlbumsByUuid = std::map<std::string, const CAlbumGroup *>; // ordered: no uuids make it slow

AlbumsByUuid albumsByUuid(const std::vector<CAlbumGroup> &catalogue)
{
    AlbumsByUuid albums;
    for (const CAlbumGroup &album : catalogue)
        if (isOfTheTable(album))
            albums.emplace(comparable(album.albumUuid), &album);
    return albums;
}

const CAlbumGroup *counterpart(const AlbumsByUuid &others, const CAlbumGroup &album)
{
    const auto found = others.find(comparable(album.albumUuid));
    return found != others.end() ? found->second : nullptr;
}

} // namespace

const char *changeName(Change change)
{
    switch (change) {
    case Change::New:
        return translatable("new");
    case Change::Gone:
        return translatable("gone");
    case Change::Trashed:
        return translatable("trashed");
    case Change::Restored:
        return translatable("restored");
    case Change::Edited:
        return translatable("edited");
    case Change::Moved:
        return translatable("moved");
    case Change::Changed:
        break;
    }
    return translatable("changed");
}

const char *fieldName(ChangedField field)
{
    switch (field) {
    case ChangedField::Favorite:
        return "isFavorite";
    case ChangedField::Hidden:
        return "isHidden";
    case ChangedField::FileName:
        return "fileName";
    case ChangedField::Created:
        break;
    }
    return "created";
}

PhotoDifferences::PhotoDifferences(const AssetList &before, const AssetList &after,
                                   std::vector<AssetMatch> matches)
    : before_(&before), after_(&after), matches_(std::move(matches))
{
    leaveOut([](const PhotoDifference &photo) { return photo.changes.empty(); });
}

void PhotoDifferences::leaveOut(const std::function<bool(const PhotoDifference &)> &isLeftOut)
{
    counts_.clear();
    const auto isToGo = [&](const AssetMatch &match) {
        const PhotoDifference photo = differenceOf(match);
        if (isLeftOut(photo))
            return true;
        for (const Change change : photo.changes)
            ++counts_[change];
        return false;
    };
    matches_.erase(std::remove_if(matches_.begin(), matches_.end(), isToGo), matches_.end());
    matches_.shrink_to_fit();
}
int PhotoDifferences::count(Change change) const
{
    const auto found = counts_.find(change);
    return found != counts_.end() ? found->second : 0;
}

PhotoDifference PhotoDifferences::differenceOf(const AssetMatch &match) const
{
    if (match.before == noRecord)
        return {{}, after_->at(match.after), {Change::New}, {}, {}, {}};
    if (match.after == noRecord)
        return {before_->at(match.before), {}, {Change::Gone}, {}, {}, {}};
    return compareAssets(before_->at(match.before), after_->at(match.after));
}

PhotoComparison comparePhotos(const AssetList &before, const AssetList &after)
{
    std::vector<AssetMatch> matches = matchAssets(before, after);
    const auto inBoth = std::count_if(matches.begin(), matches.end(), [](const AssetMatch &match) {
        return match.before != noRecord && match.after != noRecord;
    });
    return {{before, after, std::move(matches)}, static_cast<std::size_t>(inBoth)};
}

const char *changeName(AlbumChange change)
{
    switch (change) {
    case AlbumChange::New:
        return translatable("new");
    case AlbumChange::Gone:
        return translatable("gone");
    case AlbumChange::Renamed:
        break;
    }
    return translatable("renamed");
}

std::vector<AlbumDifference> compareAlbums(const std::vector<CAlbumGroup> &before,
                                           const std::vector<CAlbumGroup> &after)
{
    const AlbumsByUuid first = albumsByUuid(before);
    const AlbumsByUuid second = albumsByUuid(after);
    std::vector<AlbumDifference> differences;
    for (const CAlbumGroup &album : after) {
        if (!isOfTheTable(album))
            continue;
        const CAlbumGroup *const old = counterpart(first, album);
        if (old == nullptr)
            differences.push_back({AlbumChange::New, nullptr, &album});
        else if (old->albumName != album.albumName)
            differences.push_back({AlbumChange::Renamed, old, &album});
    }
    for (const CAlbumGroup &album : before)
        if (isOfTheTable(album) && counterpart(second, album) == nullptr)
            differences.push_back({AlbumChange::Gone, &album, nullptr});
    return differences;
}

std::vector<const CAlbumGroup *> albumsMissingFrom(const std::vector<const CAlbumGroup *> &others,
                                                   const std::vector<const CAlbumGroup *> &albums)
{
    std::set<std::string> there;
    for (const CAlbumGroup *album : others)
        there.insert(comparable(album->albumUuid));
    std::vector<const CAlbumGroup *> missing;
    for (const CAlbumGroup *album : albums)
        if (isOfTheTable(*album) && there.count(comparable(album->albumUuid)) == 0)
            missing.push_back(album);
    return missing;
}

int LibraryDifference::count(Change change) const
{
    return photos.differences.count(change);
}

int LibraryDifference::count(AlbumChange change) const
{
    const auto is = [change](const AlbumDifference &album) { return album.change == change; };
    return static_cast<int>(std::count_if(albums.begin(), albums.end(), is));
}

} // namespace iosphoto::tool
