/// What it means for a library that a pass did not read to its end.
#ifndef IOSPHOTO_TOOL_READING_STOP_H
#define IOSPHOTO_TOOL_READING_STOP_H

#include "ios_photo_report.h"
#include "process/failure.h"

#include <cstdint>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// A database that was read, for messages.
struct ReadDatabase
{
    std::string name; ///< as the user knows it
    std::string adviceIfDamaged;
    std::int64_t rowLimit; ///< the most rows that a pass was to read
};

/// What is missing, why, and what to do: one sentence for each reason.
std::vector<std::string> sentencesOf(const CReadReport &report, const ReadDatabase &database);

/// That no photo could be read, because of an SQLite code.
Failure nothingRead(int code, const ReadDatabase &database);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_READING_STOP_H
