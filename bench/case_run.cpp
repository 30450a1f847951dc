#include "case_run.h"

#include "case_files.h"
#include "floor.h"
#include "library_run.h"
#include "other_ways.h"
#include "thumbnails.h"

#include <algorithm>

namespace iosphoto::bench {

namespace {

namespace fs = std::filesystem;

/// Few and short, as the tool takes long on a large library.
Rounds roundsOfTool(int wanted)
{
    constexpr int most = 3;
    return {std::min(wanted, most), 0};
}

std::optional<double> ratioTo(double floor, const std::optional<double> &seconds)
{
    return seconds ? std::optional(*seconds / floor) : std::nullopt;
}

CaseResult runThumbnails(const Case &wanted, const fs::path &cache, int rounds)
{
    const int count = wanted.shape.assets;
    const auto plainly = [&] { return secondsOf([&] { decodeAllPlainly(cache, count); }); };
    const auto library = [&] { return secondsOf([&] { decodeAll(cache, count); }); };
    CaseResult result = {};
    result.of = &wanted;
    result.assets = result.records = static_cast<std::size_t>(count);
    result.time = compare(plainly, library, {rounds});
    return result;
}

CaseResult runCatalogue(const Case &wanted, const fs::path &database, int rounds)
{
    const Floor floor(database);
    CaseResult result = {};
    result.of = &wanted;
    const auto runFloor = [&] { return secondsOf([&] { floor.visitAll(); }); };
    const auto runLibrary = [&] {
        LibraryRun library;
        const double seconds = secondsOf([&] { library.read(database); });
        result.records = library.records();
        return seconds;
    };
    result.memory = memoryUse(database);
    if (wanted.group == Group::Sizes)
        result.tool = toolCosts(database, floor, roundsOfTool(rounds));
    result.assets = static_cast<std::size_t>(floor.assets());
    result.time = compare(runFloor, runLibrary, {rounds});
    // Last, as they leave files beside the database.
    const double floorSeconds = result.time.floorSeconds;
    result.pythonRatio = ratioTo(floorSeconds, secondsInPython(database, floor.statements()));
    result.shellRatio = ratioTo(floorSeconds, secondsInShell(database, floor.statements()));
    return result;
}

} // namespace

CaseResult runCase(const fs::path &folder, const Case &wanted, int rounds)
{
    const fs::path subject = subjectIn(folder, wanted);
    return wanted.subject == Subject::ThumbCache ? runThumbnails(wanted, subject, rounds)
                                                 : runCatalogue(wanted, subject, rounds);
}

void runLibraryOnly(const fs::path &folder, const Case &wanted)
{
    const fs::path subject = subjectIn(folder, wanted);
    if (wanted.subject == Subject::ThumbCache)
        decodeAll(subject, wanted.shape.assets);
    else
        LibraryRun().read(subject);
}

} // namespace iosphoto::bench
