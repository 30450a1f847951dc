#ifndef IOSPHOTO_TOOL_RECORDS_H
#define IOSPHOTO_TOOL_RECORDS_H

#include "ios_photo.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace iosphoto::tool {

/// A record of an asset in an album.
struct Appearance
{
    const CPhotoData *record;
    const CAlbumGroup *album; ///< null for a photo that no album shows
    std::size_t position;     ///< in the album, or among such photos, from 0
};

/// The number of a record among all of a catalogue, from 0, album after album. Half as large as a
/// pointer: there may be millions.
using RecordNumber = std::uint32_t;

/// That there is no such record.
constexpr RecordNumber noRecord = ~RecordNumber(0);

/// All records of a catalogue, by number.
class Records
{
public:
    /// Throws std::length_error for more records than there are numbers.
    /// @param catalogue  has to outlive this
    /// @param areShown  whether its albums are such, or only hold photos that no album shows
    explicit Records(const std::vector<CAlbumGroup> &catalogue, bool areShown = true);

    const std::vector<CAlbumGroup> &catalogue() const { return *catalogue_; }
    RecordNumber count() const { return starts_.back(); }
    Appearance operator[](RecordNumber number) const
    {
        const auto [album, position] = placeOf(number);
        return {album->photos[position], areShown_ ? album : nullptr, position};
    }
    /// To change what it says.
    CPhotoData &record(RecordNumber number) const
    {
        const auto [album, position] = placeOf(number);
        return *album->photos[position];
    }

private:
    std::pair<const CAlbumGroup *, std::size_t> placeOf(RecordNumber number) const
    {
        const auto next = std::upper_bound(starts_.begin(), starts_.end(), number);
        const auto index = static_cast<std::size_t>(next - starts_.begin() - 1);
        return {&(*catalogue_)[index], number - starts_[index]};
    }

    const std::vector<CAlbumGroup> *catalogue_;
    bool areShown_;
    std::vector<RecordNumber> starts_; ///< number of each album's first record; and the end
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_RECORDS_H
