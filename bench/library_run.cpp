#include "library_run.h"

#include "device.h"

#include <stdexcept>

namespace iosphoto::bench {

void LibraryRun::read(const std::filesystem::path &database)
{
    const int result =
        ios_photo_get_list(database.string(), iosVersion, productType, &catalogue_.albums);
    if (result != 0 || records() == 0)
        throw std::runtime_error("the library read nothing from " + database.string());
}

std::size_t LibraryRun::records() const
{
    std::size_t records = 0;
    for (const CAlbumGroup &album : catalogue_.albums)
        records += album.photos.size();
    return records;
}

} // namespace iosphoto::bench
