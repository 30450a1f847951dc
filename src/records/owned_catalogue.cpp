#include "records/owned_catalogue.h"

#include "records/record_ownership.h"

namespace iosphoto {

OwnedCatalogue::~OwnedCatalogue()
{
    destroyRecords(albums);
}

// What was moved from is left empty, so that no record has two owners.
OwnedCatalogue::OwnedCatalogue(OwnedCatalogue &&other) noexcept
    : albums(std::exchange(other.albums, {}))
{
}

OwnedCatalogue &OwnedCatalogue::operator=(OwnedCatalogue &&other) noexcept
{
    albums.swap(other.albums); // what was here goes with the other
    return *this;
}

} // namespace iosphoto
