#include "ios_photo_report.h"

#include <algorithm>

namespace {

bool hasStopped(const CPassReport &pass)
{
    return pass.code != 0;
}

} // namespace

CReadReport::CReadReport() = default;
CReadReport::CReadReport(const CReadReport &other) = default;
CReadReport::CReadReport(CReadReport &&other) noexcept = default;
CReadReport &CReadReport::operator=(const CReadReport &other) = default;
CReadReport &CReadReport::operator=(CReadReport &&other) noexcept = default;
CReadReport::~CReadReport() = default;

bool CReadReport::isComplete() const
{
    constexpr std::size_t all = iosphoto::Pass::AlbumContents;
    return passes.size() == all && firstStopped() == nullptr;
}

const CPassReport *CReadReport::firstStopped() const
{
    const auto stopped = std::find_if(passes.begin(), passes.end(), hasStopped);
    return stopped != passes.end() ? &*stopped : nullptr;
}
