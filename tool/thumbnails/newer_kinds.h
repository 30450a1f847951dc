#ifndef IOSPHOTO_TOOL_NEWER_KINDS_H
#define IOSPHOTO_TOOL_NEWER_KINDS_H

#include "ithmb/ithmb.h"

#include <filesystem>
#include <vector>

namespace iosphoto::tool {

/// A kind of the caches that later systems keep, with 32 bits per pixel or, it seems, compressed.
/// Their records end in the same trailer, so that they can be recognised, but not decoded.
struct NewerKind
{
    const char *fileName; ///< that such caches were seen under
    int recordSize;
    int side; ///< of its pictures, in pixels
    int bitsPerPixel;
};

/// The kinds that match the file's size and most of its records. Two kinds have records of one
/// size; the file's name tells them apart, where it is one of theirs.
std::vector<NewerKind> newerKindsOf(ifile &file, const std::filesystem::path &name);

/// How many formats and kinds of caches have a record size that divides the size of the file.
int kindsOfSize(ifile &file);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_NEWER_KINDS_H
