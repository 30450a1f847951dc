#ifndef IOSPHOTO_TOOL_OUTPUT_PROBLEM_H
#define IOSPHOTO_TOOL_OUTPUT_PROBLEM_H

#include "process/finding.h"

namespace iosphoto::tool {

/// Why a database is not written, with the facts of each in their order.
enum class OutputProblem {
    InUse,     ///< file, the log that lies beside it
    NotOurs,   ///< file, which is there and was not written by the tool
    Unwritten, ///< file, reason
};

using OutputError = FindingError<OutputProblem>;

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_OUTPUT_PROBLEM_H
