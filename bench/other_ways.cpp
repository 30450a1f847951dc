#include "other_ways.h"

#include "child.h"

#include <cstdio>

namespace iosphoto::bench {

namespace {

// Read-only, as otherwise the log would move into the database.
constexpr char program[] = R"python(
import sqlite3, sys
database, *statements = sys.argv[1:]
for statement in statements:
    connection = sqlite3.connect(f"file:{database}?mode=ro", uri=True)
    connection.execute(statement).fetchall()
    connection.close()
)python";

/// The interpreter itself: python3 may be a script that looks for it.
std::string interpreter()
{
    const ChildRun asked =
        runChild({"python3", "-c", "import sys; print(sys.executable, end='')"}, Output::Kept);
    return asked.status == 0 ? asked.output : "";
}

std::optional<double> secondsOfRun(const std::vector<std::string> &command)
{
    const ChildRun run = runChild(command, Output::Dropped);
    if (run.status == 0)
        return run.processorSeconds;
    std::fprintf(stderr, "bench: left out, %s cannot be run (%d)\n", command.front().c_str(),
                 run.status);
    return std::nullopt;
}

} // namespace

std::optional<double> secondsInPython(const std::filesystem::path &database,
                                      const Statements &statements)
{
    static const std::string python = interpreter();
    std::vector<std::string> command = {python.empty() ? "python3" : python, "-c", program,
                                        database.string()};
    command.insert(command.end(), statements.begin(), statements.end());
    return secondsOfRun(command);
}

std::optional<double> secondsInShell(const std::filesystem::path &database,
                                     const Statements &statements)
{
    std::string script;
    for (const std::string &statement : statements)
        script += statement + ";\n";
    return secondsOfRun({"sqlite3", "-readonly", "-json", database.string(), script});
}

} // namespace iosphoto::bench
