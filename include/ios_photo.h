/// @file
/// The public face of iosphoto: reads the photo library of an iOS device from its photo database
/// and returns the catalogue of albums with the metadata of their photos; decodes single pictures
/// out of thumbnail caches.
///
/// The database is only read, whatever it holds. Neither it nor the write-ahead log (`-wal`) beside
/// it is changed, and no other file is written; see ios_photo_get_list() for the one that SQLite
/// may leave next to them.
///
/// No application object (`QCoreApplication` or one derived from it) is needed. Album names are
/// Chinese texts that go through `QObject::tr` in the context `QDevPhotoDbMgr`, so a host that
/// installs a `QTranslator` shows them in its own language.
#ifndef IOSPHOTO_IOS_PHOTO_H
#define IOSPHOTO_IOS_PHOTO_H

#include "ios_photo_report.h"
#include "iosphoto_export.h"

#include <QPixmap>
#include <QString>

#include <cstdint>
#include <string>
#include <vector>

namespace iosphoto {

/// What an album is: the values of CAlbumGroup::albumKind.
struct AlbumKind
{
    enum Code : std::int32_t {
        CameraRoll = 1,
        PhotoStream = 2,       ///< My Photo Stream
        PhotoLibrary = 3,      ///< synced from a computer; also an untitled album of the table
        Videos = 4,            ///< includes time-lapses, slow motion and screen recordings
        TimeLapse = 5,         ///< iOS 8 and later
        SloMo = 6,             ///< iOS 8 and later
        Panoramas = 7,         ///< filled on iOS 7 (from iPhone4,1 on) and later
        Bursts = 8,            ///< iOS 8 and later; holds every frame of every burst
        RecentlyDeleted = 9,   ///< iOS 8 and later; 30 days back
        Screenshots = 10,      ///< filled on iOS 8 and later, the collecting one from iOS 7 on
        Favorites = 11,        ///< iOS 8 and later
        Selfies = 12,          ///< iOS 9 and later
        LivePhotos = 13,       ///< iOS 9 and later, by model
        Portrait = 14,         ///< iOS 11 and later
        Animated = 15,         ///< iOS 11 and later
        User = 16,             ///< titled by the user, or imported from a computer
        ScreenRecordings = 17, ///< iOS 11 and later
        Raw = 18,              ///< models that take ProRAW
        ProRes = 19,           ///< models that take ProRes
        Hidden = 20,           ///< iOS 9 and later
        AllDeleted = 21        ///< companion of Recently Deleted; no pass fills it
    };
};

} // namespace iosphoto

/// One photo or video as one album shows it.
///
/// An asset that several albums show has a record of its own in each; the copies differ where an
/// album was filled before a later flag of the asset was known. Times are seconds since
/// 2001-01-01 00:00:00 UTC. "iOS n+" below means that the field is filled from that version on.
///
/// Records can be made, copied and destroyed in a process without an application object.
class IOSPHOTO_EXPORT CPhotoData
{
public:
    CPhotoData();
    CPhotoData(const CPhotoData &other);
    CPhotoData &operator=(const CPhotoData &other);
    ~CPhotoData();

    /// Returns a deep copy of `source` on the heap, owned by the caller; a null pointer for a null
    /// pointer. Throws std::bad_alloc when memory runs out.
    static CPhotoData *GetPhotoDataClone(const CPhotoData *source);

