#include "catalogue/asset_matching.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <tuple>
#include <utility>

namespace iosphoto::tool {

namespace {

/// What a photo is matched by.
struct Key
{
    bool isUuid;
    std::string text;
    RecordNumber asset;

    bool operator<(const Key &other) const
    {
        return std::tie(isUuid, text) < std::tie(other.isUuid, other.text);
    }
};

Key keyOf(const Asset &asset)
{
    if (!asset.uuid().empty())
        return {true, comparable(asset.uuid()), asset.number()};
    return {false, asset.path(), asset.number()};
}

/// The assets of a list, put into buckets by their keys: the keys of all assets at a time would
/// take too much memory. What is in one bucket is sorted, so no choice of uuids makes it slow.
class Buckets
{
public:
    Buckets(const AssetList &assets, std::size_t count)
        : assets_(assets), starts_(count + 1, 0), numbers_(assets.size())
    {
        for (const Asset asset : assets)
            ++starts_[bucketOf(asset) + 1];
        for (std::size_t i = 1; i < starts_.size(); ++i)
            starts_[i] += starts_[i - 1];
        std::vector<RecordNumber> ends = starts_;
        for (const Asset asset : assets)
            numbers_[ends[bucketOf(asset)]++] = asset.number();
    }

    std::size_t count() const { return starts_.size() - 1; }

    /// The keys of a bucket in order; those of a uuid that a database has twice by their paths.
    std::vector<Key> sortedKeys(std::size_t bucket) const
    {
        std::vector<Key> keys;
        for (RecordNumber i = starts_[bucket]; i < starts_[bucket + 1]; ++i)
            keys.push_back(keyOf(assets_.at(numbers_[i])));
        const auto pathOf = [this](const Key &key) { return assets_.at(key.asset).path(); };
        std::stable_sort(keys.begin(), keys.end(), [&](const Key &left, const Key &right) {
            return left < right || (!(right < left) && pathOf(left) < pathOf(right));
        });
        return keys;
    }

private:
    std::size_t bucketOf(const Asset &asset) const
    {
        return std::hash<std::string>()(keyOf(asset).text) % count();
    }

    const AssetList &assets_;
    std::vector<RecordNumber> starts_; ///< of each bucket, in the numbers; and the end
    std::vector<RecordNumber> numbers_;
};

void matchKeys(const std::vector<Key> &before, const std::vector<Key> &after,
               std::vector<AssetMatch> &found)
{
    auto old = before.begin();
    auto now = after.begin();
    while (old != before.end() || now != after.end()) {
        const bool isOld = now == after.end() || (old != before.end() && !(*now < *old));
        const bool isNow = old == before.end() || (now != after.end() && !(*old < *now));
        AssetMatch match = {noRecord, noRecord};
        if (isOld)
            match.before = old++->asset;
        if (isNow)
            match.after = now++->asset;
        found.push_back(match);
    }
}

} // namespace

std::vector<AssetMatch> matchAssets(const AssetList &before, const AssetList &after)
{
    constexpr std::size_t assetsOfABucket = 16;
    const std::size_t count = std::max(before.size(), after.size()) / assetsOfABucket + 1;
    std::vector<AssetMatch> found;
    {
        const Buckets first(before, count);
        const Buckets second(after, count);
        found.reserve(std::max(before.size(), after.size()));
        for (std::size_t i = 0; i < count; ++i)
            matchKeys(first.sortedKeys(i), second.sortedKeys(i), found);
    }
    std::sort(found.begin(), found.end(), [](const AssetMatch &left, const AssetMatch &right) {
        // No record is the largest number, so what is gone comes last.
        return std::tie(left.after, left.before) < std::tie(right.after, right.before);
    });
    return found;
}

std::string comparable(const std::string &uuid)
{
    std::string digits;
    digits.reserve(uuid.size());
    for (const char character : uuid)
        if (character != '-')
            digits += static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
    return digits;
}

} // namespace iosphoto::tool
