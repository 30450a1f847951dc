#ifndef IOSPHOTO_TESTS_PSEUDO_TERMINAL_H
#define IOSPHOTO_TESTS_PSEUDO_TERMINAL_H

#include <future>
#include <string>

namespace iosphoto::test {

/// A terminal that keeps all that is written to it, as it was written.
class PseudoTerminal
{
public:
    explicit PseudoTerminal(int columns);
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal &) = delete;
    PseudoTerminal &operator=(const PseudoTerminal &) = delete;

    /// The end that a program writes to.
    int descriptor() const { return slave_; }

    /// All that was written, once every program that wrote has ended. To be called once.
    std::string text();

private:
    int master_;
    int slave_;
    std::future<std::string> text_;
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_PSEUDO_TERMINAL_H
