#ifndef IOSPHOTO_TOOL_SCHEMA_PROBE_H
#define IOSPHOTO_TOOL_SCHEMA_PROBE_H

#include "source/device.h"

#include <string>

namespace iosphoto::tool {

/// Makes sure that a database is a photo database whose statements run, and finds the device to
/// read it as: `wanted`, completed with the newest iOS whose tables and columns the database has
/// and with a product type that hides no album.
///
/// Throws Failure when the database is something else or fits no device. May roll back a journal:
/// for private copies only.
/// @param shownName  the file as the user named it, for messages
Device probe(const std::string &database, const std::string &shownName, const Device &wanted);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SCHEMA_PROBE_H
