/// The words for what can be wrong: what it is, with which file, and what to do.
#ifndef IOSPHOTO_TOOL_PROBLEM_WORDS_H
#define IOSPHOTO_TOOL_PROBLEM_WORDS_H

#include "input/source_problem.h"
#include "process/exit_status.h"
#include "process/failure.h"
#include "rows/output_problem.h"
#include "schema/schema_problem.h"

#include <functional>

namespace iosphoto::tool {

/// A finding as one line, and the exit status of a command that ends with it.
/// @{
Failure inWords(const SourceFinding &finding);
Failure inWords(const SchemaFinding &finding);
Failure inWords(const Finding<OutputProblem> &finding);
/// @}

/// Runs a command. The types of problems that it throws become Failures, which have words.
ExitStatus runWithWords(const std::function<ExitStatus()> &command);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_PROBLEM_WORDS_H
