#ifndef IOSPHOTO_TOOL_LIBRARY_LIST_FIELDS_H
#define IOSPHOTO_TOOL_LIBRARY_LIST_FIELDS_H

#include "catalogue/library_list.h"
#include "rows/fields.h"

namespace iosphoto::tool {

FieldTable<ListedLibrary> libraryListFields();

/// What is said once for all libraries of a list.
/// @param places  where they were looked for
RowsHead libraryListHead(const std::vector<std::string> &places, bool isComplete);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LIBRARY_LIST_FIELDS_H
