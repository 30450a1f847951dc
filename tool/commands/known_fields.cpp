#include "commands/known_fields.h"

#include "process/failure.h"
#include "text/translate.h"

#include <algorithm>
#include <iterator>
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

bool isKnownFieldOfLeftOut(const std::string &field)
{
    const auto *const trait = std::find_if(std::begin(traits), std::end(traits),
                                           [&](const Trait &each) { return field == each.key; });
    return trait == std::end(traits) || isKnownOfLeftOut(trait->flag);
}

void requireKnownOfLeftOut(const std::string &option, const std::string &field, Shown shown,
                           const Terminal &terminal)
{
    if (shown == Shown::Listed || isKnownFieldOfLeftOut(field))
        return;
    const std::string why = translate("{0} chooses none of the photos that are left out, as {1} is "
                                      "not known of them",
                                      option, field);
    if (shown == Shown::LeftOut)
        throw Failure(Incomplete, why);
    terminal.printWarning(why);
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

void requireKnownFields(const PhotoChoice &choice, const Library &library, const Terminal &terminal)
{
    for (const auto &[option, field] : fieldsOf(choice.filter)) {
        requireKnown(option, field, library);
        requireKnownOfLeftOut(option, field, choice.shown, terminal);
    }
    requireKnown("--sort", fieldOf(choice.sorting.order), library);
}

} // namespace iosphoto::tool
