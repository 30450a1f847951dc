#include "case_files.h"
#include "case_run.h"
#include "judgement.h"
#include "memory.h"
#include "output_memory.h"
#include "result_table.h"
#include "support/temporary_folder.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <iostream>

namespace {

using namespace iosphoto::bench;
namespace fs = std::filesystem;

struct Options
{
    std::vector<std::string> names;
    bool isStrict = false;
    int rounds = 5;
    std::string prepare;
    std::string onlyLibrary;
    fs::path folder;
    fs::path realLibraries = IOSPHOTO_REAL_LIBRARIES;
    fs::path memoryOf;
    std::vector<std::string> outputOf; ///< database and format
};

std::vector<std::string> allNames()
{
    std::vector<std::string> names;
    for (const Case &each : cases)
        names.emplace_back(each.name);
    return names;
}

const Case &caseNamed(const std::string &name)
{
    return *std::find_if(std::begin(cases), std::end(cases),
                         [&](const Case &each) { return each.name == name; });
}

void addOptions(CLI::App &app, Options &options)
{
    const CLI::IsMember isCase(allNames());
    app.add_option("CASE", options.names, "what to measure; all without")->check(isCase);
    app.add_flag("--strict", options.isStrict, "fail where a goal is missed");
    app.add_option("--rounds", options.rounds, "how often to measure")
        ->check(CLI::PositiveNumber)
        ->capture_default_str();
    auto *const prepare =
        app.add_option("--prepare", options.prepare, "only make the file of a case")->check(isCase);
    auto *const only =
        app.add_option("--only-library", options.onlyLibrary, "only run the library on a case once")
            ->check(isCase);
    auto *const in =
        app.add_option("--in", options.folder, "folder of the file that --prepare makes")
            ->check(CLI::ExistingDirectory);
    app.add_option("--real-libraries", options.realLibraries,
                   "folder that has ios15-a/Photos.sqlite, for real15");
    prepare->needs(in);
    only->needs(in);
    app.add_option(memoryOption, options.memoryOf)->group("");              // for memoryUse()
    app.add_option(outputOption, options.outputOf)->expected(2)->group(""); // for outputBytes()
}

/// Measures one case in a folder that goes with it.
void measure(const Case &wanted, const Options &options, std::vector<CaseResult> &results)
{
    if (!isAvailable(wanted, options.realLibraries)) {
        std::fprintf(stderr, "bench: left out, the real library for %s is not there\n",
                     wanted.name);
        return;
    }
    std::fprintf(stderr, "bench: %s\n", wanted.name);
    const iosphoto::test::TemporaryFolder folder;
    makeSubject(folder.path(), wanted, options.realLibraries);
    results.push_back(runCase(folder.path(), wanted, options.rounds));
}

int measureAll(const Options &options)
{
    std::vector<CaseResult> results;
    for (const std::string &name : options.names.empty() ? allNames() : options.names)
        measure(caseNamed(name), options, results);
    printResults(results, std::cout);
    return exitStatus(results, options.isStrict);
}

int run(const Options &options)
{
    if (!options.memoryOf.empty())
        printMemoryUse(options.memoryOf, std::cout);
    else if (!options.outputOf.empty())
        printOutputBytes(options.outputOf[0], options.outputOf[1], std::cout);
    else if (!options.prepare.empty())
        makeSubject(options.folder, caseNamed(options.prepare), options.realLibraries);
    else if (!options.onlyLibrary.empty())
        runLibraryOnly(options.folder, caseNamed(options.onlyLibrary));
    else
        return measureAll(options);
    return 0;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    try {
        Options options;
        CLI::App app("Measures the library against the least that SQLite needs.", "script/bench");
        addOptions(app, options);
        CLI11_PARSE(app, argumentCount, arguments)
        return run(options);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "bench: %s\n", error.what());
        return 2;
    }
}
