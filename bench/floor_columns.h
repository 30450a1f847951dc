/// What the floor reads from the rows of each visit: every column that a catalogue needs, as what
/// it needs it, once. Columns that the iOS 15 statements fill with a constant are left out, and so
/// are those that only other kinds of album need than the generated ones.
#ifndef IOSPHOTO_BENCH_FLOOR_COLUMNS_H
#define IOSPHOTO_BENCH_FLOOR_COLUMNS_H

#include "model/passes/row_columns.h"

#include <sqlite3.h>

namespace iosphoto::bench {

template <int... columns>
void readInts(sqlite3_stmt *row)
{
    (sqlite3_column_int(row, columns), ...);
}

template <int... columns>
void readLongs(sqlite3_stmt *row)
{
    (sqlite3_column_int64(row, columns), ...);
}

template <int... columns>
void readReals(sqlite3_stmt *row)
{
    (sqlite3_column_double(row, columns), ...);
}

template <int... columns>
void readTexts(sqlite3_stmt *row)
{
    (sqlite3_column_text(row, columns), ...);
}

inline void readEntityNumber(sqlite3_stmt *row)
{
    readInts<0>(row);
}

inline void readAssetEntityNumbers(sqlite3_stmt *row)
{
    readInts<0, 1>(row);
}

inline void readCameraRollColumns(sqlite3_stmt *row)
{
    constexpr auto at = [](std::string_view name) { return column(cameraRollColumns, name); };
    readInts<at("ZTHUMBNAILINDEX"), at("ZWIDTH"), at("ZHEIGHT"), at("ZVIDEOCPDURATIONTIMESCALE"),
             at("ZKINDSUBTYPE"), at("ZEMBEDDEDTHUMBNAILHEIGHT"), at("Z_PK"), at("ZSAVEDASSETTYPE"),
             at("ZFAVORITE"), at("ZCAMERACAPTUREDEVICE"), at("ZHASADJUSTMENTS"), at("ZHIDDEN"),
             at("ZPLAYBACKSTYLE"), at("ZDEPTHTYPE"), at("ZPACKEDBADGEATTRIBUTES")>(row);
    readLongs<at("ZORIGINALFILESIZE"), at("ZDATECREATED"), at("ZMODIFICATIONDATE"),
              at("ZADDEDDATE")>(row);
    readReals<at("ZDURATION")>(row);
    readTexts<at("ZFILENAME"), at("ZDIRECTORY"), at("ZORIGINALFILENAME"), at("ZUUID"),
              at("albumuuid"), at("ZUNIFORMTYPEIDENTIFIER")>(row);
    if (sqlite3_column_int(row, at("ZTRASHEDSTATE")) != 0)
        readInts<at("ZTRASHEDDATE")>(row);
    if (sqlite3_column_int(row, at("ZAVALANCHEPICKTYPE")) != 0)
        readTexts<at("ZAVALANCHEUUID")>(row);
}

inline void readPhotoLibraryColumns(sqlite3_stmt *row)
{
    constexpr auto at = [](std::string_view name) { return column(photoLibraryColumns, name); };
    readInts<at("ZTHUMBNAILINDEX"), at("ZWIDTH"), at("ZHEIGHT")>(row);
    readLongs<at("ZORIGINALFILESIZE")>(row);
    readReals<at("ZDATECREATED"), at("ZMODIFICATIONDATE"), at("ZADDEDDATE")>(row);
    readTexts<at("ZFILENAME"), at("ZDIRECTORY"), at("ZORIGINALFILENAME"), at("ZUUID"),
              at("albumuuid")>(row);
}

inline void readUserAlbumColumns(sqlite3_stmt *row)
{
    constexpr auto at = [](std::string_view name) { return column(userAlbumColumns, name); };
    readInts<at("ZCACHEDPHOTOSCOUNT"), at("ZCACHEDVIDEOSCOUNT"), at("ZKIND")>(row);
    readTexts<at("ZUUID"), at("ZTITLE"), at("Z_NAME")>(row);
}

inline void readAlbumContentsColumns(sqlite3_stmt *row)
{
    constexpr auto at = [](std::string_view name) { return column(albumContentsColumns, name); };
    readInts<at("ZTHUMBNAILINDEX"), at("ZWIDTH"), at("ZHEIGHT"), at("ZVIDEOCPDURATIONTIMESCALE"),
             at("ZHASADJUSTMENTS")>(row);
    readLongs<at("ZORIGINALFILESIZE"), at("ZDATECREATED"), at("ZMODIFICATIONDATE"),
              at("ZADDEDDATE")>(row);
    readReals<at("ZDURATION")>(row);
    readTexts<at("ZFILENAME"), at("ZDIRECTORY"), at("ZORIGINALFILENAME"), at("ZUUID"),
              at("albumuuid")>(row);
}

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_FLOOR_COLUMNS_H
