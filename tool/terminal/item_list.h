/// Cells of tables that are lists: they are shortened by whole items.
#ifndef IOSPHOTO_TOOL_ITEM_LIST_H
#define IOSPHOTO_TOOL_ITEM_LIST_H

#include <cstddef>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// Texts as one cell that still knows where they end. They are made printable.
std::string cellOfItems(const std::vector<std::string> &texts);

/// Such a cell as it is shown: all items, with commas.
std::string shownItems(const std::string &cell);

/// The same in at most so many columns: as many items as fit, and "+3" for the rest.
std::string shownItems(const std::string &cell, std::size_t columns);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ITEM_LIST_H
