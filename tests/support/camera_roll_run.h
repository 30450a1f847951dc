#ifndef IOSPHOTO_TESTS_CAMERA_ROLL_RUN_H
#define IOSPHOTO_TESTS_CAMERA_ROLL_RUN_H

#include "support/catalogue.h"

#include <set>

namespace iosphoto::test {

/// Album kinds, one entry for each record.
using Kinds = std::multiset<int>;

/// Looks the entity numbers up and reads the Camera Roll into the albums that the manager has.
/// @return the result of the Camera Roll pass.
int readCameraRoll(QDevPhotoDbMgr &manager);

/// A manager after the Camera Roll pass: its smart albums as the rules filled them, before the
/// catalogue's finish gathers videos, thins bursts and drops empty albums.
class CameraRollRun : public OwningManager
{
public:
    explicit CameraRollRun(const LibraryBuilder &library);
    CameraRollRun(const LibraryBuilder &library, const std::string &ios,
                  const std::string &model = "iPhone14,2");

    /// The kinds of the albums that show a file.
    Kinds shownIn(const char *fileName) const;

    /// The record of a file in the first album of a kind. Throws where there is none.
    const CPhotoData &photo(AlbumKind::Code kind, const char *fileName) const;
    const CPhotoData &photo(const char *fileName) const
    {
        return photo(AlbumKind::CameraRoll, fileName);
    }

    int rows;
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_CAMERA_ROLL_RUN_H
