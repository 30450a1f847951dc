#ifndef IOSPHOTO_CAMERA_ROLL_PASS_H
#define IOSPHOTO_CAMERA_ROLL_PASS_H

#include "model/passes/pass_context.h"

namespace iosphoto {

/// Reads the device's own photos into the first album and copies of them into the smart albums.
/// @return the number of rows that were read, or a negated SQLite code
int readCameraRoll(const PassContext &context);

} // namespace iosphoto

#endif // IOSPHOTO_CAMERA_ROLL_PASS_H
