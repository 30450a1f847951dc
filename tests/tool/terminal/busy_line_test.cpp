#include "terminal/busy_line.h"

#include "support/shown_on_terminal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

using namespace iosphoto::test;
using iosphoto::tool::BusyLine;
using iosphoto::tool::Terminal;
using testing::StartsWith;

namespace {

const Terminal terminal;

} // namespace

TEST(BusyLine, IsShownWhileALongCallRunsAndClearedThen)
{
    const std::string shown = shownOnTerminal([] {
        const BusyLine busy(terminal, "reading photos", std::chrono::milliseconds(1));
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    });
    EXPECT_EQ(shown, "\r\x1b[Kreading photos ... 1 s\r\x1b[K");
}

TEST(BusyLine, SparesAShortCall)
{
    EXPECT_EQ(shownOnTerminal(
                  [] { const BusyLine busy(terminal, "reading photos", std::chrono::hours(1)); }),
              "");
}

TEST(BusyLine, IsNotShownToWhoWantsItQuiet)
{
    Terminal quiet;
    quiet.beQuiet();
    const std::string shown = shownOnTerminal([&] {
        const BusyLine busy(quiet, "reading photos", std::chrono::milliseconds(1));
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    });
    EXPECT_EQ(shown, "");
}

TEST(BusyLine, IsCutToTheTerminal)
{
    const std::string shown = shownOnTerminal([] {
        const BusyLine busy(terminal, std::string(100, 'x'), std::chrono::milliseconds(1));
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    });
    EXPECT_THAT(shown, StartsWith("\r\x1b[K" + std::string(38, 'x') + "…\r"));
}
