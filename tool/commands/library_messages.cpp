#include "commands/library_messages.h"

#include "commands/problem_words.h"
#include "commands/reading_stop.h"
#include "text/translate.h"
#include "time/time_text.h"

namespace iosphoto::tool {

namespace {

std::string assumptions(const Library &library)
{
    const Moment &asOf = library.asOf();
    const std::string when = localTimeText(asOf.time);
    return translate("reading as {0} and {1}, as of {2}", library.schema().iosText(),
                     library.schema().productText(),
                     asOf.why.empty() ? when : translate("{0} ({1})", when, asOf.why));
}

/// What was assumed and what is left out; empty if nothing.
std::string infoOf(const Library &library)
{
    std::string line;
    if (library.schema().isAssumed() || !library.asOf().why.empty())
        line = assumptions(library);
    if (library.leftOut() > 0)
        line += (line.empty() ? "" : translate("; ")) +
                translate("left out since they were in the trash for 30 days: {0} (see --as-of)",
                          library.leftOut());
    return line;
}

} // namespace

void printHowItWasRead(const Terminal &terminal, const Library &library, const std::string &label)
{
    if (const std::string line = infoOf(library); !line.empty())
        terminal.printInfo(label + line);
    if (library.schema().warning)
        terminal.printWarning(label + inWords(*library.schema().warning).what());
    for (const SourceFinding &finding : library.missing())
        terminal.printWarning(label + inWords(finding).what());
    for (const std::string &sentence :
         sentencesOf(library.report(), library.database(), library.rowLimit()))
        terminal.printWarning(label + sentence);
}

ExitStatus statusOf(const Library &library)
{
    return library.isComplete() ? Good : Incomplete;
}

} // namespace iosphoto::tool
