#include "catalogue/photo_selection.h"

#include "catalogue/album_kinds.h"
#include "catalogue/burst_frames.h"
#include "catalogue/difference.h"

#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
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
    if (!filter.since && !filter.until)
        return true;
    const auto date = library.dates().created(*asset.begin()->record);
    const auto created = date ? unixTimeOf(*date) : std::nullopt;
    return created && (!filter.since || !(*created < *filter.since)) &&
           (!filter.until || !(*filter.until < *created));
}

bool matchesKinds(const PhotoFilter &filter, const Asset &asset)
{
    return filter.kinds.empty() || std::any_of(filter.kinds.begin(), filter.kinds.end(),
                                               [&](const KindTest &test) { return test(asset); });
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

struct OrderName
{
    const char *name;
    PhotoOrder order;
};

constexpr OrderName namedOrders[] = {
    {"date", PhotoOrder::Date},       {"name", PhotoOrder::Name},
    {"size", PhotoOrder::Size},       {"duration", PhotoOrder::Duration},
    {"added", PhotoOrder::Added},     {"modified", PhotoOrder::Modified},
    {"deleted", PhotoOrder::Deleted},
};

constexpr double none = -std::numeric_limits<double>::infinity();

double longest(const Asset &asset)
{
    double duration = 0;
    for (const Appearance &appearance : asset)
        duration = std::max<double>(duration, appearance.record->duration);
    return duration;
}

double rank(const std::optional<CoreDataTime> &time)
{
    return time ? time->seconds : none;
}

double rank(const Asset &asset, PhotoOrder order, const Library &library)
{
    const CPhotoData &record = *asset.begin()->record;
    switch (order) {
    case PhotoOrder::Size:
        return static_cast<double>(record.fileSize);
    case PhotoOrder::Duration:
        return longest(asset);
    case PhotoOrder::Added:
        return rank(library.dates().added(record));
    case PhotoOrder::Modified:
        return rank(library.dates().modified(record));
    case PhotoOrder::Deleted: {
        const auto stay = library.trash().stayOf(asset);
        return stay ? static_cast<double>(stay->trashed.seconds) : none;
    }
    default:
        return rank(library.dates().created(record));
    }
}

/// Sorts by a key that is made once for each photo.
template <typename KeyOf, typename Before>
void sortBy(std::vector<Asset> &photos, KeyOf keyOf, Before before)
{
    std::vector<std::pair<decltype(keyOf(photos.front())), Asset>> keyed;
    keyed.reserve(photos.size());
    for (const Asset &photo : photos)
        keyed.emplace_back(keyOf(photo), photo);
    std::stable_sort(keyed.begin(), keyed.end(), [&](const auto &left, const auto &right) {
        return before(left.first, right.first);
    });
    std::transform(keyed.begin(), keyed.end(), photos.begin(),
                   [](const auto &entry) { return entry.second; });
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
        for (std::size_t i = 0; i < list->size() && !missing.empty(); ++i)
            missing.erase(comparable((*list)[i].uuid()));
    const auto found =
        std::find_if(filter.uuids.begin(), filter.uuids.end(),
                     [&](const std::string &uuid) { return missing.count(comparable(uuid)) > 0; });
    return found != filter.uuids.end() ? *found : "";
}

std::vector<Asset> matchingPhotos(const PhotoFilter &filter,
                                  const std::vector<const CAlbumGroup *> &albums,
                                  const Library &library, const AssetList &assets)
{
    const std::set<std::string> uuids = comparableUuids(filter);
    const NamePatterns names(filter.names);
    std::vector<Asset> matching;
    for (std::size_t i = 0; i < assets.size(); ++i) {
        const Asset asset = assets[i];
        if ((uuids.empty() || uuids.count(comparable(asset.uuid())) > 0) &&
            (filter.albums.empty() || isShownBy(asset, albums)) &&
            matchesTime(filter, library, asset) && matchesKinds(filter, asset) &&
            matchesFlags(filter, asset) && matchesTrash(filter, library, asset) &&
            names.fit(asset) && (!filter.isWanted || filter.isWanted(asset)))
            matching.push_back(asset);
    }
    return matching;
}

std::optional<PhotoOrder> orderNamed(const std::string &name)
{
    const auto *const found =
        std::find_if(std::begin(namedOrders), std::end(namedOrders),
                     [&](const OrderName &order) { return name == order.name; });
    return found != std::end(namedOrders) ? std::optional(found->order) : std::nullopt;
}

std::vector<std::string> orderNames()
{
    std::vector<std::string> names;
    for (const OrderName &order : namedOrders)
        names.emplace_back(order.name);
    return names;
}

void sortPhotos(std::vector<Asset> &photos, PhotoOrder order, const Library &library)
{
    if (order == PhotoOrder::Name) {
        sortBy(
            photos,
            [](const Asset &asset) { return asset.begin()->record->fileName.toCaseFolded(); },
            std::less<>());
        return;
    }
    const auto key = [&](const Asset &asset) {
        const double number = rank(asset, order, library);
        return std::isnan(number) ? none : number;
    };
    sortBy(photos, key, std::greater<>());
}

std::vector<Asset> choosePhotos(const PhotoChoice &choice,
                                const std::vector<const CAlbumGroup *> &albums,
                                const Library &library, const AssetList &assets,
                                const AssetList &leftOut)
{
    std::vector<Asset> chosen;
    if (choice.shown != Shown::LeftOut)
        chosen = matchingPhotos(choice.filter, albums, library, assets);
    if (!choice.hasFrames)
        chosen = BurstFrames::oneOfEach(chosen);
    if (choice.shown != Shown::Listed) {
        const auto others = matchingPhotos(choice.filter, albums, library, leftOut);
        chosen.insert(chosen.end(), others.begin(), others.end());
    }
    sortPhotos(chosen, choice.order, library);
    if (choice.isReversed)
        std::reverse(chosen.begin(), chosen.end());
    if (choice.limit && *choice.limit < chosen.size())
        chosen.erase(chosen.begin() + static_cast<std::ptrdiff_t>(*choice.limit), chosen.end());
    return chosen;
}

} // namespace iosphoto::tool
