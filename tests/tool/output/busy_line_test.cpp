#include "output/busy_line.h"

#include "output/notice.h"
#include "support/pseudo_terminal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>
#include <unistd.h>

using namespace iosphoto::test;
using iosphoto::tool::BusyLine;
using testing::StartsWith;

namespace {

/// What a terminal shows as stderr of a call.
template <typename Call>
std::string shownBy(Call call)
{
    PseudoTerminal terminal(40);
    const int before = dup(STDERR_FILENO);
    dup2(terminal.descriptor(), STDERR_FILENO);
    call();
    dup2(before, STDERR_FILENO);
    close(before);
    return terminal.text();
}

} // namespace

TEST(BusyLine, IsShownWhileALongCallRunsAndClearedThen)
{
    const std::string shown = shownBy([] {
        const BusyLine busy("reading photos", std::chrono::milliseconds(1));
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    });
    EXPECT_EQ(shown, "\r\x1b[Kreading photos ... 1 s\r\x1b[K");
}

TEST(BusyLine, SparesAShortCall)
{
    EXPECT_EQ(shownBy([] { const BusyLine busy("reading photos", std::chrono::hours(1)); }), "");
}

TEST(BusyLine, IsNotShownToWhoWantsItQuiet)
{
    iosphoto::tool::beQuiet(true);
    const std::string shown = shownBy([] {
        const BusyLine busy("reading photos", std::chrono::milliseconds(1));
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    });
    iosphoto::tool::beQuiet(false);
    EXPECT_EQ(shown, "");
}

TEST(BusyLine, IsCutToTheTerminal)
{
    const std::string shown = shownBy([] {
        const BusyLine busy(std::string(100, 'x'), std::chrono::milliseconds(1));
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    });
    EXPECT_THAT(shown, StartsWith("\r\x1b[K" + std::string(38, 'x') + "…\r"));
}
