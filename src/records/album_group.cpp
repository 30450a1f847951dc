#include "ios_photo.h"

CAlbumGroup::CAlbumGroup() = default;
CAlbumGroup::CAlbumGroup(const CAlbumGroup &other) = default;
CAlbumGroup::CAlbumGroup(CAlbumGroup &&other) noexcept = default;
CAlbumGroup &CAlbumGroup::operator=(const CAlbumGroup &other) = default;
CAlbumGroup &CAlbumGroup::operator=(CAlbumGroup &&other) noexcept = default;
CAlbumGroup::~CAlbumGroup() = default;
