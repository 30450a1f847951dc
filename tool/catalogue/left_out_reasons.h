/// Why a row of the database is in no album of the catalogue.
#ifndef IOSPHOTO_TOOL_LEFT_OUT_REASONS_H
#define IOSPHOTO_TOOL_LEFT_OUT_REASONS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <numeric>

namespace iosphoto::tool {

/// Of a row of the asset table. Where several fit, the first one counts.
enum class PhotoReason {
    NotSelected, ///< of an entity that is no asset, without additional attributes, or, up to iOS 7,
                 ///< in no album that the statements ask for
    OfSharedAlbum,       ///< stored for a shared album, not in the library
    ReferencedElsewhere, ///< saved in another way than those that the catalogue takes
    TrashedTooLong,      ///< for 30 days at the moment that the library is read as of
    TrashedWithoutDate,  ///< the device removes it at a time that nobody knows
    WithoutFileName,
    BurstFrame, ///< one that does not stand for its burst, and is hidden or deleted
    Repeated,   ///< with the uuid and path of a row that is shown, without a key to tell them by
    NotRead,    ///< the reading ended before
};
constexpr std::size_t photoReasonCount = static_cast<std::size_t>(PhotoReason::NotRead) + 1;

/// Of a row of the album table, likewise.
enum class AlbumReason {
    Shared,
    Project,
    Folder,
    System, ///< one that the system keeps for itself, such as that of an import
    Trashed,
    WithoutTitle, ///< null, which is another thing than an empty one
    UnknownTitle, ///< the table has none
    Empty,        ///< a photo stream that shows no photo
    Repeated,     ///< one without a uuid, or with that of another
    NotRead,
};
constexpr std::size_t albumReasonCount = static_cast<std::size_t>(AlbumReason::NotRead) + 1;

/// For machines, such as "sharedAlbum".
/// @{
const char *machineName(PhotoReason reason);
const char *machineName(AlbumReason reason);
/// @}

/// For people, such as "of a shared album"; to be translated.
/// @{
const char *words(PhotoReason reason);
const char *words(AlbumReason reason);
/// @}

/// How many rows of a table there are, and what became of them.
template <typename Reason, std::size_t reasonCount>
struct RowAccount
{
    std::int64_t rows = 0;
    std::int64_t listed = 0;
    std::array<std::int64_t, reasonCount> leftOut = {}; ///< by reason

    std::int64_t leftOutFor(Reason reason) const
    {
        return leftOut[static_cast<std::size_t>(reason)];
    }
    /// The rows that are neither listed nor left out for a reason.
    std::int64_t unexplained() const
    {
        return std::accumulate(leftOut.begin(), leftOut.end(), rows - listed, std::minus<>());
    }
    void leaveOut(Reason reason) { ++leftOut[static_cast<std::size_t>(reason)]; }
    bool operator==(const RowAccount &other) const
    {
        return rows == other.rows && listed == other.listed && leftOut == other.leftOut;
    }
};

using PhotoAccount = RowAccount<PhotoReason, photoReasonCount>;
using AlbumAccount = RowAccount<AlbumReason, albumReasonCount>;

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LEFT_OUT_REASONS_H
