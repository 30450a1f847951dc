#include "catalogue/photo_order.h"

#include "catalogue/trash_stay.h"
#include "failure.h"
#include "language/said.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace iosphoto::tool {

namespace {

struct OrderName
{
    const char *name;
    PhotoOrder order;
};

constexpr OrderName names[] = {
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

double rank(const Asset &asset, PhotoOrder order, const Library &library)
{
    const CPhotoData &record = *asset.begin()->record;
    switch (order) {
    case PhotoOrder::Size:
        return static_cast<double>(record.fileSize);
    case PhotoOrder::Duration:
        return longest(asset);
    case PhotoOrder::Added:
        return record.addedTime;
    case PhotoOrder::Modified:
        return record.modifiedTime;
    case PhotoOrder::Deleted: {
        const auto stay = trashStay(library, asset);
        return stay ? static_cast<double>(stay->trashed) : none;
    }
    default:
        return record.createdTime;
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

} // namespace

PhotoOrder orderNamed(const std::string &name)
{
    std::string known;
    for (const OrderName &row : names) {
        if (name == row.name)
            return row.order;
        known += (known.empty() ? "" : ", ") + std::string(row.name);
    }
    throw Failure(WrongUsage, said("--sort: there is no order '{0}'; there are {1}", name, known));
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

} // namespace iosphoto::tool
