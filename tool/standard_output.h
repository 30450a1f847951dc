#ifndef IOSPHOTO_TOOL_STANDARD_OUTPUT_H
#define IOSPHOTO_TOOL_STANDARD_OUTPUT_H

#include "files/file_use.h"
#include "process/failure.h"

#include <streambuf>
#include <vector>

namespace iosphoto::tool {

/// Takes those of the descriptors of standard input, output and error that are closed, so that no
/// file gets one and with it what is printed. To be called before any file is opened. Using one
/// remains an error.
void occupyStandardDescriptors();

/// Whoever reads the standard output has seen enough, as `head` does. Nothing to be said.
class OutputClosed : public Failure
{
public:
    OutputClosed();
};

/// While it lives, what is printed on std::cout is written in large blocks, and printing throws
/// when that fails: OutputClosed where SIGPIPE is ignored and nobody reads any more, else Failure.
class StandardOutput : private std::streambuf
{
public:
    /// @param files  is told of what is printed; has to outlive this
    explicit StandardOutput(FileUse &files);
    /// Writes what is left, if it can.
    ~StandardOutput() override;
    StandardOutput(const StandardOutput &) = delete;
    StandardOutput &operator=(const StandardOutput &) = delete;

private:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char *text, std::streamsize size) override;
    int sync() override;
    void write();
    void writeAll(const char *bytes, std::size_t size);

    FileUse &files_;
    std::vector<char> buffer_;
    bool isTerminal_;
    std::streambuf *before_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_STANDARD_OUTPUT_H
