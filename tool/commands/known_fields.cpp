#include "commands/known_fields.h"

#include "process/failure.h"
#include "text/translate.h"

#include <vector>

namespace iosphoto::tool {

namespace {

struct OptionField
{
    const char *option;
    const char *field; ///< that it goes by
};

std::vector<OptionField> fieldsOf(const PhotoFilter &filter)
{
    std::vector<OptionField> fields;
    for (const PhotoKind *const kind : filter.kinds)
        fields.push_back({"--kind", kind->key});
    if (filter.isDeleted)
        fields.push_back({"--deleted", "isDeleted"});
    if (filter.trashedWithinDays)
        fields.push_back({"--within", "trashed"});
    if (filter.isHidden)
        fields.push_back({"--hidden", "isHidden"});
    if (filter.isFavorite)
        fields.push_back({"--favorite", "isFavorite"});
    if (filter.isEdited)
        fields.push_back({"--edited", "isEdited"});
    return fields;
}

} // namespace

void requireKnown(const std::string &option, const std::string &field, const Library &library)
{
    if (library.schema().isUnknown(field))
        throw Failure(Incomplete,
                      translate("{0} cannot choose, as {1} is unknown: '{2}' has no {3}; leave the "
                                "option out, or look for a newer iosphoto",
                                option, field, library.database(),
                                library.schema().columnsOf(field)));
}

void sayThatItIsNull(const std::string &option, const std::string &field, const Library &library,
                     const Terminal &terminal)
{
    if (library.schema().isUnknown(field))
        terminal.printWarning(translate("{0} asks for {1}, which is unknown and so null in every "
                                        "photo: '{2}' has no {3}",
                                        option, field, library.database(),
                                        library.schema().columnsOf(field)));
}

void requireKnownFields(const PhotoChoice &choice, const Library &library)
{
    for (const auto &[option, field] : fieldsOf(choice.filter))
        requireKnown(option, field, library);
    requireKnown("--sort", fieldOf(choice.sorting.order), library);
}

} // namespace iosphoto::tool
