#include "output_memory.h"

#include "child.h"
#include "device.h"
#include "process_memory.h"
#include "rows/library_head.h"
#include "rows/photo_fields.h"

#include <fstream>
#include <stdexcept>

namespace iosphoto::bench {

namespace {

void writePhotos(const tool::Library &library, const tool::AssetList &assets,
                 const tool::PhotoRows &rows, const std::string &format)
{
    const auto rowFormat = format == "csv" ? tool::Format::Csv : tool::Format::JsonLines;
    std::ofstream nowhere("/dev/null");
    const auto writer = tool::makeRowWriter(rowFormat, nowhere, {});
    tool::RowStream<tool::PhotoRow> stream(*writer, tool::rowsHead("photos", library),
                                           tool::factsOf(tool::photoFields()));
    for (const tool::Asset asset : assets)
        stream.write(rows.of(asset));
    stream.end();
}

} // namespace

void printOutputBytes(const std::filesystem::path &database, const std::string &format,
                      std::ostream &out)
{
    tool::Session session;
    const tool::Library library(
        session, tool::LibraryRequest{database.string(), {iosVersion, productType}, {}, false});
    const tool::AssetList assets(library.albums());
    const tool::BurstFrames bursts(assets);
    const tool::PhotoRows rows(library, bursts);
    forgetPeak();
    const double before = residentBytes();
    writePhotos(library, assets, rows, format);
    out << peakBytes() - before << '\n';
}

#ifdef __linux__

std::optional<double> outputBytes(const std::filesystem::path &database, const std::string &format)
{
    const std::string self = std::filesystem::read_symlink("/proc/self/exe").string();
    const ChildRun child = runChild({self, outputOption, database.string(), format}, Output::Kept);
    if (child.status != 0)
        throw std::runtime_error("cannot measure the memory for " + database.string());
    return std::stod(child.output);
}

#else

std::optional<double> outputBytes(const std::filesystem::path &, const std::string &)
{
    return std::nullopt;
}

#endif

} // namespace iosphoto::bench
