#include "catalogue/photo_selection.h"

#include "catalogue/album_kinds.h"
#include "catalogue/burst_frames.h"
#include "catalogue/difference.h"

#include <sqlite3.h>

#include <algorithm>
#include <iterator>
#include <set>

namespace iosphoto::tool {

namespace {

bool isShownBy(const Asset &asset, const std::vector<const CAlbumGroup *> &albums)
{
    return std::any_of(asset.begin(), asset.end(), [&](const Appearance &appearance) {
        return std::find(albums.begin(), albums.end(), appearance.album) != albums.end();
    });
}

/// As names are compared: letter case aside, and whether an accent is a character of its own.
std::string folded(const QString &name)
{
    return name.normalized(QString::NormalizationForm_C).toCaseFolded().toStdString();
}

class NamePatterns
{
public:
    explicit NamePatterns(const std::vector<std::string> &patterns)
    {
        for (const std::string &pattern : patterns)
            patterns_.push_back(
                folded(QString::fromStdString(pattern).replace("[!", "[^"))); // as SQLite has it
    }

    bool fit(const Asset &asset) const
    {
        const CPhotoData &record = *asset.begin()->record;
        return patterns_.empty() || fitsAny(record.fileName) || fitsAny(record.sourceFileName);
    }

private:
    bool fitsAny(const QString &name) const
    {
        const std::string text = folded(name);
        return std::any_of(patterns_.begin(), patterns_.end(), [&](const std::string &pattern) {
            return sqlite3_strglob(pattern.c_str(), text.c_str()) == 0;
        });
    }

    std::vector<std::string> patterns_;
};

std::set<std::string> comparableUuids(const PhotoFilter &filter)
{
    std::set<std::string> uuids;
    for (const std::string &uuid : filter.uuids)
        uuids.insert(comparable(uuid));
    return uuids;
}

bool matchesTime(const PhotoFilter &filter, const Library &library, const Asset &asset)
{
    if (!filter.since && !filter.until && !filter.isUndated)
        return true;
    const auto date = library.dates().created(asset.firstRecord());
    const auto created = date ? unixTimeOf(*date) : std::nullopt;
    if (filter.isUndated)
        return !created;
    return created && (!filter.since || !(*created < *filter.since)) &&
           (!filter.until || !(*filter.until < *created));
}

bool matchesKinds(const PhotoFilter &filter, const Asset &asset)
{
    return filter.kinds.empty() ||
           std::any_of(filter.kinds.begin(), filter.kinds.end(),
                       [&](const PhotoKind *kind) { return kind->test(asset); });
}

bool matchesFlags(const PhotoFilter &filter, const Asset &asset)
{
    return (!filter.isDeleted || asset.has(&CPhotoData::isDeleted)) &&
           (!filter.isHidden || asset.has(&CPhotoData::isHidden)) &&
           (!filter.isFavorite || asset.has(&CPhotoData::isFavorite)) &&
           (!filter.isEdited || asset.has(&CPhotoData::isEdited));
}

bool matchesTrash(const PhotoFilter &filter, const Library &library, const Asset &asset)
{
    if (!filter.trashedWithinDays)
        return true;
    const auto stay = library.trash().stayOf(asset);
    const UnixTime since = {library.asOf().time.seconds -
                            *filter.trashedWithinDays * secondsPerDay};
    return stay && !(stay->trashed < since);
}

bool matches(const CAlbumGroup &album, const QString &wanted)
{
    const QString names[] = {album.albumName,
                             QString::fromStdString(kindName(album)),
                             QString::fromStdString(englishKind(album)),
                             QString::fromStdString(shownKind(album)),
                             QString::fromStdString(englishName(album)),
                             QString::fromStdString(shownName(album)),
                             QString::number(album.albumKind),
                             QString::fromStdString(album.albumUuid)};
    return std::any_of(std::begin(names), std::end(names), [&](const QString &name) {
        return !name.isEmpty() && name.compare(wanted, Qt::CaseInsensitive) == 0;
    });
}

} // namespace

std::vector<const CAlbumGroup *> matchingAlbums(const Library &library, const std::string &wanted)
{
    std::vector<const CAlbumGroup *> matching;
    for (const CAlbumGroup &album : library.albums())
        if (matches(album, QString::fromStdString(wanted)))
            matching.push_back(&album);
    return matching;
}

std::string missingUuid(const PhotoFilter &filter, const std::vector<const AssetList *> &lists)
{
    std::set<std::string> missing = comparableUuids(filter);
    for (const AssetList *const list : lists)
        for (const Asset asset : *list) {
            if (missing.empty())
                return "";
            missing.erase(comparable(asset.uuid()));
        }
    const auto found =
        std::find_if(filter.uuids.begin(), filter.uuids.end(),
                     [&](const std::string &uuid) { return missing.count(comparable(uuid)) > 0; });
    return found != filter.uuids.end() ? *found : "";
}

void takeMatching(const PhotoFilter &filter, const std::vector<const CAlbumGroup *> &albums,
                  const Library &library, const AssetList &assets, ChosenAssets &matching)
{
    const std::set<std::string> uuids = comparableUuids(filter);
    const NamePatterns names(filter.names);
    for (const Asset asset : assets) {
        if ((uuids.empty() || uuids.count(comparable(asset.uuid())) > 0) &&
            (filter.albums.empty() || isShownBy(asset, albums)) &&
            matchesTime(filter, library, asset) && matchesKinds(filter, asset) &&
            matchesFlags(filter, asset) && matchesTrash(filter, library, asset) &&
            names.fit(asset) && (!filter.isWanted || filter.isWanted(asset)))
            matching.push_back(asset);
    }
}

ChosenAssets choosePhotos(const PhotoChoice &choice, const std::vector<const CAlbumGroup *> &albums,
                          const Library &library, const AssetList &assets, const AssetList &leftOut)
{
    ChosenAssets chosen(assets, leftOut);
    if (choice.shown != Shown::LeftOut)
        takeMatching(choice.filter, albums, library, assets, chosen);
    if (!choice.hasFrames)
        BurstFrames::keepOneOfEach(chosen);
    if (choice.shown != Shown::Listed)
        takeMatching(choice.filter, albums, library, leftOut, chosen);
    sortPhotos(chosen, choice.sorting, library.trash(), library.dates());
    return chosen;
}

} // namespace iosphoto::tool
