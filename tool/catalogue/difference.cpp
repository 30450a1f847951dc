#include "catalogue/difference.h"

#include "catalogue/album_kinds.h"
#include "text/translate.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <utility>

namespace iosphoto::tool {

namespace {

using Facts = std::vector<const ComparedFact *>;

bool isUnknown(const Snapshot &snapshot, const std::string &key)
{
    const std::vector<std::string> &unknown = snapshot.unknownFields;
    return std::find(unknown.begin(), unknown.end(), key) != unknown.end();
}

/// Takes away the facts of these keys. Returns how many there were.
std::size_t takeAway(Facts &facts, const std::vector<std::string> &keys)
{
    const auto isOne = [&](const ComparedFact *fact) {
        return std::find(keys.begin(), keys.end(), fact->key) != keys.end();
    };
    const auto rest = std::remove_if(facts.begin(), facts.end(), isOne);
    const auto count = static_cast<std::size_t>(facts.end() - rest);
    facts.erase(rest, facts.end());
    return count;
}

/// Takes away what an edit changes, if there was one. Both may be edited, and not by the same edit.
bool takeEdit(const CPhotoData &before, const CPhotoData &after, Facts &differing)
{
    const std::size_t state = takeAway(differing, {"isEdited"});
    if (state == 0 && !(before.isEdited && after.isEdited))
        return false;
    return takeAway(differing, {"modified", "fileSize", "width", "height"}) + state > 0;
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

/// The albums that rows of photos decide themselves, as opposed to those that follow from facts.
bool isRoll(const CAlbumGroup &album)
{
    return !album.isSmartAlbum && !isOfTheTable(album) &&
           (album.albumKind == AlbumKind::CameraRoll || album.albumKind == AlbumKind::PhotoLibrary);
}

/// What an album is told by in both snapshots; empty for those that are not compared. No uuid is in
/// small letters.
std::string keyOf(const CAlbumGroup &album)
{
    if (isOfTheTable(album))
        return comparable(album.albumUuid);
    return isRoll(album) ? kindName(album) : "";
}

/// Nothing but its row decides whether it is in the Camera Roll.
bool isPlain(const CPhotoData &photo)
{
    return !photo.isHidden && !photo.isDeleted && !(photo.isBurst && photo.isBurstPick == 0);
}

/// The albums of `albums` that are not in `others`.
std::vector<const CAlbumGroup *> missingFrom(const std::vector<const CAlbumGroup *> &others,
                                             const std::vector<const CAlbumGroup *> &albums)
{
    std::set<std::string> there;
    for (const CAlbumGroup *album : others)
        there.insert(keyOf(*album));
    std::vector<const CAlbumGroup *> missing;
    for (const CAlbumGroup *album : albums)
        if (const std::string key = keyOf(*album); !key.empty() && there.count(key) == 0)
            missing.push_back(album);
    return missing;
}

/// A change of name makes a titled album one of another kind, too.
bool isOfAnotherKind(const CAlbumGroup &before, const CAlbumGroup &after)
{
    return before.isSmartAlbum != after.isSmartAlbum ||
           (before.albumKind != after.albumKind && before.albumName == after.albumName);
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

PhotoComparer::PhotoComparer(const Snapshot &before, const Snapshot &after)
    : before_(before), after_(after),
      areAlbumsKnown_(!isUnknown(before, "albums") && !isUnknown(after, "albums")),
      // which lacks the same column
      isRollKnown_(!isUnknown(before, "isScreenshot") && !isUnknown(after, "isScreenshot"))
{
    for (const Snapshot *snapshot : {&before, &after})
        for (const CAlbumGroup &album : snapshot->assets.records().catalogue())
            if (isUntitled(album) && album.photos.empty())
                unread_.insert(keyOf(album));
    for (const ComparedFact &fact : comparedFacts())
        if (!isUnknown(before, fact.key) && !isUnknown(after, fact.key))
            facts_.push_back(&fact);
}

PhotoDifference PhotoComparer::compare(const Asset &before, const Asset &after) const
{
    const PhotoInSnapshot old(before, before_);
    const PhotoInSnapshot now(after, after_);
    PhotoDifference difference = {before, after, {}, {}, {}, {}};
    Facts &differing = difference.changedFields;
    std::copy_if(facts_.begin(), facts_.end(), std::back_inserter(differing),
                 [&](const ComparedFact *fact) { return !fact->isSame(old, now); });
    if (takeAway(differing, {"isDeleted"}) > 0) {
        takeAway(differing, {"trashed"});
        difference.changes.push_back(now.facts.isDeleted ? Change::Trashed : Change::Restored);
    } else if (areAlbumsKnown_ && old.facts.isDeleted == now.facts.isDeleted) {
        compareAlbums(old, now, difference);
    }
    if (takeEdit(old.facts, now.facts, differing))
        difference.changes.push_back(Change::Edited);
    if (!difference.addedTo.empty() || !difference.removedFrom.empty())
        difference.changes.push_back(Change::Moved);
    if (!differing.empty())
        difference.changes.push_back(Change::Changed);
    return difference;
}

void PhotoComparer::compareAlbums(const PhotoInSnapshot &before, const PhotoInSnapshot &after,
                                  PhotoDifference &difference) const
{
    const bool areRollsCompared = isRollKnown_ && isPlain(before.facts) && isPlain(after.facts);
    const auto isLeftOut = [&](const CAlbumGroup *album) {
        return isOfTheTable(*album) ? unread_.count(keyOf(*album)) > 0 : !areRollsCompared;
    };
    const auto take = [&](const Asset &others, const Asset &photo) {
        std::vector<const CAlbumGroup *> albums = missingFrom(others.albums(), photo.albums());
        albums.erase(std::remove_if(albums.begin(), albums.end(), isLeftOut), albums.end());
        return albums;
    };
    difference.addedTo = take(before.asset, after.asset);
    difference.removedFrom = take(after.asset, before.asset);
}

PhotoDifferences::PhotoDifferences(const PhotoComparer &comparer, std::vector<AssetMatch> matches)
    : comparer_(comparer), matches_(std::move(matches))
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
    const AssetList &before = comparer_->before().assets;
    const AssetList &after = comparer_->after().assets;
    if (match.before == noRecord)
        return {{}, after.at(match.after), {Change::New}, {}, {}, {}};
    if (match.after == noRecord)
        return {before.at(match.before), {}, {Change::Gone}, {}, {}, {}};
    return comparer_->compare(before.at(match.before), after.at(match.after));
}

PhotoComparison comparePhotos(const Snapshot &before, const Snapshot &after)
{
    std::vector<AssetMatch> matches = matchAssets(before.assets, after.assets);
    const auto inBoth = std::count_if(matches.begin(), matches.end(), [](const AssetMatch &match) {
        return match.before != noRecord && match.after != noRecord;
    });
    return {{{before, after}, std::move(matches)}, static_cast<std::size_t>(inBoth)};
}

const char *changeName(AlbumChange change)
{
    switch (change) {
    case AlbumChange::New:
        return translatable("new");
    case AlbumChange::Gone:
        return translatable("gone");
    case AlbumChange::Renamed:
        return translatable("renamed");
    case AlbumChange::Changed:
        break;
    }
    return translatable("changed");
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
        if (old == nullptr) {
            differences.push_back({AlbumChange::New, nullptr, &album});
            continue;
        }
        if (old->albumName != album.albumName)
            differences.push_back({AlbumChange::Renamed, old, &album});
        if (isOfAnotherKind(*old, album))
            differences.push_back({AlbumChange::Changed, old, &album});
    }
    for (const CAlbumGroup &album : before)
        if (isOfTheTable(album) && counterpart(second, album) == nullptr)
            differences.push_back({AlbumChange::Gone, &album, nullptr});
    return differences;
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
