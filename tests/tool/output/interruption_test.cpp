#include "failure.h"
#include "output/interruption.h"

#include <gtest/gtest.h>

using namespace iosphoto::tool;

TEST(Interruption, WaitsForTheNextCheckAndTellsTheSignal)
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const Interruption interruption;
        EXPECT_NO_THROW(Interruption::throwIfAskedFor());
        raise(signal);
        try {
            Interruption::throwIfAskedFor();
            FAIL() << signal;
        } catch (const Failure &failure) {
            EXPECT_EQ(failure.status(), 128 + signal);
        }
    }
}

TEST(Interruption, LeavesAnIgnoredSignalIgnored)
{
    std::signal(SIGHUP, SIG_IGN);
    {
        const Interruption interruption;
        raise(SIGHUP);
        EXPECT_NO_THROW(Interruption::throwIfAskedFor());
    }
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
}

TEST(Interruption, RestoresWhatSignalsDidBefore)
{
    const auto before = [](int) {};
    std::signal(SIGINT, before);
    {
        const Interruption interruption;
    }
    EXPECT_EQ(std::signal(SIGINT, SIG_DFL), +before);
}
