#include "standard_output.h"

#include "process/interruption_lock.h"
#include "text/system_error.h"
#include "text/translate.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <iostream>
#include <unistd.h>

namespace iosphoto::tool {

namespace {

constexpr std::size_t bufferSize = std::size_t{64} * 1024;

/// What an error number of a write says, and what to do.
std::string reasonOf(int error)
{
    if (error == EBADF)
        return translate("standard output is closed; send it to a terminal, a file or a program");
    if (error == ENOSPC)
        return translate("the disk is full; make room, or choose another place for the output");
    return translate("{0}; choose another place for the output", systemError(error));
}

} // namespace

void occupyStandardDescriptors()
{
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        const bool isClosed = fcntl(descriptor, F_GETFD) < 0 && errno == EBADF;
        // The system gives out the lowest that is free. Which way it is open is of no use to
        // anybody.
        const int useless = descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY;
        if (isClosed && open("/dev/null", useless) < 0)
            (void)open("/", O_RDONLY);
    }
}

OutputClosed::OutputClosed()
    : Failure(static_cast<ExitStatus>(Interrupted + SIGPIPE), translate("nobody reads the output"))
{
}

StandardOutput::StandardOutput(FileUse &files)
    : files_(files), buffer_(bufferSize), isTerminal_(isatty(STDOUT_FILENO) == 1),
      before_(std::cout.rdbuf(this))
{
    setp(buffer_.data(), buffer_.data() + buffer_.size());
    std::cout.exceptions(std::ios::badbit);
    // A message must neither fail with the output nor write it: it may come from another thread.
    std::cerr.tie(nullptr);
}

StandardOutput::~StandardOutput()
{
    std::cout.exceptions(std::ios::goodbit);
    std::cout.flush(); // nothing after an error, which has been told
    std::cout.rdbuf(before_);
}

StandardOutput::int_type StandardOutput::overflow(int_type character)
{
    write();
    return traits_type::eq_int_type(character, traits_type::eof())
               ? traits_type::not_eof(character)
               : sputc(traits_type::to_char_type(character));
}

std::streamsize StandardOutput::xsputn(const char *text, std::streamsize size)
{
    const std::streamsize taken = std::streambuf::xsputn(text, size);
    // On a terminal, lines stand in the order in which they and notices were said.
    if (isTerminal_ && std::memchr(text, '\n', static_cast<std::size_t>(size)) != nullptr)
        write();
    return taken;
}

int StandardOutput::sync()
{
    write();
    return 0;
}

void StandardOutput::write()
{
    const auto size = static_cast<std::size_t>(pptr() - pbase());
    setp(buffer_.data(), buffer_.data() + buffer_.size());
    writeAll(buffer_.data(), size);
}

void StandardOutput::writeAll(const char *bytes, std::size_t size)
{
    stopIfInterrupted();
    while (size > 0) {
        const ssize_t step = ::write(STDOUT_FILENO, bytes, size);
        if (step < 0 && errno == EINTR)
            continue;
        if (step < 0 && errno == EPIPE)
            throw OutputClosed();
        if (step < 0)
            throw Failure(CannotAccess, translate("cannot write the output: {0}", reasonOf(errno)));
        const auto written = static_cast<std::size_t>(step);
        files_.printed(bytes, written);
        bytes += written;
        size -= written;
    }
}

} // namespace iosphoto::tool
