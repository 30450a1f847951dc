#include "support/run_tool.h"

#include "support/pseudo_terminal.h"
#include "support/temporary_folder.h"

#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace iosphoto::test {

namespace {

constexpr int notRun = 127;

void redirect(const std::string &file, int flags, int descriptor)
{
    constexpr mode_t mode = 0600;
    dup2(open(file.c_str(), flags, mode), descriptor);
}

void setVariables(const Environment &environment)
{
    for (const auto &[name, value] : environment)
        setenv(name.c_str(), value.c_str(), 1);
}

/// Runs the tool in a child that first makes its preparations, and gives its exit status.
template <typename Prepare>
int runInChild(const std::vector<std::string> &arguments, Prepare prepare)
{
    std::vector<char *> command = {const_cast<char *>(IOSPHOTO_TOOL)};
    for (const std::string &argument : arguments)
        command.push_back(const_cast<char *>(argument.c_str()));
    command.push_back(nullptr);

    const pid_t child = fork();
    if (child == 0) {
        redirect("/dev/null", O_RDONLY, STDIN_FILENO);
        prepare();
        execv(command.front(), command.data());
        _exit(notRun);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// The same with its output kept in files.
template <typename Prepare>
ToolRun run(const std::vector<std::string> &arguments, Prepare prepare)
{
    const TemporaryFolder folder;
    const std::string out = (folder / "out").string();
    const std::string error = (folder / "error").string();
    const int status = runInChild(arguments, [&] {
        redirect(out, O_WRONLY | O_CREAT, STDOUT_FILENO);
        redirect(error, O_WRONLY | O_CREAT, STDERR_FILENO);
        prepare();
    });
    return {readFile(out), readFile(error), status};
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
    return run(arguments, [&] { setVariables(environment); });
}

ToolRun runToolOnTerminal(const std::vector<std::string> &arguments, int columns,
                          const Environment &environment)
{
    PseudoTerminal out(columns);
    PseudoTerminal error(columns);
    const int status = runInChild(arguments, [&] {
        dup2(out.descriptor(), STDOUT_FILENO);
        dup2(error.descriptor(), STDERR_FILENO);
        for (const char *ofOurs : {"COLUMNS", "NO_COLOR"})
            unsetenv(ofOurs);
        setenv("TERM", "xterm", 1);
        setVariables(environment);
    });
    return {out.text(), error.text(), status};
}

std::optional<ToolRun> runToolAsPlainUser(const std::vector<std::string> &arguments)
{
    const ToolRun result = run(arguments, [] {
        constexpr id_t nobody = 65534;
        if (geteuid() == 0 && (setgid(nobody) != 0 || setuid(nobody) != 0))
            _exit(notRun);
    });
    return result.status != notRun ? std::make_optional(result) : std::nullopt;
}

ToolRun runToolOnFullDisk(const std::vector<std::string> &arguments, std::size_t bytes)
{
    return run(arguments, [=] {
        const rlimit limit = {bytes, bytes};
        setrlimit(RLIMIT_FSIZE, &limit);
    });
}

} // namespace iosphoto::test
