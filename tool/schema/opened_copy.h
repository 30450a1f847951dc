#ifndef IOSPHOTO_TOOL_OPENED_COPY_H
#define IOSPHOTO_TOOL_OPENED_COPY_H

#include "input/private_copy.h"
#include "schema/schema_probe.h"

#include <string>
#include <vector>

namespace iosphoto::tool {

/// A private copy of a source's database that turned out to be a photo database, and what it says
/// of itself. The copy goes with the object.
class OpenedCopy
{
public:
    /// Copies and probes. Throws when there is no photo database that can be read.
    /// @param wanted  the device as far as the user named it
    OpenedCopy(Session &session, const Source &source, const Device &wanted);

    std::string file() const { return copy_.database(); }
    const ProbedSchema &schema() const { return schema_; }
    const WriteAheadLog &log() const { return copy_.log(); }
    /// Leaves the database as it is without its log. Connections have to be closed.
    void removeLog() const { copy_.removeLog(); }
    /// What should be there and is not.
    const std::vector<SourceFinding> &missing() const { return missing_; }

    /// Opens the copy for queries of the tool's own.
    CopyDatabase connect() const;

private:
    std::string shownName_;
    PrivateCopy copy_;
    ProbedSchema schema_;
    std::vector<SourceFinding> missing_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_OPENED_COPY_H
