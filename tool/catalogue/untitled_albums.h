#ifndef IOSPHOTO_TOOL_UNTITLED_ALBUMS_H
#define IOSPHOTO_TOOL_UNTITLED_ALBUMS_H

#include "catalogue/reading_facts.h"
#include "sqlite/copy_database.h"

#include <cstdint>

namespace iosphoto::tool {

/// What the albums of the catalogue that have an empty title hold in the database: the catalogue
/// lists these albums, but does not read what is in them.
struct UntitledContents
{
    std::int64_t albums = 0; ///< that hold any photo
    std::int64_t photos = 0; ///< each once; without those in the trash

    bool operator==(const UntitledContents &other) const
    {
        return albums == other.albums && photos == other.photos;
    }
};

/// Throws Failure when the tables cannot be read.
UntitledContents contentsOfUntitled(const CopyDatabase &database, const ReadingFacts &reading);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_UNTITLED_ALBUMS_H
