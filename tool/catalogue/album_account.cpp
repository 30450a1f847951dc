#include "catalogue/album_account.h"

#include "catalogue/album_kinds.h"
#include "catalogue/row_uuid.h"
#include "model/database_codes.h"

#include <fmt/format.h>

#include <set>

namespace iosphoto::tool {

namespace {

enum Column { Uuid, Title, Kind, Entity, EntityName, TrashedState, TrashedDate };

std::string query(const CopyDatabase &database)
{
    const auto column = [&](const char *name) {
        return database.hasColumn("ZGENERICALBUM", name) ? std::string("album.") + name : "null";
    };
    return fmt::format("select {}, {}, {}, album.Z_ENT, "
                       "(select Z_NAME from Z_PRIMARYKEY where Z_ENT = album.Z_ENT), {}, {} "
                       "from ZGENERICALBUM album not indexed",
                       column("ZUUID"), column("ZTITLE"), column("ZKIND"), column("ZTRASHEDSTATE"),
                       column("ZTRASHEDDATE"));
}

bool isTrashed(const QueryRow &row)
{
    return row.int32(TrashedState) != 0 || row.real(TrashedDate) != 0;
}

/// What an album is of that nobody made of photos of the library; nothing where it may be of them.
std::optional<AlbumReason> otherKindOf(const QueryRow &row, const ProbedSchema &schema)
{
    const std::int32_t kind = row.int32(Kind);
    const std::string entity = row.text(EntityName);
    if (kind == TableAlbumKind::Shared || entity == album_entity::sharedAlbum)
        return AlbumReason::Shared;
    if (kind == TableAlbumKind::Project || entity == album_entity::project)
        return AlbumReason::Project;
    if (kind == TableAlbumKind::Folder || kind == TableAlbumKind::RootFolder ||
        kind == TableAlbumKind::ProjectsFolder ||
        (schema.isUnknownReason(machineName(AlbumReason::Folder)) &&
         entity == album_entity::folder))
        return AlbumReason::Folder;
    const std::int32_t number = row.int32(Entity);
    const bool isOfPhotos =
        number == schema.numbers.album || number == schema.numbers.photoStreamAlbum;
    if (!isOfPhotos || row.isNull(Kind) || kind >= TableAlbumKind::firstOfSystem)
        return AlbumReason::System;
    return std::nullopt;
}

/// The uuids of the albums of the table.
std::set<std::string> uuidsOf(const std::vector<CAlbumGroup> &catalogue)
{
    std::set<std::string> uuids; // ordered: no choice of uuids makes it slow
    for (const CAlbumGroup &album : catalogue)
        if (isOfTheTable(album))
            uuids.insert(album.albumUuid);
    return uuids;
}

/// Says of one row after the other what became of it.
class Classification
{
public:
    explicit Classification(const ReadingFacts &reading)
        : reading_(reading), unseen_(uuidsOf(reading.catalogue))
    {
    }

    /// Nothing for a row that is in the catalogue.
    std::optional<AlbumReason> reasonFor(const QueryRow &row)
    {
        const std::string uuid = uuidOf(row, Uuid);
        if (unseen_.erase(uuid) > 0) {
            listed_.insert(uuid);
            return std::nullopt;
        }
        if (const auto reason = otherKindOf(row, reading_.schema))
            return reason;
        if (isTrashed(row))
            return AlbumReason::Trashed;
        if (row.isNull(Title))
            return reading_.schema.isUnknownReason(machineName(AlbumReason::WithoutTitle))
                       ? AlbumReason::UnknownTitle
                       : AlbumReason::WithoutTitle;
        if (uuid.empty() || listed_.count(uuid) > 0)
            return AlbumReason::Repeated;
        return reading_.isWhole ? AlbumReason::Empty : AlbumReason::NotRead;
    }

private:
    const ReadingFacts &reading_;
    std::set<std::string> unseen_;
    std::set<std::string> listed_;
};

} // namespace

AlbumAccount accountOfAlbums(const CopyDatabase &database, const ReadingFacts &reading)
{
    AlbumAccount account;
    Classification classification(reading);
    database.forEachRow(query(database), [&](const QueryRow &row) {
        ++account.rows;
        if (const auto reason = classification.reasonFor(row))
            account.leaveOut(*reason);
        else
            ++account.listed;
    });
    return account;
}

} // namespace iosphoto::tool
