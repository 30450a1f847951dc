/// @file
/// How far a build of the catalogue read. The albums alone do not tell an empty library from one
/// that could not be read; this does.
#ifndef IOSPHOTO_IOS_PHOTO_REPORT_H
#define IOSPHOTO_IOS_PHOTO_REPORT_H

#include "iosphoto_export.h"

#include <cstdint>
#include <string>
#include <vector>

namespace iosphoto {

/// The passes of a build: the values of CPassReport::pass, in the order in which they run.
struct Pass
{
    enum Code : std::int32_t {
        AssetEntity = 1,            ///< the entity numbers of the assets
        AlbumEntity = 2,            ///< of the albums
        PhotoStreamAlbumEntity = 3, ///< of My Photo Stream
        CameraRoll = 4,             ///< the device's own photos, and the smart albums
        PhotoLibrary = 5,           ///< the photos synced from a computer
        UserAlbums = 6,             ///< the albums of the user and My Photo Stream
        AlbumContents = 7           ///< which photos are in these
    };
};

} // namespace iosphoto

/// How far one pass read.
///
/// A pass that stopped keeps the rows so far, and the build goes on with the next pass, unless the
/// result of the pass is negative. The codes are SQLite's. Here they mean:
///
/// - 1 SQLITE_ERROR: the statement does not fit the database: a table or column is missing.
/// - 4 SQLITE_ABORT: there are more rows than QDevPhotoDbMgr::rowLimit.
/// - 5 SQLITE_BUSY: somebody else kept the database locked for five seconds, in this pass or one
///   before.
/// - 7 SQLITE_NOMEM: memory ran out; the result is -7.
/// - 8 SQLITE_READONLY: reading alone would change a file, or make one that this user may not make;
///   see ios_photo_get_list().
/// - 9 SQLITE_INTERRUPT: the statement took more steps, or more memory in many steps, than a sound
///   database of this size needs.
/// - 10 SQLITE_IOERR: the disk does not give what it holds, or has no room for a `-shm`.
/// - 11 SQLITE_CORRUPT: the database is damaged.
/// - 13 SQLITE_FULL: the disk is full, and this SQLite sorts in a file whatever it is told.
/// - 14 SQLITE_CANTOPEN: there is no such file; or it cannot be opened, then the result is -14; or
///   its `-shm` cannot.
/// - 18 SQLITE_TOOBIG: a value or a row is longer than 64 MiB.
/// - 23 SQLITE_AUTH: a view or a virtual table stands in the place of a table, or a column of the
///   table is computed.
/// - 26 SQLITE_NOTADB: the file is no database, or it is encrypted.
///
/// Others are passed on as SQLite gives them.
struct CPassReport
{
    std::int32_t pass = 0;         ///< an iosphoto::Pass::Code
    std::int64_t rows = 0;         ///< that the statement gave, kept in an album or not
    std::int32_t code = 0;         ///< 0 when the pass read to its end, else what stopped it
    std::int32_t extendedCode = 0; ///< the same in SQLite's finer codes, such as 776 for 8
    std::string text;              ///< the same in words, in English; empty with code 0
};

/// How far the passes of a build read. Copied and destroyed as any value; belongs to one thread at
/// a time.
class IOSPHOTO_EXPORT CReadReport
{
public:
    CReadReport();
    CReadReport(const CReadReport &other);
    CReadReport(CReadReport &&other) noexcept;
    CReadReport &operator=(const CReadReport &other);
    CReadReport &operator=(CReadReport &&other) noexcept;
    ~CReadReport();

    /// Whether every pass of a build ran and read to its end. Only then is an empty album empty in
    /// the database.
    bool isComplete() const;

    /// The first pass that did not read to its end; a null pointer where all that ran did, or where
    /// there was no memory to note it. Lives as long as the report is not changed.
    const CPassReport *firstStopped() const;

    std::vector<CPassReport> passes; ///< those that ran, in the order in which they ran last
};

#endif // IOSPHOTO_IOS_PHOTO_REPORT_H
