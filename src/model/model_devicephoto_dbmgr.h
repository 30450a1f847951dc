/// @file
/// The manager behind ios_photo_get_list(), for hosts that drive its passes themselves.
#ifndef IOSPHOTO_MODEL_DEVICEPHOTO_DBMGR_H
#define IOSPHOTO_MODEL_DEVICEPHOTO_DBMGR_H

#include <ios_photo.h>

#include <QObject>
#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Compares two dotted decimal versions, component by component, four at most.
///
/// A component counts by its leading digits ("14b" is 14) and a missing one is 0, so "9" equals
/// "9.0"; numbers too large for an int count as the largest.
/// @return the difference of the first components that differ: negative when `a` is older than `b`,
///         0 when they are equal, positive when `a` is newer.
IOSPHOTO_EXPORT int cmpiOSVersion(const std::string &a, const std::string &b);

/// Compares two product types such as "iPhone14,2" by their major, then their minor number.
///
/// The letters do not count: "iPad6,3" equals "iPhone6,3". A missing number is 0.
/// @return negative when `a` is the older model, 0 when the numbers are equal, else positive.
IOSPHOTO_EXPORT int cmpProductVersion(const QString &a, const QString &b);

/// Reads one device's photo database, one pass per source of albums.
///
/// GetPhotoAlbumDatas() builds the catalogue. A host may also call the passes one by one, in the
/// order in which they stand here, and change any member in between: each asks for version, model,
/// path and entity numbers when it starts. It then gets the albums as the passes leave them: only
/// GetPhotoAlbumDatas() appends the second Selfies, Portrait, Panoramas and Screenshots albums,
/// orders and drops albums, thins the bursts and counts.
///
/// Results: a pass returns the number of rows it read, or a negated SQLite code: that of a file
/// that could not be opened (-14 SQLITE_CANTOPEN), or -7 (SQLITE_NOMEM) when memory ran out. A
/// statement that does not match the database's schema gives 0 rows, a database damaged half way
/// the rows before the damage; `report` tells that from a library with so few photos. Nothing is
/// thrown, except by the constructor and the two setters for lack of memory.
///
/// Ownership: the records that `albums` points to belong to the host; the manager deletes none when
/// it is destroyed or a pass fails. Only the end of GetPhotoAlbumDatas() deletes some: the burst
/// frames that it thins out of every album but Bursts, whoever put them there.
///
/// Threads: a manager belongs to one thread at a time. Managers in several threads take turns at
/// the database, however many databases there are.
class IOSPHOTO_EXPORT QDevPhotoDbMgr : public QObject
{
    Q_OBJECT

public:
    /// @param ios    iOS version, dotted decimal, such as "15.0"
    /// @param model  product type, UTF-8, such as "iPhone14,2"
    QDevPhotoDbMgr(std::string ios, std::string model);
    ~QDevPhotoDbMgr() override;

    /// Sets the path of the database file, which every pass opens anew. A byte of its name that is
    /// no UTF-8 is written as the lone surrogate U+DC00 plus its value.
    void SetDataPath(const QString &path);
    /// Replaces the iOS version (not the product type).
    void SetProductVer(const std::string &version);

    /// Builds the whole catalogue in `albums`.
    /// @return 0, or the first negative result of a pass, which ends the build; `albums` then holds
    ///         what was read so far. A second call appends a second set of albums.
    int GetPhotoAlbumDatas();

    /// Appends Camera Roll, Photo Library and the smart albums that version and model offer.
    /// @return 0, or -7 when memory ran out; then nothing was appended.
    int SetDefaultAlbum();

    /// Read the entity numbers that the other passes' statements need. A database without the row
    /// leaves the member as it was.
    int GetPrimarykeyTabAssetInfo();            ///< assetEntity and assetSuperEntity
    int GetPrimarykeyTabAlbumInfo();            ///< albumEntity
    int GetPrimarykeyTabPhotostreamAlbumInfo(); ///< photoStreamAlbumEntity

    /// Reads the device's own photos into the first album and copies of them into the smart albums.
    int GetCameraAlbum();
    /// Reads the photos synced from a computer into the second album.
    int GetPhotosAlbum();
    /// Appends the user's albums and My Photo Stream, without their photos.
    /// @return rows read, those dropped for a uuid that is in the list already included.
    int GetPhotoGroups();
    /// Fills the albums that GetPhotoGroups() appended.
    /// @return memberships read, without those that name no asset; from iOS 8 on also without those
    ///         that name no album.
    int GetPhotoDatas();

    /// Whether the device takes Live Photos.
    bool isSupportLivePhoto() const;
    /// Whether the device takes panoramas.
    bool isSupportPanorama() const;
    /// Whether the device takes ProRAW photos and ProRes videos.
    bool isSupportProRAWAndProRes() const;

    /// Number of frames that the Bursts album holds of the burst `burstUuid`.
    int getBurstsCount(QString burstUuid) const;
    /// Whether a frame of this pick type (`ZAVALANCHEPICKTYPE`) stands for its burst.
    bool isBurstsMain(int pickType) const;
    /// Whether an asset of this pick type is shown in the Camera Roll; true for no burst (0).
    bool isBurstsInCamera(int pickType) const;

    std::int32_t albumEntity = 0;            ///< entity number of `Album` in `Z_PRIMARYKEY`
    std::int32_t photoStreamAlbumEntity = 0; ///< entity number of `PhotoStreamAlbum`
    std::int32_t assetSuperEntity = 0;       ///< entity number of the parent of `Asset`
    std::int32_t assetEntity = 0;            ///< entity number of `Asset`
    QString dataPath;                        ///< path of the database file
    std::string iosVersion;                  ///< dotted decimal
    QString productType;                     ///< such as "iPhone14,2"
    std::string spareText;                   ///< for the host's use
    std::vector<CAlbumGroup> albums;         ///< the catalogue under construction
    CReadReport report;                      ///< how far each pass read when it ran last
    /// The most rows that a pass reads; 0 for no limit. For databases that nobody vetted, whose
    /// tables may multiply each other. A sound one has at most as many rows in a pass as assets,
    /// albums and memberships together.
    std::int64_t rowLimit = 0;
    /// The Unix time that counts as now for the trash; by default that of the clock when a pass
    /// starts.
    std::optional<std::uint32_t> asOf;
};

#endif // IOSPHOTO_MODEL_DEVICEPHOTO_DBMGR_H
