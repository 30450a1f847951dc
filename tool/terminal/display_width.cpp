#include "terminal/display_width.h"

#include "text/code_points.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace iosphoto::tool {

namespace {

/// What a person sees as one character, within its text.
struct Cluster
{
    std::string_view bytes;
    std::size_t width = 0;
};

bool isRegionalIndicator(utf8proc_int32_t codePoint)
{
    return codePoint >= 0x1F1E6 && codePoint <= 0x1F1FF; // two of them are a flag
}

/// Whether a code point shows nothing by itself, but changes the one before it.
bool isMark(utf8proc_int32_t codePoint)
{
    const utf8proc_category_t category = utf8proc_category(codePoint);
    return category == UTF8PROC_CATEGORY_MN || category == UTF8PROC_CATEGORY_ME ||
           category == UTF8PROC_CATEGORY_CF;
}

/// The width of a cluster so far that goes on with a code point.
std::size_t widthWith(std::size_t before, utf8proc_int32_t codePoint)
{
    constexpr std::size_t wide = 2;
    constexpr utf8proc_int32_t asEmoji = 0xFE0F;
    constexpr utf8proc_int32_t asText = 0xFE0E;
    if (codePoint == asText)
        return std::min<std::size_t>(before, 1);
    if (codePoint == asEmoji || utf8proc_charwidth(codePoint) == 2)
        return wide;
    if (before == 1 && isRegionalIndicator(codePoint))
        return wide;
    return std::max<std::size_t>(before, isMark(codePoint) ? 0 : 1);
}

/// The length of an escape such as "\\u001b" that printable() made, which is never cut; 0 for
/// another text.
std::size_t escapeLength(std::string_view text)
{
    constexpr std::pair<std::string_view, std::size_t> digitsOf[] = {
        {"\\u", 4}, {"\\U", 8}, {"\\n", 0}, {"\\r", 0}, {"\\t", 0}};
    for (const auto &[begin, digits] : digitsOf) {
        const std::string_view number = text.substr(std::min(begin.size(), text.size()), digits);
        if (text.substr(0, begin.size()) == begin && number.size() == digits &&
            number.find_first_not_of("0123456789abcdef") == std::string_view::npos)
            return begin.size() + digits;
    }
    return 0;
}

std::vector<Cluster> clustersOf(const std::string &text)
{
    std::vector<Cluster> clusters;
    utf8proc_int32_t before = 0;
    utf8proc_int32_t state = 0;
    std::size_t offset = 0;
    std::size_t endOfEscape = 0;
    forEachCodePoint(text, [&](utf8proc_int32_t codePoint, std::size_t length) {
        const bool isInEscape = offset < endOfEscape;
        if (!isInEscape && codePoint == '\\')
            endOfEscape = offset + escapeLength(std::string_view(text).substr(offset));
        const bool isBreak = utf8proc_grapheme_break_stateful(before, codePoint, &state);
        if (clusters.empty() || (isBreak && !isInEscape))
            clusters.push_back({std::string_view(text).substr(offset, 0), 0});
        Cluster &cluster = clusters.back();
        cluster.bytes = {cluster.bytes.data(), cluster.bytes.size() + length};
        cluster.width = isInEscape ? cluster.width + 1 : widthWith(cluster.width, codePoint);
        before = codePoint;
        offset += length;
    });
    return clusters;
}

std::size_t widthOf(const std::vector<Cluster> &clusters)
{
    std::size_t width = 0;
    for (const Cluster &cluster : clusters)
        width += cluster.width;
    return width;
}

template <std::size_t count>
bool isAmong(const std::string_view (&marks)[count], const Cluster &cluster)
{
    return std::find(std::begin(marks), std::end(marks), cluster.bytes) != std::end(marks);
}

/// Whether a line may end between two clusters: at a space, or beside a wide one, unless its
/// punctuation belongs to what is on the other side.
bool mayBreak(const Cluster &before, const Cluster &after)
{
    constexpr std::string_view opening[] = {"（", "“", "《", "("};
    constexpr std::string_view closing[] = {"，", "。", "、", "；", "：", "？",
                                            "！", "）", "”",  "》", "…",  ")"};
    if (after.bytes == " ")
        return true;
    return (before.width == 2 || after.width == 2) && !isAmong(opening, before) &&
           !isAmong(closing, after);
}

/// How many clusters from `first` on make up the next line.
std::size_t lineLength(const std::vector<Cluster> &clusters, std::size_t first, std::size_t columns)
{
    std::size_t last = first;
    std::size_t width = 0;
    std::size_t lastBreak = 0;
    std::size_t lastSlash = 0;
    for (; last < clusters.size(); ++last) {
        if (last > first && mayBreak(clusters[last - 1], clusters[last]))
            lastBreak = last - first;
        if (last > first && clusters[last - 1].bytes == "/")
            lastSlash = last - first;
        width += clusters[last].width;
        if (width > columns)
            break;
    }
    if (last == clusters.size())
        return last - first;
    const std::size_t usual = lastBreak > 0 ? lastBreak : lastSlash;
    return usual > 0 ? usual : std::max<std::size_t>(last - first, 1);
}

} // namespace

std::size_t displayWidth(const std::string &text)
{
    const bool isAscii = std::all_of(text.begin(), text.end(),
                                     [](char byte) { return static_cast<signed char>(byte) >= 0; });
    if (isAscii) // as most cells of long tables
        return text.size();
    return widthOf(clustersOf(text));
}

std::string elided(const std::string &text, std::size_t columns, Elide elide)
{
    if (displayWidth(text) <= columns)
        return text;
    if (columns == 0)
        return {};
    std::vector<Cluster> clusters = clustersOf(text);
    if (elide == Elide::Left)
        std::reverse(clusters.begin(), clusters.end());
    std::string part;
    std::size_t width = 1; // of the ellipsis
    for (const Cluster &cluster : clusters) {
        width += cluster.width;
        if (width > columns)
            break;
        part.insert(elide == Elide::Left ? 0 : part.size(), cluster.bytes);
    }
    return elide == Elide::Left ? "…" + part : part + "…";
}

std::vector<std::string> wrapped(const std::string &text, std::size_t columns)
{
    const std::vector<Cluster> clusters = clustersOf(text);
    std::vector<std::string> lines;
    for (std::size_t first = 0; first < clusters.size();) {
        const std::size_t next = first + lineLength(clusters, first, columns);
        std::string line;
        for (; first < next; ++first)
            line += clusters[first].bytes;
        lines.push_back(line.erase(line.find_last_not_of(' ') + 1));
        while (first < clusters.size() && clusters[first].bytes == " ")
            ++first;
    }
    return lines.empty() ? std::vector<std::string>(1) : lines;
}

std::string padded(const std::string &text, std::size_t columns, bool isRightAligned)
{
    const std::string padding(columns - std::min(columns, displayWidth(text)), ' ');
    return isRightAligned ? padding + text : text + padding;
}

} // namespace iosphoto::tool
