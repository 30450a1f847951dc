#include "commands/command.h"
#include "commands/help.h"
#include "commands/library_options.h"
#include "commands/option_values.h"
#include "commands/passed_over_words.h"
#include "commands/problem_words.h"
#include "commands/row_format_options.h"
#include "formats/versions.h"
#include "schema/opened_copy.h"
#include "statements/build_statements.h"
#include "statements/usual_entity_numbers.h"
#include "text/json.h"
#include "text/lists.h"
#include "text/printable.h"
#include "text/translate.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

struct StatementsRequest
{
    std::string source; ///< empty for the usual numbers of the version
    Device device;
    Format format = Format::Table;
};

/// What the statements are for.
struct Target
{
    Device device;
    NumberSource numbers;
    std::string assumption; ///< what was filled in that nobody named; empty if nothing was
    std::optional<SchemaFinding> warning;
    std::vector<SchemaFinding> gaps;
    std::vector<std::string> views; ///< that stand in for tables without all columns
    std::vector<SourceFinding> missing;
    std::vector<PassedOverNames> passedOver; ///< in the search for the library

    bool isComplete() const { return missing.empty() && gaps.empty(); }
};

Target readTarget(const StatementsRequest &request, Session &session)
{
    const Source source(session, request.source);
    const OpenedCopy copy(session, source, request.device);
    const ProbedSchema &schema = copy.schema();
    Target target = {schema.device,
                     {schema.numbers, true},
                     {},
                     schema.warning,
                     schema.gaps,
                     viewsWith(schema.missingColumns),
                     copy.missing(),
                     source.passedOver()};
    if (schema.isAssumed())
        target.assumption =
            translate("filled in for {0} and {1}", schema.iosText(), schema.productText());
    return target;
}

Target usualTarget(const Device &wanted)
{
    if (wanted.iosVersion.empty())
        throw Failure(WrongUsage, translate("name a SOURCE, or a version with --ios; see iosphoto "
                                            "statements --help"));
    const int oldestIos = oldestSchema().firstIos;
    if (firstNumber(wanted.iosVersion) < oldestIos)
        throw Failure(SchemaDoesNotFit, translate("the databases of iOS {0} are not known; name a "
                                                  "version from {1} on",
                                                  wanted.iosVersion, oldestIos));
    Device device = wanted;
    if (device.productType.empty())
        device.productType = productThatHidesNoAlbum;
    return {device, {usualEntityNumbers(device.iosVersion), false},
            {},     warningOfNewer(device.iosVersion),
            {},     {},
            {},     {}};
}

bool uses(const BuildStatement &statement, const EntityNumberName &name)
{
    return std::count(statement.numbers.begin(), statement.numbers.end(), &name) > 0;
}

/// The numbers that `statements` need and that are not known.
std::vector<const EntityNumberName *> unknownNumbers(const Target &target,
                                                     const std::vector<BuildStatement> &statements)
{
    std::vector<const EntityNumberName *> unknown;
    for (const EntityNumberName &name : entityNumberNames)
        if (!target.numbers[name] &&
            std::any_of(statements.begin(), statements.end(),
                        [&](const BuildStatement &statement) { return uses(statement, name); }))
            unknown.push_back(&name);
    return unknown;
}

/// Where the entity numbers come from.
std::string origin(const Target &target, const std::vector<BuildStatement> &statements)
{
    if (target.numbers.areRead)
        return translate("the entity numbers are those of the database");
    const std::string placeholders =
        joinedTexts(unknownNumbers(target, statements), ", ",
                    [](const EntityNumberName *name) { return name->placeholder; });
    if (placeholders.empty())
        return translate(
            "the entity numbers are those that databases of iOS {0} usually have; compare "
            "them with what the first three statements find in yours, or name it as SOURCE",
            target.device.iosVersion);
    return translate(
        "not all entity numbers of iOS {0} are known; put what the first three statements "
        "find in place of {1}, or name a database as SOURCE",
        target.device.iosVersion, placeholders);
}

/// A line of a script, whatever a source says of its device.
std::string comment(const std::string &text)
{
    return "-- " + printable(text) + "\n";
}

std::string numberComment(const EntityNumberName &name, const std::optional<std::int32_t> &number)
{
    if (number)
        return comment(translate("entity number of {0}: {1}", translateTerm(name.entity), *number));
    return comment(translate("{0}, entity number of {1}: {2} as {3} finds it", name.placeholder,
                             translateTerm(name.entity), name.column, name.lookup->name));
}

