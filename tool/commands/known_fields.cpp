#include "commands/known_fields.h"

#include "process/failure.h"
#include "text/translate.h"

namespace iosphoto::tool {

void requireKnown(const std::string &option, const std::string &field, const Library &library)
{
    if (library.schema().isUnknown(field))
        throw Failure(Incomplete,
                      translate("{0} cannot choose, as {1} is unknown: '{2}' has no {3}; leave the "
                                "option out, or look for a newer iosphoto",
                                option, field, library.database(),
                                library.schema().columnsOf(field)));
}

void requireKnownFields(const PhotoChoice &choice, const Library &library)
{
    const PhotoFilter &filter = choice.filter;
    for (const PhotoKind *const kind : filter.kinds)
        requireKnown("--kind", kind->key, library);
    if (filter.isDeleted)
        requireKnown("--deleted", "isDeleted", library);
    if (filter.trashedWithinDays)
        requireKnown("--within", "trashed", library);
    if (filter.isHidden)
        requireKnown("--hidden", "isHidden", library);
    if (filter.isFavorite)
        requireKnown("--favorite", "isFavorite", library);
    if (filter.isEdited)
        requireKnown("--edited", "isEdited", library);
    requireKnown("--sort", fieldOf(choice.sorting.order), library);
}

} // namespace iosphoto::tool
