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

void requireRoom(const Session &session, const ThumbCache &cache, const WrittenFiles &files,
                 IfThere ifThere)
{
    if (ifThere == IfThere::Refuse)
        for (const auto &[number, file] : files)
            requireNew(session.files, file, cache.file());
}

WrittenFiles filesOfAll(const ThumbCache &cache, const fs::path &folder, bool asPng)
{
    WrittenFiles files;
    const int last = cache.thumbnails().empty() ? 0 : cache.thumbnails().back().index;
    for (const Thumbnail &thumbnail : cache.thumbnails())
        files[thumbnail.index] =
            (folder / (paddedIndex(thumbnail.index, last) + (asPng ? ".png" : ".bmp"))).string();
    return files;
}

WrittenFiles filesOfSheets(const ThumbCache &cache, const fs::path &file)
{
    WrittenFiles files;
    for (int sheet = 0; sheet < sheetCount(cache); ++sheet)
        files[sheet] = sheetName(file, sheet).string();
    return files;
}

} // namespace

WrittenFiles exportOne(Session &session, const ThumbCache &cache, const Thumbnail &thumbnail,
                       const std::string &file, IfThere ifThere)
{
    const QString suffix = lowerSuffix(file);
    if (!suffix.isEmpty() && suffix != "bmp" && suffix != "png")
        throw Failure(WrongUsage, translate("cannot write '{0}': thumbnails are written as .bmp or "
                                            ".png; name such a file",
                                            file));
    WrittenFiles files = {{thumbnail.index, file}};
    requireRoom(session, cache, files, ifThere);
    writeOutput(session.files, file, content(cache, thumbnail, suffix == "png"), cache.file());
    return files;
}

WrittenFiles exportAll(Session &session, const ThumbCache &cache, const std::string &folder,
                       bool asPng, IfThere ifThere)
{
    WrittenFiles files = filesOfAll(cache, folder, asPng);
    requireRoom(session, cache, files, ifThere);
    const OutputFolder output(folder);
    ProgressBar progress(session.terminal, translate("writing thumbnails"),
                         static_cast<int>(files.size()));
    int done = 0;
    for (const Thumbnail &thumbnail : cache.thumbnails()) {
        const fs::path name = fs::path(files.at(thumbnail.index)).filename();
        output.write(session.files, name.string(), content(cache, thumbnail, asPng), cache.file());
        progress.show(++done);
    }
    output.finish();
    return files;
}

WrittenFiles exportSheets(Session &session, const ThumbCache &cache, const std::string &file,
                          IfThere ifThere)
{
    if (lowerSuffix(file) != "png")
        throw Failure(WrongUsage,
                      translate("cannot write '{0}': a contact sheet is a PNG file; name one "
                                "that ends in .png",
                                file));
    WrittenFiles files = filesOfSheets(cache, file);
    requireRoom(session, cache, files, ifThere);
    ProgressBar progress(session.terminal, translate("drawing sheets"),
                         static_cast<int>(files.size()));
    for (const auto &[sheet, name] : files) {
        writeOutput(session.files, name, asPng(drawSheet(cache, sheet)), cache.file());
        progress.show(sheet + 1);
    }
    return files;
}

} // namespace iosphoto::tool