    QPixmap thumbnail;               ///< slot for the host's use; always null here
    std::int32_t thumbnailIndex = 0; ///< index of the picture in the thumbnail cache file
    std::int32_t assetId = -1;       ///< key of the asset's row; -1 where the album has none
    std::int32_t width = 0;          ///< pixels
    std::int32_t height = 0;         ///< pixels
    std::int64_t extraValue = 0;     ///< for the host's use
    float duration = 0;              ///< seconds; 0 for stills and in Photo Library
    std::int64_t fileSize = 0;       ///< bytes of the original file
    double createdTime = 0;          ///< whole seconds, in Photo Library with fractions
    double modifiedTime = 0;         ///< as createdTime
    double addedTime = 0;            ///< as createdTime; below iOS 8 a copy of it
    QString albumName;               ///< name of the album that holds the record
    QString fileName;                ///< such as "IMG_0001.HEIC"
    QString directory;               ///< such as "DCIM/100APPLE", relative to the media folder
    QString sourceFileName;          ///< name before the import or edit
    QString extraText1;              ///< for the host's use
    /// Local day of createdTime, or of addedTime where that is negative, as "yyyy-MM-dd"; "未知"
    /// (unknown) for a day before 1970.
    QString dateText;
    std::string uuid; ///< with dashes; below iOS 8 as 32 hexadecimal digits
    /// Of the album that holds the record; empty if that is built in. In Camera Roll and Photo
    /// Library that of the untitled album through which the asset was read, mostly empty.
    std::string albumUuid;
    std::int32_t isBurstPick = 0;   ///< 1: this frame stands for its burst
    std::int32_t burstCount = 0;    ///< of a pick: frames of its burst in the Bursts album
    bool isVideo = false;           ///< none of the three special kinds below
    bool isTimelapse = false;       ///< iOS 8+
    bool isSlomo = false;           ///< iOS 8+
    bool isScreenRecording = false; ///< iOS 11+
    bool isPanorama = false;        ///< iOS 7+, by model
    bool isBurst = false;           ///< a frame of a burst; iOS 8+
    bool isDeleted = false;         ///< in the trash, for less than 30 days; iOS 8+
    bool isScreenshot = false;      ///< iOS 7+
    bool isLivePhoto = false;       ///< iOS 9+
    bool isSelfie = false;          ///< taken with the front camera; iOS 9+
    bool isFavorite = false;        ///< iOS 8+
    bool isPortrait = false;        ///< has depth; iOS 11+
    bool isAnimated = false;        ///< iOS 11+
    bool inUserAlbum = false;       ///< read through My Photo Stream
    bool isValid = true;            ///< for the host's use
    bool isEdited = false;          ///< iOS 7+
    QString burstUuid;              ///< shared by the frames of a burst; iOS 8+
    QString extraText2;             ///< for the host's use
    bool isRaw = false;             ///< ProRAW still; iOS 15+, models that take it
    bool isProRes = false;          ///< ProRes video; iOS 15+, models that take it
    bool isHidden = false;          ///< iOS 9+
};

/// One album and the records it shows: newest first, except that Videos shows time-lapses, slow
/// motion and screen recordings behind the others.
///
/// Copying an album copies the pointers, not the records: nobody but the receiver of a finished
/// catalogue deletes them.
class IOSPHOTO_EXPORT CAlbumGroup
{
public:
    CAlbumGroup();
    CAlbumGroup(const CAlbumGroup &other);
    CAlbumGroup(CAlbumGroup &&other) noexcept;
    CAlbumGroup &operator=(const CAlbumGroup &other);
    CAlbumGroup &operator=(CAlbumGroup &&other) noexcept;
    ~CAlbumGroup();

    std::int32_t albumIndex = -1; ///< place in the list when last numbered
    std::int32_t albumCount = 0;  ///< number of photos; in Bursts the number of bursts
    std::int32_t albumKind = iosphoto::AlbumKind::CameraRoll; ///< an iosphoto::AlbumKind::Code
    QString albumName;                ///< translated name, or the title the user gave
    std::string albumUuid;            ///< empty for built-in albums
    std::vector<CPhotoData *> photos; ///< owned by whoever received the catalogue
    std::int32_t albumId = 0;         ///< for the host's use
    /// Smart albums, My Photo Stream, and albums that the user made on the device. The second
    /// Selfies, Portrait, Panoramas and Screenshots albums, which collect from albums that came to
    /// the device in another way, are told from the smart ones by this.
    bool isSmartAlbum = false;
};

