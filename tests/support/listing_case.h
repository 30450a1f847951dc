#ifndef IOSPHOTO_TESTS_LISTING_CASE_H
#define IOSPHOTO_TESTS_LISTING_CASE_H

#include <ostream>
#include <string>
#include <vector>

namespace iosphoto::test {

/// Options of `photos`, and the files that it is to list with them, in order.
struct ListingCase
{
    std::vector<std::string> arguments;
    std::vector<std::string> names;

    std::string name() const
    {
        std::string all;
        for (const std::string &argument : arguments)
            all += argument;
        return all;
    }
};

inline std::ostream &operator<<(std::ostream &stream, const ListingCase &listing)
{
    return stream << listing.name();
}

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_LISTING_CASE_H
