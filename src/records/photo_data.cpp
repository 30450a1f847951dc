#include "ios_photo.h"

namespace {

// QPixmap's default and copy constructors abort a process that has no application object; this
// constructor and the assignment do not.
QPlatformPixmap *const noPixmap = nullptr;

} // namespace

CPhotoData::CPhotoData() : thumbnail(noPixmap) {}

CPhotoData::CPhotoData(const CPhotoData &other) : CPhotoData()
{
    *this = other;
}

CPhotoData &CPhotoData::operator=(const CPhotoData &other) = default;

CPhotoData::~CPhotoData() = default;

CPhotoData *CPhotoData::GetPhotoDataClone(const CPhotoData *source)
{
    return source != nullptr ? new CPhotoData(*source) : nullptr;
}
