#include "child.h"

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace iosphoto::bench {

namespace {

constexpr int notRun = 127;

[[noreturn]] void become(const std::vector<std::string> &command, int output)
{
    std::vector<char *> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string &argument : command)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);
    dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    execvp(arguments.front(), arguments.data());
    _exit(notRun);
}

std::string readAll(int descriptor)
{
    std::string text;
    std::array<char, 4096> part = {};
    for (ssize_t size = 0; (size = read(descriptor, part.data(), part.size())) > 0;)
        text.append(part.data(), static_cast<std::size_t>(size));
    return text;
}

double seconds(const timeval &time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

} // namespace

ChildRun runChild(const std::vector<std::string> &command, Output output)
{
    std::array<int, 2> ends = {};
    if (pipe(ends.data()) != 0)
        throw std::runtime_error("cannot make a pipe");
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0)
        become(command, output == Output::Kept ? ends[1] : open("/dev/null", O_WRONLY));
    close(ends[1]);
    if (child < 0)
        throw std::runtime_error("cannot run " + command.front());
    std::string text = readAll(ends[0]);
    close(ends[0]);
    int status = 0;
    rusage usage = {};
    wait4(child, &status, 0, &usage);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1,
            seconds(usage.ru_utime) + seconds(usage.ru_stime), text};
}

} // namespace iosphoto::bench
