#include "files/password_file.h"

#include "files/source_reader.h"
#include "files/standard_input.h"
#include "process/failure.h"
#include "text/system_error.h"
#include "text/translate.h"

#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

namespace iosphoto::tool {

namespace {

constexpr std::size_t longest = 4096;

Failure unreadable(const std::string &file)
{
    return {CannotAccess, translate("cannot read the password file '{0}': {1}; check the path",
                                    file, systemError(errno))};
}

/// Byte by byte, as what follows may be for somebody else.
Secret readLine(int descriptor, const std::string &file)
{
    Secret line(longest);
    std::size_t size = 0;
    char byte = 0;
    ssize_t count = 0;
    while ((count = readDescriptor(descriptor, &byte, 1)) > 0 && byte != '\n') {
        if (size == longest)
            throw Failure(WrongUsage, translate("the first line of '{0}' is longer than {1} bytes; "
                                                "name a file whose first line is the password",
                                                file, longest));
        line.data()[size++] = static_cast<unsigned char>(byte);
    }
    wipe(&byte, 1);
    if (count < 0)
        throw unreadable(file);
    if (size > 0 && line.data()[size - 1] == '\r')
        --size;
    if (size == 0)
        throw Failure(EncryptedBackup, translate("the first line of '{0}' is empty; write the "
                                                 "password of the backup there",
                                                 file));
    return Secret(line.view().substr(0, size));
}

} // namespace

Secret readPasswordFile(const std::string &file)
{
    if (isStandardInput(file))
        return readLine(STDIN_FILENO, StandardInput::device);
    const int descriptor = open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        throw unreadable(file);
    const std::unique_ptr<const int, void (*)(const int *)> closed(
        &descriptor, [](const int *opened) { close(*opened); });
    return readLine(descriptor, file);
}

} // namespace iosphoto::tool
