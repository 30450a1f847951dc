#include "schema/opened_copy.h"

#include "sqlite/database_size.h"

namespace iosphoto::tool {

namespace {

std::optional<SourceFinding> missingOf(const WriteAheadLog &log, const std::string &database)
{
    if (log.state == LogState::NoLog)
        return SourceFinding{SourceProblem::LogIsNoLog, {database}};
    if (log.state != LogState::Damaged)
        return std::nullopt;
    if (log.isHeaderDamaged)
        return SourceFinding{SourceProblem::LogHeaderIsDamaged,
                             {database, std::to_string(log.lostCommits)}};
    const std::string commits = std::to_string(log.commits);
    if (log.lostCommits == 0)
        return SourceFinding{SourceProblem::LogIsCutShort, {database, commits}};
    return SourceFinding{SourceProblem::LogIsDamaged,
                         {database, commits, std::to_string(log.commits + log.lostCommits)}};
}

} // namespace

OpenedCopy::OpenedCopy(Session &session, const Source &source, const Device &wanted)
    : shownName_(source.databaseName()), copy_(session, source),
      schema_(probe(connect(), wanted, source.device().value_or(RecordedDevice()))),
      missing_(source.missing())
{
    missing_.insert(missing_.end(), copy_.missing().begin(), copy_.missing().end());
    if (const auto missing = missingOf(copy_.log(), shownName_))
        missing_.push_back(*missing);
    const auto cut = cutOf(copy_.database());
    if (cut && !copy_.log().isApplied()) // a log may hold the rest
        missing_.push_back({SourceProblem::DatabaseIsCutShort,
                            {shownName_, std::to_string(cut->size), std::to_string(cut->whole)}});
}

CopyDatabase OpenedCopy::connect() const
{
    return {copy_.database(), shownName_};
}

} // namespace iosphoto::tool
