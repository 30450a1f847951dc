#include "commands/info_document.h"

#include "catalogue/photo_kinds.h"
#include "rows/difference_fields.h"
#include "rows/library_head.h"
#include "text/translate.h"

namespace iosphoto::tool {

namespace {

Json counts(const Library &library, const Summary &summary)
{
    const ProbedSchema &schema = library.schema();
    Json counts = Json::array();
    for (std::size_t i = 0; i < photoKinds().size(); ++i) {
        const PhotoKind &kind = photoKinds()[i];
        const Tally &tally = summary.byKind[i];
        const bool isKnown = !schema.isUnknown(kind.key);
        counts.push_back(
            {{"kind", kind.name},
             {"count", isKnown ? Json(tally.count) : Json()},
             {"bytes", isKnown && !schema.isUnknown("bytes") ? Json(tally.bytes) : Json()}});
    }
    return counts;
}

Json timeOrNull(const std::optional<CoreDataTime> &time)
{
    return time ? tool::timeOrNull(*time) : Json();
}

Json rowsOf(const ProbedSchema &schema, const Account &account)
{
    return {{"assetRows", account.photos.rows},
            {"listed", account.photos.listed},
            {"leftOut", leftOutByReason(schema, account.photos)},
            {"albumRows", account.albums.rows},
            {"albumsListed", account.albums.listed},
            {"albumsLeftOut", leftOutByReason(schema, account.albums)}};
}

Json accountOrNull(const Library &library, const Summary &summary)
{
    if (!library.account())
        return {};
    const ProbedSchema &schema = library.schema();
    Json account = rowsOf(schema, *library.account());
    account["untitledAlbums"] = library.account()->untitled.albums;
    account["photosOfUntitledAlbums"] = library.account()->untitled.photos;
    account["foldedBurstFrames"] =
        schema.isUnknown("burstFrames") ? Json() : Json(summary.foldedFrames);
    return account;
}

Json references(const std::vector<const CAlbumGroup *> &albums)
{
    Json references = Json::array();
    for (const CAlbumGroup *album : albums)
        references.push_back(albumReference(*album));
    return references;
}

/// One for each change of a photo, so that each can be counted.
void addChanges(Json &changes, const LogChange &logChange)
{
    const PhotoDifference &photo = logChange.photo;
    for (const Change change : photo.changes) {
        const bool isMove = change == Change::Moved;
        changes.push_back({{"change", logChangeName(change)},
                           {"uuid", textOrNull(photo.latest().uuid())},
                           {"path", photo.latest().path()},
                           {"addedTo", isMove ? references(photo.addedTo) : Json::array()},
                           {"removedFrom", isMove ? references(photo.removedFrom) : Json::array()},
                           {"changedFacts", logChange.facts}});
    }
}

Json reasonOrNull(const std::optional<PhotoReason> &reason)
{
    return reason ? Json(machineName(*reason)) : Json();
}

Json documentOf(const LeftOutChange &change)
{
    return {{"uuid", textOrNull(change.uuid)},
            {"path", change.path},
            {"before", reasonOrNull(change.before)},
            {"after", reasonOrNull(change.after)},
            {"changedFacts", change.facts}};
}

/// What the database says and holds without its log.
Json documentOf(const WithoutLog &without)
{
    const StoreMetadata &metadata = without.schema.metadata;
    return {{"schema", textOrNull(without.schema.name)},
            {"modelVersion", metadata.modelVersion ? Json(*metadata.modelVersion) : Json()},
            {"build", textOrNull(metadata.build)},
            {"account", rowsOf(without.schema, without.account)}};
}

Json logOrNull(const Library &library, const LogChanges *changes)
{
    const WriteAheadLog &log = library.log();
    if (log.state == LogState::Missing)
        return {};
    Json photos = Json::array();
    Json albums = Json::array();
    Json leftOut = Json::array();
    if (changes != nullptr) {
        for (const LogChange &change : changes->photos())
            addChanges(photos, change);
        for (const LeftOutChange &change : changes->leftOut())
            leftOut.push_back(documentOf(change));
        albums = albumChanges(changes->albums());
    }
    return {{"state", machineName(log.state)},
            {"commits", log.commits},
            {"commitsAtLeast", log.commits + log.lostCommits},
            {"hasOpenChange", log.hasOpenChange},
            {"endsInZeros", log.endsInZeros},
            {"frames", log.frames},
            {"isCompared", !library.withoutLog() || library.withoutLog()->isRead},
            {"changes", std::move(photos)},
            {"albums", std::move(albums)},
            {"leftOut", std::move(leftOut)},
            {"isInOtherOrder", changes != nullptr && changes->hasOtherLists()},
            {"without", changes != nullptr ? documentOf(*library.withoutLog()) : Json()}};
}

Json encryptionOrNull(const Library &library)
{
    if (!library.encryption())
        return {};
    return {{"rounds", library.encryption()->rounds},
            {"classesOfDevice", library.encryption()->classesOfDevice}};
}

} // namespace

const char *logChangeName(Change change)
{
    return change == Change::New ? translatable("added") : changeName(change);
}

Json infoDocument(const Library &library, const Summary &summary, const LogChanges *changes)
{
    Json document = libraryHead(library);
    document["deviceName"] = textOrNull(library.identity().name);
    document["serialNumber"] = textOrNull(library.identity().serialNumber);
    document["encryption"] = encryptionOrNull(library);
    document["isOfMac"] = library.schema().metadata.isOfMac();
    document["albumCount"] = library.albums().size();
    document["photoCount"] = summary.all.count;
    document["bytes"] = library.schema().isUnknown("bytes") ? Json() : Json(summary.all.bytes);
    document["firstCreated"] = timeOrNull(summary.firstCreated);
    document["lastCreated"] = timeOrNull(summary.lastCreated);
    document["counts"] = counts(library, summary);
    document["account"] = accountOrNull(library, summary);
    document["log"] = logOrNull(library, changes);
    return document;
}

} // namespace iosphoto::tool
