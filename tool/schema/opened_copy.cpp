#include "schema/opened_copy.h"

namespace iosphoto::tool {

OpenedCopy::OpenedCopy(Session &session, const Source &source, const Device &wanted)
    : shownName_(source.databaseName()), copy_(session, source),
      schema_(probe(connect(), wanted, source.device().value_or(RecordedDevice()))),
      missing_(source.missing())
{
    if (copy_.hasLog() && !copy_.hasReadableLog())
        missing_.push_back({SourceProblem::LogIsNoLog, {shownName_}});
}

CopyDatabase OpenedCopy::connect() const
{
    return {copy_.database(), shownName_};
}

} // namespace iosphoto::tool