void printScript(const Target &target, const std::vector<BuildStatement> &statements,
                 std::ostream &out)
{
    out << comment(
               translate("iOS {0}, {1}: the statements of a build, in the order in which it runs "
                         "them",
                         target.device.iosVersion, target.device.productType))
        << comment(origin(target, statements))
        << comment(
               translate("run them on a copy of the database and its log: sqlite3 writes beside "
                         "what it opens"));
    if (!target.views.empty())
        out << '\n' << comment(translate("columns that the database lacks, for this session only"));
    for (const std::string &view : target.views)
        out << view << ";\n";
    for (const BuildStatement &statement : statements) {
        out << '\n'
            << comment(translate("pass {0}, statement {1}.sql: {2}", statement.pass, statement.name,
                                 statement.variant));
        for (const EntityNumberName *name : statement.numbers)
            out << numberComment(*name, target.numbers[*name]);
        out << statement.sql << ";\n";
    }
}

void printAsJson(const Target &target, const std::vector<BuildStatement> &statements,
                 std::ostream &out)
{
    Json document = {{"iosVersion", target.device.iosVersion},
                     {"productType", target.device.productType},
                     {"numbersAreRead", target.numbers.areRead},
                     {"isComplete", target.isComplete()},
                     {"views", target.views}};
    Json &entries = document["statements"] = Json::array();
    for (const BuildStatement &statement : statements) {
        Json numbers = Json::object();
        for (const EntityNumberName &name : entityNumberNames) {
            const std::optional<std::int32_t> number = target.numbers[name];
            numbers[name.key] = uses(statement, name) && number ? Json(*number) : Json();
        }
        entries.push_back({{"pass", statement.pass},
                           {"name", statement.name},
                           {"sql", statement.sql},
                           {"entityNumbers", std::move(numbers)}});
    }
    print(document, out);
}

void printHowTheyWereMade(const Terminal &terminal, const Target &target,
                          const std::vector<BuildStatement> &statements)
{
    if (!target.numbers.areRead) {
        const bool isWhole = unknownNumbers(target, statements).empty();
        isWhole ? terminal.printInfo(origin(target, statements))
                : terminal.printWarning(origin(target, statements));
    }
    if (!target.assumption.empty())
        terminal.printInfo(target.assumption);
    if (const std::string line = inWords(target.passedOver); !line.empty())
        terminal.printInfo(line);
    if (target.warning)
        terminal.printWarning(inWords(*target.warning).what());
    for (const SchemaFinding &gap : target.gaps)
        terminal.printWarning(inWords(gap).what());
    for (const SourceFinding &finding : target.missing)
        terminal.printWarning(inWords(finding).what());
}

ExitStatus showStatements(const StatementsRequest &request, Session &session, std::ostream &out)
{
    const Target target =
        request.source.empty() ? usualTarget(request.device) : readTarget(request, session);
    const std::vector<BuildStatement> statements = statementsOfBuild(target.device, target.numbers);
    printHowTheyWereMade(session.terminal, target, statements);
    (request.format == Format::JsonDocument ? printAsJson : printScript)(target, statements, out);
    return target.isComplete() ? Good : Incomplete;
}

} // namespace

Command addStatements(CLI::App &app)
{
    const auto request = std::make_shared<StatementsRequest>();
    CLI::App *command = app.add_subcommand(
        "statements",
        translate("Print the SQL that reads a library, to run it in the sqlite3 shell"));
    command
        ->add_option(
            "SOURCE", request->source,
            translate("library whose version and entity numbers to fill in; without it --ios "
                      "is needed and the numbers are the usual ones"))
        ->check(notEmpty());
    addDeviceOptions(*command, request->device);
    addFormatFlag(*command, request->format, Format::JsonDocument,
                  translate("print a JSON document"));
    command->footer(
        helpFooter({examples({"iosphoto statements Photos.sqlite > passes.sql",
                              "mkdir copy && cp Photos.sqlite* copy",
                              "sqlite3 copy/Photos.sqlite < passes.sql",
                              "iosphoto statements --ios 17.4 --product iPhone14,2 --json"}),
                    exitCodesOfALibrary()}));
    return {command,
            [request](Session &session, std::ostream &out) {
                return showStatements(*request, session, out);
            },
            true};
}

} // namespace iosphoto::tool
