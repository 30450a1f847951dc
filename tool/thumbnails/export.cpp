#include "thumbnails/export.h"

#include "files/output_file.h"
#include "process/failure.h"
#include "terminal/progress_bar.h"
#include "text/translate.h"
#include "thumbnails/contact_sheet.h"
#include "thumbnails/picture.h"

#include <QFileInfo>

#include <algorithm>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

QString lowerSuffix(const fs::path &file)
{
    return QFileInfo(QString::fromStdString(file.filename().string())).suffix().toLower();
}

QByteArray content(const ThumbCache &cache, const Thumbnail &thumbnail, bool asPng)
{
    const QByteArray bmp = cache.image(thumbnail);
    return asPng ? tool::asPng(pictureOf(bmp)) : bmp;
}

/// An index with as many digits as the last one, so that files sort.
std::string paddedIndex(int index, int last)
{
    std::string digits = std::to_string(index);
    const std::size_t width = std::max<std::size_t>(4, std::to_string(last).size());
    return std::string(width - digits.size(), '0') + digits;
}

fs::path sheetName(const fs::path &file, int sheet)
{
    if (sheet == 0)
        return file;
    fs::path name = file;
    name.replace_filename(file.stem().string() + "-" + std::to_string(sheet + 1) +
                          file.extension().string());
    return name;
}

} // namespace

WrittenFiles exportOne(Session &session, const ThumbCache &cache, const Thumbnail &thumbnail,
                       const std::string &file)
{
    const QString suffix = lowerSuffix(file);
    if (!suffix.isEmpty() && suffix != "bmp" && suffix != "png")
        throw Failure(WrongUsage, translate("cannot write '{0}': thumbnails are written as .bmp or "
                                            ".png; name such a file",
                                            file));
    writeOutput(session.files, file, content(cache, thumbnail, suffix == "png"), cache.file());
    return {{thumbnail.index, file}};
}

WrittenFiles exportAll(Session &session, const ThumbCache &cache, const std::string &folder,
                       bool asPng)
{
    const OutputFolder output(folder);
    const std::vector<Thumbnail> &thumbnails = cache.thumbnails();
    ProgressBar progress(session.terminal, translate("writing thumbnails"),
                         static_cast<int>(thumbnails.size()));
    WrittenFiles written;
    for (const Thumbnail &thumbnail : thumbnails) {
        const std::string name =
            paddedIndex(thumbnail.index, thumbnails.back().index) + (asPng ? ".png" : ".bmp");
        output.write(session.files, name, content(cache, thumbnail, asPng), cache.file());
        written[thumbnail.index] = (fs::path(folder) / name).string();
        progress.show(static_cast<int>(written.size()));
    }
    output.finish();
    return written;
}

WrittenFiles exportSheets(Session &session, const ThumbCache &cache, const std::string &file)
{
    if (lowerSuffix(file) != "png")
        throw Failure(WrongUsage,
                      translate("cannot write '{0}': a contact sheet is a PNG file; name one "
                                "that ends in .png",
                                file));
    ProgressBar progress(session.terminal, translate("drawing sheets"), sheetCount(cache));
    WrittenFiles written;
    for (int sheet = 0; sheet < sheetCount(cache); ++sheet) {
        const fs::path name = sheetName(file, sheet);
        writeOutput(session.files, name, asPng(drawSheet(cache, sheet)), cache.file());
        written[sheet] = name.string();
        progress.show(sheet + 1);
    }
    return written;
}

} // namespace iosphoto::tool
