#ifndef IOSPHOTO_TOOL_USUAL_ENTITY_NUMBERS_H
#define IOSPHOTO_TOOL_USUAL_ENTITY_NUMBERS_H

#include "model/statements/entity_numbers.h"

#include <string>

namespace iosphoto::tool {

/// The entity numbers that databases of an iOS usually have; 0 for those that are not known. Only a
/// database itself can tell for sure, since they change from schema to schema.
EntityNumbers usualEntityNumbers(const std::string &iosVersion);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_USUAL_ENTITY_NUMBERS_H
