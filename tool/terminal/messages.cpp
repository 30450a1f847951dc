#include "terminal/messages.h"

#include "process/interruption_lock.h"
#include "terminal/terminal.h"
#include "text/printable.h"

#include <iostream>

namespace iosphoto::tool {

namespace {

constexpr const char *speaker = "iosphoto:";

bool quiet = false;

void say(const std::string &who, const std::string &text)
{
    const InterruptionLock lock;
    std::cerr << who + " " + printable(text) + "\n";
}

} // namespace

void printInfo(const std::string &text)
{
    if (!quiet)
        say(speaker, text);
}

void printWarning(const std::string &text)
{
    say(inked(speaker, Ink::Yellow, screenOf(std::cerr)), text);
}

void printError(const std::string &text)
{
    say(inked(speaker, Ink::Red, screenOf(std::cerr)), text);
}

void beQuiet(bool isWished)
{
    quiet = isWished;
}

bool isQuiet()
{
    return quiet;
}

} // namespace iosphoto::tool
