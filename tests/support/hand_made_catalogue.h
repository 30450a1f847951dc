#ifndef IOSPHOTO_TESTS_HAND_MADE_CATALOGUE_H
#define IOSPHOTO_TESTS_HAND_MADE_CATALOGUE_H

#include "model/catalogue_finish.h"
#include "records/record_ownership.h"
#include "support/catalogue.h"

#include <memory>

namespace iosphoto::test {

constexpr bool smart = true;
constexpr bool plain = false;

/// Albums made without a database, to be finished as a build finishes its own.
class HandMadeCatalogue : public OwnedCatalogue
{
public:
    /// Appends an album. What is returned lives until the next call.
    CAlbumGroup &add(AlbumKind::Code kind, bool isSmart, const char *name, const Files &names = {})
    {
        CAlbumGroup &album = albums.emplace_back();
        album.albumIndex = static_cast<std::int32_t>(albums.size()) - 1;
        album.albumKind = kind;
        album.isSmartAlbum = isSmart;
        album.albumName = QString::fromUtf8(name);
        for (const std::string &file : names)
            addPhoto(album, file);
        return album;
    }

    static CPhotoData &addPhoto(CAlbumGroup &album, const std::string &file)
    {
        auto photo = std::make_unique<CPhotoData>();
        photo->fileName = QString::fromStdString(file);
        CPhotoData &added = *photo;
        append(album, std::move(photo));
        return added;
    }

    void finish() { finishCatalogue(albums); }
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_HAND_MADE_CATALOGUE_H
