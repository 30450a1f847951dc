#include "terminal/progress_bar.h"

#include "support/shown_on_terminal.h"

#include <gtest/gtest.h>

using iosphoto::test::shownOnTerminal;
using iosphoto::tool::ProgressBar;
using iosphoto::tool::progressLine;
using iosphoto::tool::Terminal;

namespace {

const Terminal terminal;

} // namespace

TEST(ProgressLine, ShowsHowFarACommandIs)
{
    EXPECT_EQ(progressLine("writing", 0, 8, 80), "writing [                    ] 0/8");
    EXPECT_EQ(progressLine("writing", 2, 8, 80), "writing [#####               ] 2/8");
    EXPECT_EQ(progressLine("writing", 8, 8, 80), "writing [####################] 8/8");
}

TEST(ProgressLine, FitsIntoTheColumns)
{
    EXPECT_EQ(progressLine("writing", 4, 8, 21).size(), 21);
    for (std::size_t columns = 3; columns < 50; ++columns)
        EXPECT_LE(progressLine("writing", 4, 8, columns).size(), columns);
}

TEST(ProgressLine, IsOnlyTheNumbersOnATerminalThatIsTooNarrow)
{
    EXPECT_EQ(progressLine("writing", 4, 8, 17), "4/8");
}

TEST(ProgressBar, IsShownWhereItTakesLongAndClearedThen)
{
    const std::string shown = shownOnTerminal([] {
        ProgressBar progress(terminal, "writing", 8, std::chrono::seconds(0));
        progress.show(2);
    });
    EXPECT_EQ(shown, "\r\x1b[Kwriting [#####               ] 2/8\r\x1b[K");
}

TEST(ProgressBar, SparesAShortCommand)
{
    EXPECT_EQ(shownOnTerminal([] { ProgressBar(terminal, "writing", 8).show(8); }), "");
}

TEST(ProgressBar, IsNotShownToWhoWantsItQuiet)
{
    Terminal quiet;
    quiet.beQuiet();
    const std::string shown =
        shownOnTerminal([&] { ProgressBar(quiet, "writing", 8, std::chrono::seconds(0)).show(2); });
    EXPECT_EQ(shown, "");
}
