#include "terminal/busy_line.h"

#include "support/shown_on_terminal.h"
#include "terminal/messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

using namespace iosphoto::test;
using iosphoto::tool::BusyLine;
using testing::StartsWith;

TEST(BusyLine, IsShownWhileALongCallRunsAndClearedThen)
{
    const std::string shown = shownOnTerminal([] {
        const BusyLine busy("reading photos", std::chrono::milliseconds(1));
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    });
    EXPECT_EQ(shown, "\r\x1b[Kreading photos ... 1 s\r\x1b[K");
}

TEST(BusyLine, SparesAShortCall)
{
    EXPECT_EQ(shownOnTerminal([] { const BusyLine busy("reading photos", std::chrono::hours(1)); }),
              "");
}

TEST(BusyLine, IsNotShownToWhoWantsItQuiet)
{
    iosphoto::tool::beQuiet(true);
    const std::string shown = shownOnTerminal([] {
        const BusyLine busy("reading photos", std::chrono::milliseconds(1));
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    });
    iosphoto::tool::beQuiet(false);
    EXPECT_EQ(shown, "");
}

TEST(BusyLine, IsCutToTheTerminal)
{
    const std::string shown = shownOnTerminal([] {
        const BusyLine busy(std::string(100, 'x'), std::chrono::milliseconds(1));
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    });
    EXPECT_THAT(shown, StartsWith("\r\x1b[K" + std::string(38, 'x') + "…\r"));
}
