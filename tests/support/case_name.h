#ifndef IOSPHOTO_TESTS_CASE_NAME_H
#define IOSPHOTO_TESTS_CASE_NAME_H

#include <cctype>
#include <string>

namespace iosphoto::test {

/// A text made fit for the name of a case: letters and digits stay, the rest becomes '_'.
inline std::string caseName(std::string text)
{
    for (char &character : text)
        if (std::isalnum(static_cast<unsigned char>(character)) == 0)
            character = '_';
    return text.empty() ? "empty" : text;
}

/// For INSTANTIATE_TEST_SUITE_P with parameters that have a name().
struct NameOfCase
{
    template <typename Info>
    std::string operator()(const Info &info) const
    {
        return caseName(info.param.name());
    }
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_CASE_NAME_H
