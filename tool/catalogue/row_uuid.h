#ifndef IOSPHOTO_TOOL_ROW_UUID_H
#define IOSPHOTO_TOOL_ROW_UUID_H

#include "sqlite/copy_database.h"

#include <QByteArray>

#include <string>

namespace iosphoto::tool {

/// The uuid of a row as records have it: below iOS 8 it is a blob, of which they have the digits.
inline std::string uuidOf(const QueryRow &row, int column)
{
    const std::string uuid = row.text(column);
    return row.isBlob(column) ? QByteArray::fromStdString(uuid).toHex().toStdString() : uuid;
}

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ROW_UUID_H
