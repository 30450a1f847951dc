#ifndef IOSPHOTO_ROW_UUID_H
#define IOSPHOTO_ROW_UUID_H

#include "model/device/ios_generation.h"
#include "model/store/row.h"

#include <string>

namespace iosphoto {

/// The uuid of an asset or an album: a text from iOS 8 on, before that a blob.
inline std::string uuidOf(const Row &row, int column, IosGeneration ios)
{
    return ios >= IosGeneration::Ios8 ? row.bytes(column) : row.hex(column);
}

} // namespace iosphoto

#endif // IOSPHOTO_ROW_UUID_H
