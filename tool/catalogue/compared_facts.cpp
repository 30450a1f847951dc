#include "catalogue/compared_facts.h"

#include "catalogue/photo_kinds.h"
#include "model/core_data_time.h"

#include <iterator>
#include <set>
#include <utility>

namespace iosphoto::tool {

namespace {

using Photo = PhotoInSnapshot;

template <auto member>
bool isSame(const Photo &before, const Photo &after)
{
    return before.facts.*member == after.facts.*member;
}

/// Not all albums have fractions of seconds.
template <auto date>
bool isSameDate(const Photo &before, const Photo &after)
{
    const auto dateOf = [](const Photo &photo) {
        const auto known = (photo.snapshot.dates.*date)(photo.facts);
        return known ? std::optional(wholeSeconds(known->seconds)) : std::nullopt;
    };
    return dateOf(before) == dateOf(after);
}

bool isTrashedAtTheSameTime(const Photo &before, const Photo &after)
{
    const auto old = before.snapshot.trash.stayOf(before.asset);
    const auto now = after.snapshot.trash.stayOf(after.asset);
    return old.has_value() == now.has_value() && (!old || old->trashed == now->trashed);
}

/// @param indices  of the traits
template <std::size_t... indices>
std::vector<ComparedFact> factsOfTraits(std::index_sequence<indices...> /*all*/)
{
    return {{traits[indices].key, isSame<traits[indices].flag>}...};
}

std::vector<ComparedFact> allFacts()
{
    using Data = CPhotoData;
    std::vector<ComparedFact> facts = {
        {"isDeleted", isSame<&Data::isDeleted>},
        {"isFavorite", isSame<&Data::isFavorite>},
        {"isHidden", isSame<&Data::isHidden>},
        {"fileName", isSame<&Data::fileName>},
        {"created", isSameDate<&KnownDates::created>},
        {"directory", isSame<&Data::directory>},
        {"originalFileName", isSame<&Data::sourceFileName>},
        {"width", isSame<&Data::width>},
        {"height", isSame<&Data::height>},
        {"fileSize", isSame<&Data::fileSize>},
        {"duration", isSame<&Data::duration>},
        {"modified", isSameDate<&KnownDates::modified>},
        {"added", isSameDate<&KnownDates::added>},
        {"trashed", isTrashedAtTheSameTime},
        {"burstUuid", isSame<&Data::burstUuid>},
        {"isBurstPick", isSame<&Data::isBurstPick>},
    };
    std::set<std::string> known = {"isInPhotoStream"}; // which is an album
    for (const ComparedFact &fact : facts)
        known.insert(fact.key);
    for (const ComparedFact &fact : factsOfTraits(std::make_index_sequence<std::size(traits)>()))
        if (known.count(fact.key) == 0)
            facts.push_back(fact);
    return facts;
}

} // namespace

const std::vector<ComparedFact> &comparedFacts()
{
    static const std::vector<ComparedFact> facts = allFacts();
    return facts;
}

} // namespace iosphoto::tool
