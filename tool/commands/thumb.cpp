#include "commands/thumb.h"

#include "output/json_document.h"
#include "output/notice.h"
#include "output/printable.h"
#include "output/text_table.h"
#include "thumbnails/export.h"

#include <QLocale>

namespace iosphoto::tool {

namespace {

std::string grouped(int number)
{
    return QLocale(QLocale::English).toString(number).toStdString();
}

void printList(const ThumbCache &cache, std::ostream &out)
{
    using Align = TextTable::Align;
    out << "format " << cache.format().code << ", " << grouped(cache.recordCount())
        << " records of " << grouped(cache.format().recordSize) << " bytes, "
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
    const bool isOne = files.size() == 1;
    const std::string last = isOne ? "" : " to " + printable(files.back());
    out << "wrote " << (isOne ? "" : grouped(static_cast<int>(files.size())) + " files, ")
        << printable(files.front()) << last << '\n';
}

void printAsJson(const ThumbCache &cache, const WrittenFiles &files, std::ostream &out)
{
    Json document = {{"cache", cache.path()},
                     {"format", cache.format().code},
                     {"recordSize", cache.format().recordSize},
                     {"recordCount", cache.recordCount()},
                     {"thumbnailCount", cache.thumbnails().size()},
                     {"isComplete", cache.missing().empty()}};
    Json &thumbnails = document["thumbnails"] = Json::array();
    for (const Thumbnail &thumbnail : cache.thumbnails())
        thumbnails.push_back({{"index", thumbnail.index},
                              {"width", thumbnail.width},
                              {"height", thumbnail.height},
                              {"bmpBytes", thumbnail.bytes}});
    document["written"] = files;
    print(document, out);
}

WrittenFiles writeWanted(const ThumbCache &cache, const ThumbRequest &request)
{
    if (request.index)
        return exportOne(cache, cache.at(*request.index), request.output);
    if (request.all)
        return exportAll(cache, request.output, request.asPng);
    return exportSheets(cache, *request.sheet);
}

} // namespace

ExitStatus showThumbnails(const ThumbRequest &request, std::ostream &out)
{
    const ThumbCache cache(request.cache);
    const bool isList = !request.index && !request.all && !request.sheet;
    const WrittenFiles files = isList ? WrittenFiles() : writeWanted(cache, request);
    if (request.asJson)
        printAsJson(cache, files, out);
    else if (isList)
        printList(cache, out);
    else
        printWritten(files, out);
    const std::string missing = request.index ? std::string() : cache.missing();
    if (!missing.empty())
        notice(missing + "; copy it from the device again");
    return missing.empty() ? Good : Incomplete;
}

} // namespace iosphoto::tool
