/// What it means for a library that a pass did not read to its end.
#ifndef IOSPHOTO_TOOL_READING_STOP_H
#define IOSPHOTO_TOOL_READING_STOP_H

#include "catalogue/library.h"
#include "ios_photo_report.h"
#include "process/failure.h"

#include <cstdint>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// What is missing, why, and what to do: one sentence for each reason.
/// @param database  as the user knows it
/// @param rowLimit  the most rows that a pass was to read
std::vector<std::string> sentencesOf(const CReadReport &report, const std::string &database,
                                     std::int64_t rowLimit);

/// Why no photo could be read, and what to do.
Failure inWords(const NothingRead &nothing);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_READING_STOP_H
