#include "support/report.h"

#include "records/record_ownership.h"

#include <algorithm>
#include <stdexcept>

namespace iosphoto::test {

ReportedBuild::ReportedBuild(const LibraryBuilder &library)
    : ReportedBuild(library.path(), library.schema().iosVersion, library.schema().productType)
{
}

ReportedBuild::ReportedBuild(const std::string &path, const std::string &iosVersion,
                             const std::string &productType)
    : result(ios_photo_get_list_reported(path, iosVersion, productType, &albums, &report))
{
}

ReportedBuild::~ReportedBuild()
{
    destroyRecords(albums);
}

const CPassReport &ReportedBuild::of(Pass::Code pass) const
{
    const auto found = std::find_if(report.passes.begin(), report.passes.end(),
                                    [&](const CPassReport &entry) { return entry.pass == pass; });
    if (found == report.passes.end())
        throw std::runtime_error("the pass did not run");
    return *found;
}

} // namespace iosphoto::test
