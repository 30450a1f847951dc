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
      areAlbumsKnown_(!isUnknown(before, "albums") && !isUnknown(after, "albums"))
{
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
        difference.addedTo = albumsMissingFrom(before.albums(), after.albums());
        difference.removedFrom = albumsMissingFrom(after.albums(), before.albums());
    }
    if (takeEdit(old.facts, now.facts, differing))
        difference.changes.push_back(Change::Edited);
    if (!difference.addedTo.empty() || !difference.removedFrom.empty())
        difference.changes.push_back(Change::Moved);
    if (!differing.empty())
        difference.changes.push_back(Change::Changed);
    return difference;
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