/// Reads a device's photo database and returns its catalogue of albums.
///
/// Thread-safe: calls from several threads take turns at the database, each pass of a build at a
/// time. No state survives a call. Nothing is thrown. A Qt message handler must not call back into
/// this library: the debug line that a few asset names cause is written during a turn.
///
/// The database and its `-wal` keep every byte. Where a `-wal` lies beside the database SQLite may
/// leave a `-shm` there. Where there is no `-wal` nothing is left, with one exception: of a
/// database in write-ahead-log mode that this user may not write, an empty `-wal` and a `-shm`.
/// Where reading alone would change a file, nothing is read and the catalogue is empty: a database
/// of 0 bytes with a log or journal beside it, and one whose `-journal` holds the change of a
/// writer that died, which SQLite would roll back (read a copy of both files instead).
///
/// Other programs may write to the database meanwhile: a pass waits for their locks, five seconds
/// at most, and once one has waited in vain the later ones do not wait. Builds in other threads
/// wait as well. Each pass reads the database as it is when it begins.
///
/// The database may be made to harm. Nothing in it is executed that could write, load code or open
/// another file, and each pass ends: one that takes more steps of SQLite's machine than a sound
/// database of that size could need is stopped. Within that, rows may multiply, since the
/// statements join tables whose rows a made-up database may repeat: 180 KB can make a million
/// records. A host that reads such files sets QDevPhotoDbMgr::rowLimit.
///
/// What is sorted stays in memory, besides the records made so far: about 250 bytes for each photo,
/// and later 450 for each photo in each album of the table.
///
/// @param databasePath  path of the database file, such as ".../PhotoData/Photos.sqlite", as the
///                      file system has it, mostly UTF-8. Always a file: neither "file:..." nor
///                      ":memory:" means anything else.
/// @param iosVersion    dotted decimal, such as "15.7"; it chooses the statements. Those of iOS 6
///                      serve all below "7", those of the newest known all later ones.
/// @param productType   such as "iPhone14,2"; with the version it decides which albums exist.
/// @param albums        [out] replaced on success and left alone otherwise; records that it held
///                      before are not deleted. Each new record is in exactly one album and belongs
///                      to the caller, who deletes it. With a null pointer the catalogue is built
///                      and thrown away.
/// @return 0, or a negated SQLite result code: -14 (SQLITE_CANTOPEN) when the file cannot be
///         opened, -7 (SQLITE_NOMEM) when memory runs out. 0 does not promise that all was read, or
///         anything: a pass that stops keeps the rows so far and the build goes on. These give 0
///         and the built-in albums that are never dropped, empty: a file that is no photo database
///         or is encrypted, a schema that does not fit the version, views, virtual tables or
///         computed columns where tables should be, a path without a file in a folder that could
///         have one, a change that SQLite would have to roll back, and a database in
///         write-ahead-log mode whose `-shm` this user may not make (read a copy). These give 0
///         and what was read until then, perhaps nothing: damage, a disk that fails or has no room
///         for a `-shm`, a database that somebody else keeps locked for longer than five seconds,
///         values or work beyond all measure. ios_photo_get_list_reported() tells which it was.
IOSPHOTO_EXPORT int ios_photo_get_list(std::string databasePath, std::string iosVersion,
                                       std::string productType, std::vector<CAlbumGroup> *albums);

/// Does the same as ios_photo_get_list() and tells how far it read.
///
/// @param report  [out] replaced whatever the result is; may be a null pointer. The catalogue is
///                whole when it is complete; otherwise the result or firstStopped() says why not.
IOSPHOTO_EXPORT int ios_photo_get_list_reported(std::string databasePath, std::string iosVersion,
                                                std::string productType,
                                                std::vector<CAlbumGroup> *albums,
                                                CReadReport *report);

/// Decodes one thumbnail out of a cache (`.ithmb`) into a complete BMP image of 16-bit pixels.
///
/// For a grid that shows an asset: `index` is its CPhotoData::thumbnailIndex. The file is opened,
/// its format found by the record asked for, and nothing but that record and the ends of a few
/// others is read. Nothing is kept. Thread-safe, without a lock. Nothing is thrown.
///
/// @param cacheFile  path of the cache as the file system has it. It is only read.
/// @param index      number of the record, from 0; one whose record would start beyond 2 GiB gives
///                   nothing or, as offsets wrap at 32 bits, another record
/// @param buffer     the caller's, 55,178 bytes. Only the bytes of the image are written.
/// @param width      [out] of the thumbnail, in pixels. The image of a format with pictures of one
///                   size is larger than a thumbnail that does not fill it; its header says by how
///                   much.
/// @param height     [out] likewise
/// @param size       [out] bytes of the image. This and the other two keep their values when there
///                   is nothing to decode: set it to 0 before the call to tell.
/// @return -1 for a negative index or a null pointer; otherwise 0, also when the file cannot be
///         opened, is no cache, or has no such record
IOSPHOTO_EXPORT int ios_photo_get_thumb(const char *cacheFile, int index, char *buffer, int &width,
                                        int &height, int &size);

#endif // IOSPHOTO_IOS_PHOTO_H
