#include "support/run_tool.h"

#include "support/pseudo_terminal.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

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

void useSignalsAsUsual()
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE})
        std::signal(signal, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
}

[[noreturn]] void becomeTool(const std::vector<std::string> &arguments)
{
    std::vector<char *> command = {const_cast<char *>(IOSPHOTO_TOOL)};
    for (const std::string &argument : arguments)
        command.push_back(const_cast<char *>(argument.c_str()));
    command.push_back(nullptr);
    execv(command.front(), command.data());
    _exit(notRun);
}

} // namespace

RunningTool::RunningTool(const std::vector<std::string> &arguments, const Environment &environment,
                         const std::function<void()> &prepare)
    : process_(fork())
{
    if (process_ != 0)
        return;
    setsid(); // away from the terminal of whoever runs the tests, which would be asked
    redirect("/dev/null", O_RDONLY, STDIN_FILENO);
    redirect((folder_ / "out").string(), O_WRONLY | O_CREAT, STDOUT_FILENO);
    redirect((folder_ / "error").string(), O_WRONLY | O_CREAT, STDERR_FILENO);
    useSignalsAsUsual();
    setVariables(environment);
    prepare();
    becomeTool(arguments);
}

RunningTool::~RunningTool()
{
    if (process_ < 0)
        return;
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
}

void RunningTool::send(int signal) const
{
    kill(process_, signal);
}

ToolRun RunningTool::result()
{
    int status = 0;
    waitpid(std::exchange(process_, -1), &status, 0);
    return {readFile(folder_ / "out"), readFile(folder_ / "error"),
            WIFEXITED(status) ? WEXITSTATUS(status) : -1};
}

std::ostream &operator<<(std::ostream &stream, const ToolRun &run)
{
    return stream << "status " << run.status << "\nstdout:\n"
                  << run.out << "stderr:\n"
                  << run.error;
}

ToolRun runTool(const std::vector<std::string> &arguments, const Environment &environment)
{
    return RunningTool(arguments, environment).result();
}

ToolRun runToolOnPipe(const std::string &input, const std::vector<std::string> &arguments,
                      const Environment &environment)
{
    const auto readPipe = [&] {
        std::array<int, 2> ends = {};
        if (pipe(ends.data()) != 0)
            _exit(notRun);
        if (fork() == 0) {
            close(ends[0]);
            for (std::size_t at = 0; at < input.size();)
                at += static_cast<std::size_t>(
                    write(ends[1], input.data() + at, input.size() - at)); // or SIGPIPE
            _exit(0);
        }
        dup2(ends[0], STDIN_FILENO);
        close(ends[0]);
        close(ends[1]);
    };
    return RunningTool(arguments, environment, readPipe).result();
}

ToolRun runToolFrom(const std::string &file, const std::vector<std::string> &arguments)
{
    return RunningTool(arguments, {}, [&] { redirect(file, O_RDONLY, STDIN_FILENO); }).result();
}

ToolRun runToolFromTerminal(const std::vector<std::string> &arguments)
{
    constexpr int columns = 80;
    PseudoTerminal input(columns);
    return RunningTool(arguments, {}, [&] { dup2(input.descriptor(), STDIN_FILENO); }).result();
}

ToolRun runToolOnTerminal(const std::vector<std::string> &arguments, int columns,
                          const Environment &environment)
{
    PseudoTerminal out(columns);
    PseudoTerminal error(columns);
    const int status = RunningTool(arguments, {},
                                   [&] {
                                       dup2(out.descriptor(), STDOUT_FILENO);
                                       dup2(error.descriptor(), STDERR_FILENO);
                                       for (const char *ofOurs : {"COLUMNS", "NO_COLOR"})
                                           unsetenv(ofOurs);
                                       setenv("TERM", "xterm", 1);
                                       setVariables(environment);
                                   })
                           .result()
                           .status;
    return {out.text(), error.text(), status};
}

std::optional<ToolRun> runToolAsPlainUser(const std::vector<std::string> &arguments)
{
    const auto becomePlainUser = [] {
        constexpr id_t nobody = 65534;
        if (geteuid() == 0 && (setgid(nobody) != 0 || setuid(nobody) != 0))
            _exit(notRun);
    };
    const ToolRun result = RunningTool(arguments, {}, becomePlainUser).result();
    return result.status != notRun ? std::make_optional(result) : std::nullopt;
}

ToolRun runToolOnFullDisk(const std::vector<std::string> &arguments, std::size_t bytes)
{
    const auto limitFiles = [=] {
        const rlimit limit = {bytes, bytes};
        setrlimit(RLIMIT_FSIZE, &limit);
    };
    return RunningTool(arguments, {}, limitFiles).result();
}

ToolRun runToolInto(const std::string &file, const std::vector<std::string> &arguments)
{
    return RunningTool(arguments, {}, [&] { redirect(file, O_WRONLY, STDOUT_FILENO); }).result();
}

ToolRun runToolWithout(const std::vector<int> &descriptors,
                       const std::vector<std::string> &arguments)
{
    const auto closeThem = [&] {
        for (const int descriptor : descriptors)
            close(descriptor);
    };
    return RunningTool(arguments, {}, closeThem).result();
}

ToolRun runToolForNoReader(const std::vector<std::string> &arguments,
                           const Environment &environment)
{
    const auto closePipe = [] {
        std::array<int, 2> ends = {};
        if (pipe(ends.data()) != 0 || dup2(ends[1], STDOUT_FILENO) < 0)
            _exit(notRun);
        close(ends[0]);
        close(ends[1]);
    };
    return RunningTool(arguments, environment, closePipe).result();
}

} // namespace iosphoto::test
