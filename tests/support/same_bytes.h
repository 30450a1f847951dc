#ifndef IOSPHOTO_TESTS_SAME_BYTES_H
#define IOSPHOTO_TESTS_SAME_BYTES_H

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

namespace iosphoto::test {

/// Compares data that nobody wants to see printed.
inline testing::AssertionResult sameBytes(std::string_view found, std::string_view expected)
{
    if (found == expected)
        return testing::AssertionSuccess();
    const auto [at, ignored] =
        std::mismatch(found.begin(), found.end(), expected.begin(), expected.end());
    return testing::AssertionFailure() << found.size() << " bytes, expected " << expected.size()
                                       << "; they differ from byte " << at - found.begin();
}

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_SAME_BYTES_H
