#ifndef IOSPHOTO_DEFAULT_ALBUMS_H
#define IOSPHOTO_DEFAULT_ALBUMS_H

#include "ios_photo.h"
#include "model/device/device_profile.h"

namespace iosphoto {

/// Appends Camera Roll, Photo Library and the smart albums that the device can have. When it throws
/// it has appended nothing; nor has the next function.
void appendDefaultAlbums(std::vector<CAlbumGroup> &albums, const DeviceProfile &device);

/// Appends the second Selfies, Portrait, Panoramas and Screenshots albums. They are not smart: they
/// collect from the albums of the table that the user did not make on the device.
void appendCollectingAlbums(std::vector<CAlbumGroup> &albums, const DeviceProfile &device);

} // namespace iosphoto

#endif // IOSPHOTO_DEFAULT_ALBUMS_H
