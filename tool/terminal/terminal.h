#ifndef IOSPHOTO_TOOL_TERMINAL_H
#define IOSPHOTO_TOOL_TERMINAL_H

#include <atomic>
#include <optional>
#include <ostream>
#include <string>

namespace iosphoto::tool {

/// What a text is shown on.
struct Screen
{
    bool isTerminal = false;
    bool isColored = false;
    std::optional<std::size_t> columns; ///< that a line may take; nothing where all may be shown
};

enum class Ink { Bold = 1, Red = 31, Yellow = 33 };

/// `text` in an ink, where the screen is coloured.
std::string inked(const std::string &text, Ink ink, const Screen &screen);

enum class ColorChoice { Auto, Always, Never };

/// Where the command talks to a person: how its streams look, and one-line messages on stderr.
class Terminal
{
public:
    /// When to use colours from now on. Auto, as before: on a terminal that knows them, unless
    /// NO_COLOR is set.
    void chooseColor(ColorChoice choice) { colorChoice_ = choice; }

    /// Leaves out infos and progress from now on.
    void beQuiet() { isQuiet_ = true; }
    bool isQuiet() const { return isQuiet_; }

    /// What a stream is shown on: std::cout and std::cerr may be terminals, others are none.
    Screen screenOf(const std::ostream &stream) const;

    /// Each prints one line, whatever `text` holds.
    /// @{
    void printInfo(const std::string &text) const;    ///< what was assumed; may be left out
    void printWarning(const std::string &text) const; ///< what is missing or may be wrong
    void printError(const std::string &text) const;   ///< why a command ends
    /// @}

private:
    // An interruption prints from a thread of its own.
    std::atomic<ColorChoice> colorChoice_ = ColorChoice::Auto;
    bool isQuiet_ = false;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_TERMINAL_H
