#ifndef IOSPHOTO_TOOL_RECORD_LINKS_H
#define IOSPHOTO_TOOL_RECORD_LINKS_H

#include "catalogue/records.h"

namespace iosphoto::tool {

/// What leads from one record of an asset to the next. It stands in the record itself, in the slot
/// for the host's use, and so takes no memory.
struct RecordLink
{
    bool isFirst;      ///< of its asset
    RecordNumber next; ///< noRecord behind the last
};

/// What is noted in a record beside the number of the next.
constexpr std::uint64_t isNoFirstRecord = std::uint64_t(1) << 32;

/// Of a record that was linked.
inline RecordLink linkOf(const CPhotoData &record)
{
    const auto note = static_cast<std::uint64_t>(record.extraValue);
    return {(note & isNoFirstRecord) == 0, static_cast<RecordNumber>(note)};
}

/// Links the records of each asset of a catalogue, which are those of the same uuid, in the order
/// of their numbers. Where a database has a uuid twice, or none, file and key tell the assets
/// apart. To link them again changes nothing.
/// @return how many assets there are.
std::size_t linkAssets(const std::vector<CAlbumGroup> &catalogue);

/// Makes each record an asset.
void linkNone(const std::vector<CAlbumGroup> &catalogue);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_RECORD_LINKS_H
