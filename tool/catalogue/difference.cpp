#include "catalogue/difference.h"

#include "catalogue/album_kinds.h"
#include "model/core_data_time.h"
#include "text/translate.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace iosphoto::tool {

namespace {

/// What a photo is matched by.
struct Key
{
    bool isUuid;
    std::string text;
    std::size_t index; ///< of the photo in its list
};

bool isLess(const Key &left, const Key &right)
{
    return std::tie(left.isUuid, left.text) < std::tie(right.isUuid, right.text);
}

Key keyOf(const AssetList &assets, std::size_t index)
{
    const Asset asset = assets[index];
    if (!asset.uuid().empty())
        return {true, comparable(asset.uuid()), index};
    return {false, asset.path(), index};
}

/// Each key once, with the first photo that has it: records without a uuid stand for themselves, so
/// there may be one for each album that shows the photo. Sorted, not hashed: no choice of uuids
/// makes it slow.
std::vector<Key> sortedKeys(const AssetList &assets)
{
    std::vector<Key> keys;
    for (std::size_t i = 0; i < assets.size(); ++i)
        keys.push_back(keyOf(assets, i));
    std::stable_sort(keys.begin(), keys.end(), isLess);
    const auto isSame = [](const Key &left, const Key &right) { return !isLess(left, right); };
    keys.erase(std::unique(keys.begin(), keys.end(), isSame), keys.end());
    return keys;
}

/// A photo of the one list and the same one of the other, or nothing where it is not there.
struct Match
{
    std::optional<std::size_t> before;
    std::optional<std::size_t> after;
};

bool isShownBefore(const Match &left, const Match &right)
{
    const auto place = [](const Match &match) {
        return std::make_pair(!match.after, match.after ? *match.after : *match.before);
    };
    return place(left) < place(right);
}

std::vector<Match> matches(const AssetList &before, const AssetList &after)
{
    const std::vector<Key> first = sortedKeys(before);
    const std::vector<Key> second = sortedKeys(after);
    std::vector<Match> found;
    auto old = first.begin();
    auto now = second.begin();
    while (old != first.end() || now != second.end()) {
        const bool isOld = now == second.end() || (old != first.end() && !isLess(*now, *old));
        const bool isNow = old == first.end() || (now != second.end() && !isLess(*old, *now));
        Match match;
        if (isOld)
            match.before = old++->index;
        if (isNow)
            match.after = now++->index;
        found.push_back(match);
    }
    std::sort(found.begin(), found.end(), isShownBefore);
    return found;
}

bool isEditedBetween(const CPhotoData &before, const CPhotoData &after)
{
    if (before.isEdited != after.isEdited)
        return true;
    return before.isEdited &&
           (wholeSeconds(before.modifiedTime) != wholeSeconds(after.modifiedTime) ||
            before.fileSize != after.fileSize || before.width != after.width ||
            before.height != after.height);
}

/// The albums of hidden and trashed photos do not tell.
bool isFavoriteKnown(const CPhotoData &photo)
{
    return !photo.isHidden && !photo.isDeleted;
}

std::vector<ChangedField> changedFields(const CPhotoData &before, const CPhotoData &after)
{
    std::vector<ChangedField> fields;
    if (isFavoriteKnown(before) && isFavoriteKnown(after) && before.isFavorite != after.isFavorite)
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

PhotoComparison comparePhotos(const AssetList &before, const AssetList &after)
{
    PhotoComparison comparison;
    for (const Match &match : matches(before, after)) {
        PhotoDifference difference;
        if (!match.before) {
            difference = {{}, after[*match.after], {Change::New}, {}, {}, {}};
        } else if (!match.after) {
            difference = {before[*match.before], {}, {Change::Gone}, {}, {}, {}};
        } else {
            ++comparison.inBoth;
            difference = compareAssets(before[*match.before], after[*match.after]);
        }
        if (!difference.changes.empty())
            comparison.differences.push_back(std::move(difference));
    }
    return comparison;
}

std::string comparable(const std::string &uuid)
{
    std::string digits;
    for (const char character : uuid)
        if (character != '-')
            digits += static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
    return digits;
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
    const auto has = [change](const PhotoDifference &photo) {
        return std::find(photo.changes.begin(), photo.changes.end(), change) != photo.changes.end();
    };
    return static_cast<int>(
        std::count_if(photos.differences.begin(), photos.differences.end(), has));
}

int LibraryDifference::count(AlbumChange change) const
{
    const auto is = [change](const AlbumDifference &album) { return album.change == change; };
    return static_cast<int>(std::count_if(albums.begin(), albums.end(), is));
}

} // namespace iosphoto::tool
