#ifndef IOSPHOTO_CATALOGUE_FINISH_H
#define IOSPHOTO_CATALOGUE_FINISH_H

#include "ios_photo.h"

namespace iosphoto {

/// Turns the albums as the passes left them into the catalogue: gathers the videos, orders the
/// albums, drops the empty ones, thins the bursts, counts. May throw for lack of memory; every
/// record is then still in exactly one album.
void finishCatalogue(std::vector<CAlbumGroup> &albums);

} // namespace iosphoto

#endif // IOSPHOTO_CATALOGUE_FINISH_H
