#ifndef IOSPHOTO_OWNED_CATALOGUE_H
#define IOSPHOTO_OWNED_CATALOGUE_H

#include "ios_photo.h"

#include <utility>
#include <vector>

namespace iosphoto {

/// A catalogue whose records go with it.
class OwnedCatalogue
{
public:
    OwnedCatalogue() = default;
    /// Takes the records over.
    explicit OwnedCatalogue(std::vector<CAlbumGroup> catalogue) : albums(std::move(catalogue)) {}
    ~OwnedCatalogue();
    OwnedCatalogue(OwnedCatalogue &&other) noexcept;
    OwnedCatalogue &operator=(OwnedCatalogue &&other) noexcept;
    OwnedCatalogue(const OwnedCatalogue &) = delete;
    OwnedCatalogue &operator=(const OwnedCatalogue &) = delete;

    std::vector<CAlbumGroup> albums;
};

} // namespace iosphoto

#endif // IOSPHOTO_OWNED_CATALOGUE_H
