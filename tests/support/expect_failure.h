#ifndef IOSPHOTO_TESTS_EXPECT_FAILURE_H
#define IOSPHOTO_TESTS_EXPECT_FAILURE_H

#include "support/run_tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace iosphoto::test {

/// Nothing on stdout, one line on stderr that begins like `error`, and the status.
inline void expectFailure(const ToolRun &run, const std::string &error, int status)
{
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.error, testing::StartsWith("iosphoto: " + error));
    EXPECT_EQ(std::count(run.error.begin(), run.error.end(), '\n'), 1) << run.error;
    EXPECT_EQ(run.error.substr(run.error.size() - 1), "\n");
    EXPECT_EQ(run.status, status);
}

inline std::string quoted(const std::filesystem::path &path)
{
    return "'" + path.string() + "'";
}

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_EXPECT_FAILURE_H
