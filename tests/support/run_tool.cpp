#include "support/run_tool.h"

#include "support/temporary_folder.h"

#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace iosphoto::test {

namespace {

void redirect(const std::string &file, int flags, int descriptor)
{
    constexpr mode_t mode = 0600;
    dup2(open(file.c_str(), flags, mode), descriptor);
}

} // namespace

std::ostream &operator<<(std::ostream &stream, const ToolRun &run)
{
    return stream << "status " << run.status << "\nstdout:\n"
                  << run.out << "stderr:\n"
                  << run.error;
}

ToolRun runTool(const std::vector<std::string> &arguments, const Environment &environment)
{
    const TemporaryFolder folder;
    const std::string out = (folder / "out").string();
    const std::string error = (folder / "error").string();
    std::vector<char *> command = {const_cast<char *>(IOSPHOTO_TOOL)};
    for (const std::string &argument : arguments)
        command.push_back(const_cast<char *>(argument.c_str()));
    command.push_back(nullptr);

    const pid_t child = fork();
    if (child == 0) {
        for (const auto &[name, value] : environment)
            setenv(name.c_str(), value.c_str(), 1);
        redirect("/dev/null", O_RDONLY, STDIN_FILENO);
        redirect(out, O_WRONLY | O_CREAT, STDOUT_FILENO);
        redirect(error, O_WRONLY | O_CREAT, STDERR_FILENO);
        // A tool that runs as another user is to be that user wholly.
        if (setregid(getegid(), getegid()) != 0 || setreuid(geteuid(), geteuid()) != 0)
            _exit(126);
        execv(command.front(), command.data());
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return {readFile(out), readFile(error), WIFEXITED(status) ? WEXITSTATUS(status) : -1};
}

} // namespace iosphoto::test
