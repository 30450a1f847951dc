/// The columns of each pass's rows, in the order in which all its statements select them. A variant
/// may end before the list does; what it leaves out reads as NULL.
#ifndef IOSPHOTO_ROW_COLUMNS_H
#define IOSPHOTO_ROW_COLUMNS_H

#include <cstddef>
#include <string_view>

namespace iosphoto {

constexpr const char *cameraRollColumns[] = {
    "ZTHUMBNAILINDEX",
    "ZFILENAME",
    "ZDIRECTORY",
    "ZORIGINALFILENAME",
    "ZWIDTH",
    "ZHEIGHT",
    "ZORIGINALFILESIZE",
    "ZDURATION",
    "ZDATECREATED",
    "ZMODIFICATIONDATE",
    "ZADDEDDATE",
    "ZVIDEOCPDURATIONTIMESCALE",
    "ZUUID",
    "albumuuid",
    "ZTRASHEDSTATE",
    "ZUNIFORMTYPEIDENTIFIER",
    "ZTRASHEDDATE",
    "ZKINDSUBTYPE",
    "ZAVALANCHEPICKTYPE",
    "ZAVALANCHEUUID",
    "ZEMBEDDEDTHUMBNAILHEIGHT",
    "Z_PK",
    "ZSAVEDASSETTYPE",
    "ZCREATORBUNDLEID",
    "ZFAVORITE",
    "ZCAMERACAPTUREDEVICE",
    "ZHASADJUSTMENTS",
    "ZADJUSTMENTSSTATE",
    "ZEDITORBUNDLEID",
    "ZHIDDEN",
    "ZDEPTHSTATES",
    "ZPLAYBACKSTYLE",
    "ZDEPTHTYPE",
    "ZPACKEDBADGEATTRIBUTES",
};

constexpr const char *photoLibraryColumns[] = {
    "ZTHUMBNAILINDEX", "ZFILENAME",         "ZDIRECTORY",   "ZORIGINALFILENAME", "ZWIDTH",
    "ZHEIGHT",         "ZORIGINALFILESIZE", "ZDATECREATED", "ZMODIFICATIONDATE", "ZADDEDDATE",
    "ZUUID",           "albumuuid",
};

constexpr const char *userAlbumColumns[] = {
    "Z_ENT",  "Z_OPT", "ZCACHEDCOUNT", "ZCACHEDPHOTOSCOUNT", "ZCACHEDVIDEOSCOUNT", "ZUUID",
    "ZTITLE", "ZKIND", "Z_NAME",       "ZTRASHEDSTATE",      "ZTRASHEDDATE",
};

constexpr const char *albumContentsColumns[] = {
    "ZTHUMBNAILINDEX",
    "ZFILENAME",
    "ZDIRECTORY",
    "ZORIGINALFILENAME",
    "ZWIDTH",
    "ZHEIGHT",
    "ZORIGINALFILESIZE",
    "ZDATECREATED",
    "ZMODIFICATIONDATE",
    "ZADDEDDATE",
    "ZVIDEOCPDURATIONTIMESCALE",
    "ZDURATION",
    "ZUUID",
    "albumuuid",
    "ZCLOUDASSETGUID",
    "ZHASADJUSTMENTS",
    "ZADJUSTMENTSSTATE",
    "ZEDITORBUNDLEID",
    "ZDEPTHSTATES",
    "ZCAMERACAPTUREDEVICE",
    "ZSAVEDASSETTYPE",
    "ZKINDSUBTYPE",
    "ZDEPTHTYPE",
};

/// For a column that a pass does without; reads as NULL.
constexpr int absent = -1;

/// The place of a column in its list, worked out by the compiler, which rejects unknown names.
template <std::size_t count>
constexpr int column(const char *const (&columns)[count], std::string_view name)
{
    for (std::size_t i = 0; i < count; ++i)
        if (name == columns[i])
            return static_cast<int>(i);
    throw "no such column";
}

/// Whether a list begins with these names, in this order.
template <std::size_t count, std::size_t beginningCount>
constexpr bool startsWith(const char *const (&columns)[count],
                          const char *const (&beginning)[beginningCount])
{
    for (std::size_t i = 0; i < beginningCount; ++i)
        if (std::string_view(columns[i]) != beginning[i])
            return false;
    return beginningCount <= count;
}

} // namespace iosphoto

#endif // IOSPHOTO_ROW_COLUMNS_H
