#include "commands/library_messages.h"

#include "catalogue/catalogue_build.h"
#include "commands/passed_over_words.h"
#include "commands/problem_words.h"
#include "commands/reading_stop.h"
#include "sqlite/sqlite_error.h"
#include "text/lists.h"
#include "text/translate.h"
#include "time/time_text.h"

namespace iosphoto::tool {

namespace {

std::string reasonOf(const Moment &asOf)
{
    if (asOf.assumedZone.empty())
        return asOf.why;
    return translate("{0}; the archive does not say in which time zone, {1} is assumed", asOf.why,
                     asOf.assumedZone);
}

std::string assumptions(const Library &library)
{
    const Moment &asOf = library.asOf();
    if (asOf.time == beforeAllTrash)
        return translate("reading as {0} and {1}", library.schema().iosText(),
                         library.schema().productText());
    const std::string when = localTimeText(asOf.time);
    return translate("reading as {0} and {1}, as of {2}", library.schema().iosText(),
                     library.schema().productText(),
                     asOf.why.empty() ? when : translate("{0} ({1})", when, reasonOf(asOf)));
}

/// What was assumed; empty if nothing.
std::string infoOf(const Library &library)
{
    if (library.schema().isAssumed() || !library.asOf().why.empty())
        return assumptions(library);
    return "";
}

/// What is left out and why; empty if nothing.
std::string leftOutOf(const Library &library, Shown shown)
{
    std::vector<std::string> parts;
    const auto add = [&](PhotoReason reason) {
        const std::int64_t count = library.account()->photos.leftOutFor(reason);
        if (count > 0)
            parts.push_back(translate("{0} {1}", count, translateTerm(words(reason))));
    };
    if (library.account())
        for (std::size_t reason = 0; reason < photoReasonCount; ++reason)
            add(PhotoReason(reason));
    if (parts.empty())
        return "";
    return shown == Shown::Listed
               ? translate("left out: {0}; iosphoto photos --left-out lists them",
                           listForPeople(parts))
               : translate("left out: {0}", listForPeople(parts));
}

/// What is in albums without a title; empty if nothing.
std::string untitledOf(const Library &library)
{
    const std::int64_t photos = library.account() ? library.account()->untitled.photos : 0;
    if (photos == 0)
        return "";
    return translate("the catalogue does not read the contents of albums without a title: photos "
                     "that are not shown in such albums: {0}; albums: {1}",
                     photos, library.account()->untitled.albums);
}

/// What a good log leaves open: its end may be what a device wrote, or what damage made of it.
std::vector<SourceProblem> doubtsAbout(const WriteAheadLog &log)
{
    std::vector<SourceProblem> doubts;
    if (log.state != LogState::Good)
        return doubts;
    if (log.hasOpenChange)
        doubts.push_back(SourceProblem::LogEndsInOpenChange);
    if (log.endsInZeros)
        doubts.push_back(SourceProblem::LogEndsInZeros);
    if (log.frames == 0)
        doubts.push_back(SourceProblem::LogHasNoFrame);
    return doubts;
}

} // namespace

void printHowItWasRead(const Terminal &terminal, const Library &library, const std::string &label,
                       Shown shown)
{
    if (const std::string line = infoOf(library); !line.empty())
        terminal.printInfo(label + line);
    if (const std::string line = inWords(library.passedOver()); !line.empty())
        terminal.printInfo(label + line);
    if (const std::string line = leftOutOf(library, shown); !line.empty())
        terminal.printWarning(label + line);
    if (const std::string line = untitledOf(library); !line.empty())
        terminal.printWarning(label + line);
    if (library.schema().warning)
        terminal.printWarning(label + inWords(*library.schema().warning).what());
    for (const SchemaFinding &gap : library.schema().gaps)
        terminal.printWarning(label + inWords(gap).what());
    if (library.isBareStream())
        terminal.printWarning(
            label + translate("a write-ahead log (-wal) does not come through standard input, so "
                              "what only that holds is not shown"));
    for (const SourceFinding &finding : library.missing())
        terminal.printWarning(label + inWords(finding).what());
    for (const SourceProblem problem : doubtsAbout(library.log()))
        terminal.printWarning(label + inWords(SourceFinding{problem, {library.database()}}).what());
    for (const std::string &sentence :
         sentencesOf(library.report(), library.database(), library.rowLimit()))
        terminal.printWarning(label + sentence);
    if (library.unreadRows() > 0 && library.report().firstStopped() == nullptr)
        terminal.printWarning(label + translate("'{0}' is damaged: {1} of its rows could not be "
                                                "read; {2}",
                                                library.database(), library.unreadRows(),
                                                adviceFor(IfDamaged::CopyLibraryAgain)));
    if (!library.uncounted().empty() && library.report().firstStopped() == nullptr)
        terminal.printWarning(label + library.uncounted());
}

ExitStatus statusOf(const Library &library)
{
    return library.isComplete() ? Good : Incomplete;
}

} // namespace iosphoto::tool
