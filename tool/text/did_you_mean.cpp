#include "text/did_you_mean.h"

#include "text/translate.h"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <utility>

namespace iosphoto::tool {

namespace {

bool isSameLetter(char one, char other)
{
    const auto small = [](char letter) { return std::tolower(static_cast<unsigned char>(letter)); };
    return small(one) == small(other);
}

/// The letters that have to be added, left out, replaced or swapped with their neighbour to make
/// one word the other.
std::size_t editDistance(const std::string &one, const std::string &other)
{
    // Of the beginnings of `one`, the one before last, the last and this: from each to all of
    // `other`.
    std::vector<std::size_t> before;
    std::vector<std::size_t> last;
    std::vector<std::size_t> row(other.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t(0));
    for (std::size_t i = 1; i <= one.size(); ++i) {
        before = std::exchange(last, std::exchange(row, std::vector<std::size_t>(row.size(), i)));
        for (std::size_t j = 1; j <= other.size(); ++j) {
            const bool isSame = isSameLetter(one[i - 1], other[j - 1]);
            row[j] = std::min({last[j - 1] + (isSame ? 0 : 1), last[j] + 1, row[j - 1] + 1});
            const bool isSwapped = i > 1 && j > 1 && isSameLetter(one[i - 1], other[j - 2]) &&
                                   isSameLetter(one[i - 2], other[j - 1]);
            if (isSwapped)
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
    }
    return row.back();
}

} // namespace

std::string didYouMean(const std::string &name, const std::vector<std::string> &known)
{
    constexpr std::size_t longestName = 100;
    if (name.size() > longestName)
        return "";
    const std::size_t slips = (name.size() + 1) / 3; // in a longer word, more are likely
    const std::string *nearest = nullptr;
    std::size_t fewest = slips + 1;
    for (const std::string &each : known) {
        // A library may hold names of any length.
        const std::size_t most = name.size() + slips;
        const std::size_t distance = each.size() > most ? fewest : editDistance(name, each);
        if (distance < fewest) {
            fewest = distance;
            nearest = &each;
        }
    }
    return nearest != nullptr ? translate("; did you mean '{0}'?", *nearest) : "";
}

} // namespace iosphoto::tool
