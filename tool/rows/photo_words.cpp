#include "rows/photo_words.h"

#include "catalogue/traits.h"
#include "language/said.h"

namespace iosphoto::tool {

namespace {

std::string wordsForTrash(const TrashStay &stay)
{
    const std::string day = localDayText(stay.goes);
    return stay.daysLeft == 1 ? said("deleted, 1 day left, goes {0}", day)
                              : said("deleted, {0} days left, goes {1}", stay.daysLeft, day);
}

std::string wordsForTrait(const Trait &trait, const PhotoRow &row)
{
    if (!(row.facts.*trait.flag))
        return "";
    if (trait.flag == &CPhotoData::isBurst && row.burstFrames > 0)
        return said("burst of {0}", row.burstFrames);
    return translated(trait.word);
}

std::string wordOrStay(const Trait &trait, const PhotoRow &row)
{
    if (trait.flag == &CPhotoData::isDeleted && row.trash)
        return wordsForTrash(*row.trash);
    return wordsForTrait(trait, row);
}

template <typename WordFor>
std::string joinedWords(const PhotoRow &row, WordFor wordFor)
{
    std::string words;
    for (const Trait &trait : traits)
        if (const std::string word = wordFor(trait, row); !word.empty())
            words += (words.empty() ? "" : said(", ")) + word;
    return words;
}

} // namespace

std::string pixelsOf(const CPhotoData &photo)
{
    return std::to_string(photo.width) + "x" + std::to_string(photo.height);
}

std::string wordsFor(const PhotoRow &row)
{
    return joinedWords(row, wordOrStay);
}

std::string kindsOf(const PhotoRow &row)
{
    return joinedWords(row, wordsForTrait);
}

} // namespace iosphoto::tool
