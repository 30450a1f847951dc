#include "schema/opened_copy.h"

#include "text/translate.h"

namespace iosphoto::tool {

OpenedCopy::OpenedCopy(const Source &source, const Device &wanted)
    : shownName_(source.databaseName()), copy_(source),
      schema_(probe(connect(), wanted, source.device().value_or(RecordedDevice()))),
      missing_(source.missing())
{
    if (copy_.hasLog() && !copy_.hasReadableLog())
        missing_.push_back(
            translate("the -wal of '{0}' is no write-ahead log, so changes that it was "
                      "to hold are missing; {1}",
                      shownName_, adviceToCopyAgain()));
}

CopyDatabase OpenedCopy::connect() const
{
    return {copy_.database(), shownName_, adviceToCopyAgain()};
}

} // namespace iosphoto::tool
