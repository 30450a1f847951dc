#include "catalogue/left_out_reasons.h"

#include "text/translate.h"

namespace iosphoto::tool {

namespace {

struct Names
{
    const char *machine;
    const char *words;
};

// clang-format off
constexpr Names photoNames[] = {
    {"notSelected",         translatable("not selected by kind or album")},
    {"sharedAlbum",         translatable("of a shared album")},
    {"referencedElsewhere", translatable("referenced elsewhere")},
    {"trashedTooLong",      translatable("in the trash for 30 days")},
    {"trashedWithoutDate",  translatable("in the trash without a date")},
    {"withoutFileName",     translatable("without a file name")},
    {"burstFrame",          translatable("hidden or deleted frame of a burst")},
    {"repeated",            translatable("with the uuid and file of another")},
    {"notRead",             translatable("not read")},
};
constexpr Names albumNames[] = {
    {"shared",       translatable("shared")},
    {"project",      translatable("project")},
    {"folder",       translatable("folder")},
    {"system",       translatable("of the system")},
    {"trashed",      translatable("in the trash")},
    {"withoutTitle", translatable("without a title")},
    {"unknownTitle", translatable("of unknown title")},
    {"empty",        translatable("empty")},
    {"repeated",     translatable("without a uuid of its own")},
    {"notRead",      translatable("not read")},
};
// clang-format on
static_assert(std::size(photoNames) == photoReasonCount);
static_assert(std::size(albumNames) == albumReasonCount);

} // namespace

const char *machineName(PhotoReason reason)
{
    return photoNames[static_cast<std::size_t>(reason)].machine;
}

const char *machineName(AlbumReason reason)
{
    return albumNames[static_cast<std::size_t>(reason)].machine;
}

const char *words(PhotoReason reason)
{
    return photoNames[static_cast<std::size_t>(reason)].words;
}

const char *words(AlbumReason reason)
{
    return albumNames[static_cast<std::size_t>(reason)].words;
}

} // namespace iosphoto::tool
