#include "commands/info_document.h"

#include "catalogue/photo_kinds.h"
#include "rows/library_head.h"

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

template <typename Reason, std::size_t count>
Json leftOut(const RowAccount<Reason, count> &account)
{
    Json counts;
    for (std::size_t reason = 0; reason < count; ++reason)
        counts[machineName(Reason(reason))] = account.leftOut[reason];
    return counts;
}

Json accountOrNull(const Library &library, const Summary &summary)
{
    if (!library.account())
        return {};
    const PhotoAccount &photos = library.account()->photos;
    const AlbumAccount &albums = library.account()->albums;
    return {{"assetRows", photos.rows},        {"listed", photos.listed},
            {"leftOut", leftOut(photos)},      {"foldedBurstFrames", summary.foldedFrames},
            {"albumRows", albums.rows},        {"albumsListed", albums.listed},
            {"albumsLeftOut", leftOut(albums)}};
}

Json logOrNull(const Library &library)
{
    if (!library.hasLog())
        return {};
    Json changes = Json::array();
    for (const LogChange &change : library.logChanges())
        changes.push_back({{"change", machineName(change.kind)},
                           {"uuid", textOrNull(change.uuid)},
                           {"path", change.path}});
    return {{"changes", changes}};
}

} // namespace

Json infoDocument(const Library &library, const Summary &summary)
{
    Json document = libraryHead(library);
    document["deviceName"] = textOrNull(library.identity().name);
    document["serialNumber"] = textOrNull(library.identity().serialNumber);
    document["isOfMac"] = library.schema().metadata.isOfMac();
    document["albumCount"] = library.albums().size();
    document["photoCount"] = summary.all.count;
    document["bytes"] = library.schema().isUnknown("bytes") ? Json() : Json(summary.all.bytes);
    document["firstCreated"] = timeOrNull(summary.firstCreated);
    document["lastCreated"] = timeOrNull(summary.lastCreated);
    document["counts"] = counts(library, summary);
    document["account"] = accountOrNull(library, summary);
    document["log"] = logOrNull(library);
    return document;
}

} // namespace iosphoto::tool
