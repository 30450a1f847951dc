#include "text/did_you_mean.h"

#include "text/translate.h"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace iosphoto::tool {

namespace {

bool isSameLetter(char one, char other)
{
    const auto small = [](char letter) { return std::tolower(static_cast<unsigned char>(letter)); };
    return small(one) == small(other);
}

/// The letters that have to be added, left out or replaced to make one word the other.
std::size_t editDistance(const std::string &one, const std::string &other)
{
    std::vector<std::size_t> row(other.size() + 1); // from a beginning of `one` to those of `other`
    std::iota(row.begin(), row.end(), std::size_t(0));
    for (std::size_t i = 0; i < one.size(); ++i) {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 0; j < other.size(); ++j) {
            const std::size_t replaced = diagonal + (isSameLetter(one[i], other[j]) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

} // namespace

std::string didYouMean(const std::string &name, const std::vector<std::string> &known)
{
    constexpr std::size_t longestName = 100;
    if (known.empty() || name.size() > longestName)
        return "";
    const auto nearest = std::min_element(
        known.begin(), known.end(), [&](const std::string &left, const std::string &right) {
            return editDistance(name, left) < editDistance(name, right);
        });
    const std::size_t slips = (name.size() + 1) / 3; // in a longer word, more are likely
    return editDistance(name, *nearest) <= slips ? translate("; did you mean '{0}'?", *nearest)
                                                 : "";
}

} // namespace iosphoto::tool
