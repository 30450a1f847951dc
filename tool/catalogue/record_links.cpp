#include "catalogue/record_links.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <tuple>
#include <vector>

namespace iosphoto::tool {

namespace {

/// Of a record that waits to be linked, the note is this bit and a part of its uuid.
constexpr std::uint64_t isWaiting = std::uint64_t(1) << 63;
/// The uuids are looked at slice by slice, so that no list of all has to be kept beside a
/// catalogue.
constexpr std::uint64_t slices = 8;

std::uint64_t sliceOf(std::uint64_t note)
{
    return note >> 32U & (slices - 1);
}

/// Some bits of a uuid, so mixed that the slices are alike.
std::uint64_t partOf(const std::string &uuid)
{
    std::uint64_t beginning = 0;
    std::uint64_t end = 0;
    const std::size_t size = std::min(uuid.size(), sizeof beginning);
    std::memcpy(&beginning, uuid.data(), size);
    std::memcpy(&end, uuid.data() + uuid.size() - size, size);
    constexpr std::uint64_t odd = 0x9E3779B97F4A7C15;
    return (beginning * odd + end) * odd;
}

std::uint64_t noteOf(const CPhotoData &record)
{
    return static_cast<std::uint64_t>(record.extraValue);
}

void setNote(CPhotoData &record, std::uint64_t note)
{
    record.extraValue = static_cast<std::int64_t>(note);
}

void link(CPhotoData &record, const RecordLink &link)
{
    setNote(record, link.next | (link.isFirst ? 0 : isNoFirstRecord));
}

/// A record whose asset is looked for. Parts of uuids tell most of them apart, which spares
/// fetching the uuids themselves from all over the memory.
struct Candidate
{
    std::uint32_t part;
    RecordNumber number;
    CPhotoData *record;
};

bool isEarlier(const Candidate &left, const Candidate &right)
{
    return std::tie(left.part, left.number) < std::tie(right.part, right.number);
}

bool hasSmallerUuid(const Candidate &left, const Candidate &right)
{
    return left.record->uuid < right.record->uuid;
}

template <typename Take>
void forEachRecord(const std::vector<CAlbumGroup> &catalogue, Take take)
{
    RecordNumber number = 0;
    for (const CAlbumGroup &album : catalogue)
        for (CPhotoData *const record : album.photos)
            take(*record, number++);
}

std::vector<Candidate> candidatesOf(std::uint64_t slice, std::size_t count,
                                    const std::vector<CAlbumGroup> &catalogue)
{
    std::vector<Candidate> candidates;
    candidates.reserve(count);
    forEachRecord(catalogue, [&](CPhotoData &record, RecordNumber number) {
        const std::uint64_t note = noteOf(record);
        if ((note & isWaiting) != 0 && sliceOf(note) == slice)
            candidates.push_back({static_cast<std::uint32_t>(note), number, &record});
    });
    return candidates;
}

using Candidates = std::vector<Candidate>::iterator;

/// Links candidates of one asset, which are in the order of their numbers.
/// @return how many of them have one before them.
std::size_t linkAsset(Candidates first, Candidates last)
{
    for (Candidates here = first; here != last; ++here) {
        const Candidates next = here + 1;
        link(*here->record, {here == first, next != last ? next->number : noRecord});
    }
    return static_cast<std::size_t>(last - first) - 1;
}

/// Whether two records of one uuid are of two rows all the same. Not all records know the key, but
/// all the file.
bool areOfTwoRows(const Candidate &left, const Candidate &right)
{
    constexpr std::int32_t noKey = -1;
    const CPhotoData &one = *left.record;
    const CPhotoData &other = *right.record;
    return one.fileName != other.fileName || one.directory != other.directory ||
           (one.assetId != other.assetId && one.assetId != noKey && other.assetId != noKey);
}

/// Links candidates of a uuid that more than one row has, or of none.
std::size_t linkRows(Candidates first, Candidates last)
{
    const auto isBefore = [](const Candidate &left, const Candidate &right) {
        const auto rank = [](const CPhotoData &record) {
            return std::tie(record.fileName, record.directory, record.assetId);
        };
        return rank(*left.record) < rank(*right.record);
    };
    std::sort(first, last, isBefore);
    std::size_t followers = 0;
    while (first != last) {
        const Candidates end = std::adjacent_find(first, last, areOfTwoRows);
        const Candidates next = end != last ? end + 1 : last;
        std::sort(first, next, isEarlier);
        followers += linkAsset(first, next);
        first = next;
    }
    return followers;
}

/// Links candidates of one uuid or without one, which are in the order of their numbers.
std::size_t linkUuid(Candidates first, Candidates last)
{
    return std::adjacent_find(first, last, areOfTwoRows) == last ? linkAsset(first, last)
                                                                 : linkRows(first, last);
}

/// Links candidates whose uuids have the same part, and so are mostly the same, and which are in
/// the order of their numbers.
/// @return how many of them have one of the same asset before them.
std::size_t linkAlike(Candidates first, Candidates last)
{
    if (!std::is_sorted(first, last, hasSmallerUuid))
        std::stable_sort(first, last, hasSmallerUuid);
    std::size_t followers = 0;
    while (first != last) {
        const Candidates next = std::find_if(first, last, [&](const Candidate &candidate) {
            return candidate.record->uuid != first->record->uuid;
        });
        followers += linkUuid(first, next);
        first = next;
    }
    return followers;
}

/// The same of all of a slice.
std::size_t linkSlice(std::vector<Candidate> candidates)
{
    std::sort(candidates.begin(), candidates.end(), isEarlier);
    std::size_t followers = 0;
    for (auto first = candidates.begin(); first != candidates.end();) {
        const auto last = std::find_if(first, candidates.end(), [&](const Candidate &candidate) {
            return candidate.part != first->part;
        });
        followers += linkAlike(first, last);
        first = last;
    }
    return followers;
}

} // namespace

std::size_t linkAssets(const std::vector<CAlbumGroup> &catalogue)
{
    std::size_t assets = 0;
    std::array<std::size_t, slices> counts = {};
    forEachRecord(catalogue, [&](CPhotoData &record, RecordNumber /*number*/) {
        ++assets;
        setNote(record, partOf(record.uuid) | isWaiting);
        ++counts[sliceOf(noteOf(record))];
    });
    for (std::uint64_t slice = 0; slice < slices; ++slice)
        assets -= linkSlice(candidatesOf(slice, counts[slice], catalogue));
    return assets;
}

void linkNone(const std::vector<CAlbumGroup> &catalogue)
{
    forEachRecord(catalogue, [](CPhotoData &record, RecordNumber /*number*/) {
        link(record, {true, noRecord});
    });
}

} // namespace iosphoto::tool
