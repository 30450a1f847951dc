#include "terminal/item_list.h"

#include "terminal/display_width.h"
#include "text/lists.h"
#include "text/printable.h"

#include <sstream>

namespace iosphoto::tool {

namespace {

constexpr char separator = '\x1f'; // which no printable text has

std::vector<std::string> itemsOf(const std::string &cell)
{
    std::istringstream stream(cell);
    std::vector<std::string> items;
    for (std::string item; std::getline(stream, item, separator);)
        items.push_back(item);
    return items;
}

/// What stands for so many items behind others.
std::string rest(std::size_t count)
{
    return translate(", ") + "+" + std::to_string(count);
}

} // namespace

std::string cellOfItems(const std::vector<std::string> &texts)
{
    return joinedTexts(texts, std::string(1, separator), printable);
}

std::string shownItems(const std::string &cell)
{
    return listForPeople(itemsOf(cell));
}

std::string shownItems(const std::string &cell, std::size_t columns)
{
    std::vector<std::string> items = itemsOf(cell);
    const std::string whole = listForPeople(items);
    if (items.size() < 2 || displayWidth(whole) <= columns)
        return elided(whole, columns);
    const std::size_t all = items.size();
    for (items.pop_back(); !items.empty(); items.pop_back()) {
        std::string shortened = listForPeople(items) + rest(all - items.size());
        if (displayWidth(shortened) <= columns)
            return shortened;
    }
    const std::string others = rest(all - 1);
    const std::size_t width = displayWidth(others);
    return width < columns ? elided(itemsOf(cell).front(), columns - width) + others
                           : elided(whole, columns);
}

} // namespace iosphoto::tool
