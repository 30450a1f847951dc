#include "thumbnails/unsupported_cache.h"

#include "text/numbers.h"
#include "text/translate.h"
#include "thumbnails/cache_format.h"
#include "thumbnails/newer_kinds.h"

#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

bool holdsOnlyZeros(ifile &file)
{
    constexpr long step = 1 << 20;
    const long length = file.getlength();
    if (length <= 0 || length > std::numeric_limits<int>::max()) // larger ones take too long
        return false;
    for (long offset = 0; offset < length; offset += step)
        if (!isZero(file, offset, static_cast<int>(std::min(step, length - offset))))
            return false;
    return true;
}

std::string describe(const std::vector<NewerKind> &kinds)
{
    std::string text;
    for (const NewerKind &kind : kinds) {
        const std::string pixels =
            translate("{0}x{0} at {1} bits per pixel", kind.side, kind.bitsPerPixel);
        text = text.empty() ? pixels : translate("{0} or {1}", text, pixels);
    }
    return text;
}

bool isNamedLike(const std::string &path, const char *pattern)
{
    const QRegularExpression expression(QRegularExpression::anchoredPattern(pattern),
                                        QRegularExpression::CaseInsensitiveOption);
    const std::string name = fs::path(path).filename().string();
    return expression.match(QString::fromStdString(name)).hasMatch();
}

std::string whatItIs(ifile &file, const std::string &path)
{
    if (isNamedLike(path, "F[0-9]{4}_[0-9]+\\.ithmb"))
        return translate(
            "'{0}' is named like a cache of an iPod or of iPhone OS 1 to 3, which is not "
            "supported",
            path);
    if (isNamedLike(path, "T[0-9]{2,}\\.ithmb"))
        return translate(
            "'{0}' is named like a picture of an iPod Photo Cache of a computer, which is "
            "not supported",
            path);
    if (file.getlength() == 0)
        return translate("'{0}' is empty, not a thumbnail cache", path);
    if (holdsOnlyZeros(file))
        return translate(
            "'{0}' holds nothing but zeros, and which format its thumbnails would have "
            "cannot be told",
            path);
    return translate("'{0}' is not a thumbnail cache of a known format", path);
}

} // namespace

const ThumbFormat *formatWithoutThumbnails(ifile &file)
{
    if (kindsOfSize(file) != 1 || !holdsOnlyZeros(file))
        return nullptr;
    const long length = file.getlength();
    const auto *const format =
        std::find_if(thumbFormats.begin(), thumbFormats.end(),
                     [=](const ThumbFormat &each) { return length % each.recordSize == 0; });
    return format != thumbFormats.end() ? format : nullptr;
}

Failure unsupportedCache(ifile &file, const std::string &path)
{
    const std::vector<NewerKind> kinds = newerKindsOf(file, path);
    if (!kinds.empty())
        return {WrongKindOfFile,
                translate("'{0}' is a thumbnail cache of a newer kind (records of {1} bytes, {2}), "
                          "which cannot be decoded; the pictures of such a device are in "
                          "PhotoData/Thumbnails/V2 as JPEG files",
                          path, grouped(kinds.front().recordSize), describe(kinds))};
    return {WrongKindOfFile,
            translate("{0}; name one, such as 120x120.ithmb of PhotoData/Thumbnails",
                      whatItIs(file, path))};
}

} // namespace iosphoto::tool
