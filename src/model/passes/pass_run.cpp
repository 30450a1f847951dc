#include "model/passes/pass_run.h"

#include <algorithm>

namespace iosphoto {

PassRun::PassRun(const PassContext &context, Pass::Code pass) : context_(context)
{
    std::vector<CPassReport> &passes = context.report.passes;
    const auto isOfPass = [&](const CPassReport &entry) { return entry.pass == pass; };
    passes.erase(std::remove_if(passes.begin(), passes.end(), isOfPass), passes.end());
    passes.emplace_back().pass = pass;
}

/// Where a pass before this one has waited in vain the catalogue is not whole any more, so that it
/// would not help to wait again.
Patience PassRun::patience()
{
    const std::vector<CPassReport> &passes = context_.report.passes;
    const bool wasInVain =
        std::any_of(passes.begin(), passes.end(), [&](const CPassReport &earlier) {
            return earlier.pass < report().pass && earlier.code == lockedBySomebody;
        });
    return wasInVain ? Patience::None : Patience::Usual;
}

void PassRun::note(const Stop &stop)
{
    report().code = stop.code;
    report().extendedCode = stop.extendedCode;
    report().text = stop.text;
}

void noteOutOfMemory(CReadReport &report, Pass::Code pass) noexcept
{
    if (report.passes.empty() || report.passes.back().pass != pass)
        return; // not even for the entry was there memory
    CPassReport &entry = report.passes.back();
    entry.code = entry.extendedCode = -outOfMemory;
    entry.text = "out of memory"; // short enough to need none
}

} // namespace iosphoto
