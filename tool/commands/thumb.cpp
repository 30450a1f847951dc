#include "commands/thumb.h"

#include "output/counted.h"
#include "output/json_document.h"
#include "output/notice.h"
#include "output/printable.h"
#include "output/text_table.h"
#include "thumbnails/export.h"

namespace iosphoto::tool {

namespace {

void printList(const ThumbCache &cache, std::ostream &out)
{
    using Align = TextTable::Align;
    out << "format " << cache.format().code << ", " << counted(cache.recordCount(), "record")
        << " of " << grouped(cache.format().recordSize) << " bytes, "
        << grouped(static_cast<int>(cache.thumbnails().size())) << " with a thumbnail\n\n";
    TextTable table(
        {{"INDEX", Align::Right}, {"PIXELS", Align::Right}, {"BMP BYTES", Align::Right}});
    for (const Thumbnail &thumbnail : cache.thumbnails())
        table.add({std::to_string(thumbnail.index),
                   std::to_string(thumbnail.width) + "x" + std::to_string(thumbnail.height),
                   grouped(thumbnail.bytes)});
    table.print(out);
}

void printWritten(const WrittenFiles &files, std::ostream &out)
{
    const std::string first = printable(files.begin()->second);
    if (files.size() == 1)
        out << "wrote " << first << '\n';
    else
        out << "wrote " << counted(static_cast<int>(files.size()), "file") << ", " << first
            << " to " << printable(files.rbegin()->second) << '\n';
}

Json thumbnailAsJson(const Thumbnail &thumbnail, const WrittenFiles &files)
{
    const auto file = files.find(thumbnail.index);
    return {{"index", thumbnail.index},
            {"width", thumbnail.width},
            {"height", thumbnail.height},
            {"bmpBytes", thumbnail.bytes},
            {"file", file != files.end() ? Json(file->second) : Json()}};
}

void printAsJson(const ThumbCache &cache, const WrittenFiles &pictures, const WrittenFiles &sheets,
                 std::ostream &out)
{
    Json document = {{"cache", cache.path()},
                     {"format", cache.format().code},
                     {"recordSize", cache.format().recordSize},
                     {"recordCount", cache.recordCount()},
                     {"thumbnailCount", cache.thumbnails().size()},
                     {"isComplete", cache.missing().empty()}};
    Json &thumbnails = document["thumbnails"] = Json::array();
    for (const Thumbnail &thumbnail : cache.thumbnails())
        thumbnails.push_back(thumbnailAsJson(thumbnail, pictures));
    Json &sheetNames = document["sheets"] = Json::array();
    for (const auto &[number, name] : sheets)
        sheetNames.push_back(name);
    print(document, out);
}

WrittenFiles writePictures(const ThumbCache &cache, const ThumbRequest &request)
{
    if (request.index)
        return exportOne(cache, cache.at(*request.index), *request.output);
    return request.all ? exportAll(cache, *request.output, request.asPng) : WrittenFiles();
}

} // namespace

ExitStatus showThumbnails(const ThumbRequest &request, std::ostream &out)
{
    const ThumbCache cache(request.cache);
    const WrittenFiles pictures = writePictures(cache, request);
    const WrittenFiles sheets =
        request.sheet ? exportSheets(cache, *request.sheet) : WrittenFiles();
    if (request.asJson)
        printAsJson(cache, pictures, sheets, out);
    else if (pictures.empty() && sheets.empty())
        printList(cache, out);
    else
        printWritten(request.sheet ? sheets : pictures, out);
    // Who asked for one thumbnail has all of it.
    if (request.index || cache.missing().empty())
        return Good;
    notice(cache.missing());
    return Incomplete;
}

} // namespace iosphoto::tool
