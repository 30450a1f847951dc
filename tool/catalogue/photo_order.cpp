#include "catalogue/photo_order.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>

namespace iosphoto::tool {

namespace {

struct OrderName
{
    const char *name;
    PhotoOrder order;
    const char *field;
};

constexpr OrderName namedOrders[] = {
    {"date", PhotoOrder::Date, "created"},       {"name", PhotoOrder::Name, "fileName"},
    {"size", PhotoOrder::Size, "fileSize"},      {"duration", PhotoOrder::Duration, "duration"},
    {"added", PhotoOrder::Added, "added"},       {"modified", PhotoOrder::Modified, "modified"},
    {"deleted", PhotoOrder::Deleted, "trashed"},
};

constexpr double none = -std::numeric_limits<double>::infinity();

double longest(const Asset &asset)
{
    double duration = 0;
    for (const Appearance &appearance : asset)
        duration = std::max<double>(duration, appearance.record->duration);
    return duration;
}

/// What records do not tell.
struct Facts
{
    const Trash &trash;
    const KnownDates &dates;
};

double rank(double number)
{
    return std::isnan(number) ? none : number;
}

double rank(const std::optional<CoreDataTime> &time)
{
    return time ? rank(time->seconds) : none;
}

double rank(const Asset &asset, PhotoOrder order, const Facts &facts)
{
    const CPhotoData &record = asset.firstRecord();
    switch (order) {
    case PhotoOrder::Size:
        return static_cast<double>(record.fileSize);
    case PhotoOrder::Duration:
        return rank(longest(asset));
    case PhotoOrder::Added:
        return rank(facts.dates.added(record));
    case PhotoOrder::Modified:
        return rank(facts.dates.modified(record));
    case PhotoOrder::Deleted: {
        const auto stay = facts.trash.stayOf(asset);
        return stay ? static_cast<double>(stay->trashed.seconds) : none;
    }
    default:
        return rank(facts.dates.created(record));
    }
}

template <typename Key>
struct Ranked
{
    Key key;
    RecordNumber place;
    RecordNumber photo;
};

/// Sorts by keys, which are made once for each photo. Where few photos are wanted no more than
/// those are kept, in a heap with the last of them on top.
template <typename Key, typename KeyOf, typename IsLess>
void sortByKeys(ChosenAssets &photos, const PhotoSorting &sorting, KeyOf keyOf, IsLess isLess)
{
    using Entry = Ranked<Key>;
    const auto isInOrder = [&](const Entry &left, const Entry &right) {
        if (isLess(left.key, right.key) || isLess(right.key, left.key))
            return isLess(left.key, right.key);
        return left.place < right.place;
    };
    const auto isBefore = [&](const Entry &left, const Entry &right) {
        return sorting.isReversed ? isInOrder(right, left) : isInOrder(left, right);
    };
    const bool isPart = sorting.most < photos.size();
    std::vector<Entry> first;
    first.reserve(std::min(sorting.most, photos.size()));
    for (std::size_t i = 0; i < photos.size(); ++i) {
        Entry entry = {keyOf(photos[i]), static_cast<RecordNumber>(i), photos.numbers()[i]};
        if (first.size() == sorting.most) {
            if (!isBefore(entry, first.front()))
                continue;
            std::pop_heap(first.begin(), first.end(), isBefore);
            first.pop_back();
        }
        first.push_back(std::move(entry));
        if (isPart)
            std::push_heap(first.begin(), first.end(), isBefore);
    }
    std::sort(first.begin(), first.end(), isBefore);
    photos.numbers().resize(first.size());
    std::transform(first.begin(), first.end(), photos.numbers().begin(),
                   [](const Entry &entry) { return entry.photo; });
}

/// Finds the runs that are sorted already and merges them. A run waits until those behind it are at
/// least half as long, so that a long one is not merged with each short one.
template <typename IsLess>
void mergeRuns(std::vector<RecordNumber> &numbers, IsLess isLess)
{
    std::vector<std::vector<RecordNumber>::iterator> starts;
    auto end = numbers.begin();
    const auto mergeLastTwo = [&] {
        const auto middle = starts.back();
        starts.pop_back();
        std::inplace_merge(starts.back(), middle, end, isLess);
    };
    const auto isLastLong = [&] {
        return starts.size() > 1 && 2 * (end - starts.back()) > starts.back() - *(starts.end() - 2);
    };
    while (end != numbers.end()) {
        starts.push_back(end);
        end = std::is_sorted_until(end, numbers.end(), isLess);
        while (isLastLong())
            mergeLastTwo();
    }
    while (starts.size() > 1)
        mergeLastTwo();
}

/// Sorts by date without keys, which would take memory beside a catalogue that is just as large as
/// it was when it was built. Quick since photos come in a few runs of sorted ones, one an album.
void sortRunsByDate(ChosenAssets &photos, const Facts &facts)
{
    std::vector<RecordNumber> &numbers = photos.numbers();
    const auto date = [&](RecordNumber photo) {
        return rank(photos.at(photo), PhotoOrder::Date, facts);
    };
    const auto isNewer = [&](RecordNumber left, RecordNumber right) {
        return date(left) > date(right);
    };
    mergeRuns(numbers, isNewer);
}

} // namespace

std::optional<PhotoOrder> orderNamed(const std::string &name)
{
    const auto *const found =
        std::find_if(std::begin(namedOrders), std::end(namedOrders),
                     [&](const OrderName &order) { return name == order.name; });
    return found != std::end(namedOrders) ? std::optional(found->order) : std::nullopt;
}

const char *fieldOf(PhotoOrder order)
{
    return std::find_if(std::begin(namedOrders), std::end(namedOrders),
                        [&](const OrderName &name) { return name.order == order; })
        ->field;
}

std::vector<std::string> orderNames()
{
    std::vector<std::string> names;
    for (const OrderName &order : namedOrders)
        names.emplace_back(order.name);
    return names;
}

void sortPhotos(ChosenAssets &photos, const PhotoSorting &sorting, const Trash &trash,
                const KnownDates &dates)
{
    const Facts facts = {trash, dates};
    if (sorting.order == PhotoOrder::Name) {
        sortByKeys<QString>(
            photos, sorting,
            [](const Asset &asset) { return asset.firstRecord().fileName.toCaseFolded(); },
            std::less<>());
    } else if (sorting.order == PhotoOrder::Date && sorting.most >= photos.size()) {
        sortRunsByDate(photos, facts);
        if (sorting.isReversed)
            std::reverse(photos.numbers().begin(), photos.numbers().end());
    } else {
        sortByKeys<double>(
            photos, sorting, [&](const Asset &asset) { return rank(asset, sorting.order, facts); },
            std::greater<>());
    }
}

} // namespace iosphoto::tool
