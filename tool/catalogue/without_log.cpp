#include "catalogue/without_log.h"

#include "catalogue/catalogue_build.h"
#include "catalogue/left_out_photos.h"
#include "process/failure.h"
#include "schema/asset_tables.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

/// What to read the database as; nothing where it fits none. It may have the schema of the
/// iOS before an update that is in the log still.
std::optional<ProbedSchema> fittingSchema(const CopyDatabase &database, const Device &withLog)
{
    for (const Device &wanted : {withLog, Device()}) {
        try {
            return probe(database, wanted, RecordedDevice());
        } catch (const SchemaError &) { // try the next
        }
    }
    return std::nullopt;
}

bool hasPhotos(const CatalogueBuild &build)
{
    const std::vector<CAlbumGroup> &albums = build.catalogue.albums;
    return std::any_of(albums.begin(), albums.end(),
                       [](const CAlbumGroup &album) { return !album.photos.empty(); });
}

/// With what only the rows tell of its photos.
DatedCatalogue completed(CatalogueBuild build, const CopyDatabase &database,
                         const ProbedSchema &schema)
{
    OwnedCatalogue catalogue = std::move(build.catalogue);
    accountOfPhotos(database, {schema, catalogue.albums, beforeAllTrash, build.isComplete()},
                    nullptr);
    KnownDates dates(database, catalogue.albums);
    return {std::move(catalogue), std::move(dates)};
}

/// What the trash leaves out counts as left out, though the catalogue to be compared has it.
void countRows(const Session &session, const OpenedCopy &copy, const CopyDatabase &database,
               UnixTime asOf, WithoutLog &without)
{
    std::optional<CatalogueBuild> build;
    if (without.trash.emptiedPhotos(without.without.catalogue.albums) > 0)
        build = buildCatalogue(session, copy.file(), without.schema.device, asOf);
    const OwnedCatalogue &catalogue = build ? build->catalogue : without.without.catalogue;
    without.account = accountOf(database, {without.schema, catalogue.albums, asOf, without.isRead},
                                &without.leftOut);
}

void readAlone(const Session &session, const OpenedCopy &copy, UnixTime asOf, WithoutLog &without)
{
    const CopyDatabase database = copy.connect();
    if (database.isDatabase() && assetTableOf(database).empty()) {
        without.isRead = true;
        return;
    }
    const std::optional<ProbedSchema> schema = fittingSchema(database, copy.schema().device);
    if (!schema)
        return;
    without.schema = *schema;
    CatalogueBuild build = buildCatalogue(session, copy.file(), schema->device, beforeAllTrash);
    without.isRead = build.isComplete() && (hasPhotos(build) || !areAssetTablesDamaged(database));
    without.without = completed(std::move(build), database, *schema);
    without.trash = Trash(database, asOf);
    countRows(session, copy, database, asOf, without);
}

} // namespace

WithoutLog readWithoutLog(const Session &session, const OpenedCopy &copy, UnixTime asOf,
                          bool trashLeavesOut)
{
    WithoutLog without;
    try {
        if (trashLeavesOut)
            without.withLog = completed(
                buildCatalogue(session, copy.file(), copy.schema().device, beforeAllTrash),
                copy.connect(), copy.schema());
        copy.removeLog();
        readAlone(session, copy, asOf, without);
    } catch (const Failure &) {
        without.isRead = false;
    }
    return without;
}

} // namespace iosphoto::tool
