#include "process/secret.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif

using namespace iosphoto::tool;

namespace {

/// Whether a process that has secrets may leave its memory on disk.
bool mayDumpMemory()
{
    rlimit limit = {};
    getrlimit(RLIMIT_CORE, &limit);
#ifdef __linux__
    if (prctl(PR_GET_DUMPABLE) != 0)
        return true;
#endif
    return limit.rlim_cur != 0;
}

} // namespace

TEST(Secret, IsWhatItWasMadeOf)
{
    const std::string_view password("pass\0word", 9);
    const Secret secret(password);
    EXPECT_EQ(secret.view(), password);
    EXPECT_EQ(secret.clone().view(), secret.view());
    EXPECT_TRUE(Secret().isEmpty());
}

TEST(Secret, IsMadeOfZeros)
{
    constexpr std::size_t size = 40;
    EXPECT_EQ(Secret(size).view(), std::string(size, '\0'));
}

TEST(Secret, MovesWithoutACopy)
{
    Secret first("password");
    const unsigned char *const bytes = first.data();
    const Secret second = std::move(first);
    EXPECT_EQ(second.data(), bytes);
    EXPECT_EQ(second.view(), "password");
}

TEST(Secret, IsInNoCoreDump)
{
    const pid_t child = fork();
    if (child == 0) {
        guardSecrets();
        _exit(mayDumpMemory() ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
}
