#include "catalogue/library.h"
#include "catalogue/photo_kinds.h"
#include "catalogue/summary.h"
#include "commands/command.h"
#include "commands/difference_table.h"
#include "commands/help.h"
#include "commands/info_document.h"
#include "commands/library_messages.h"
#include "commands/library_options.h"
#include "commands/option_values.h"
#include "commands/row_format_options.h"
#include "commands/unknown_schema_output.h"
#include "input/library_layout.h"
#include "rows/log_changes.h"
#include "terminal/busy_line.h"
#include "terminal/paragraph.h"
#include "terminal/text_table.h"
#include "text/json.h"
#include "text/lists.h"
#include "text/numbers.h"
#include "text/printable.h"
#include "text/translate.h"
#include "time/time_text.h"

#include <fmt/format.h>

#include <algorithm>
#include <functional>
#include <memory>

namespace iosphoto::tool {

namespace {

struct InfoRequest
{
    LibraryRequest library;
    Format format = Format::Table;
};

std::string localTimeOf(const std::optional<CoreDataTime> &time)
{
    const auto unixTime = time ? unixTimeOf(*time) : std::nullopt;
    return unixTime ? localTimeText(*unixTime) : "";
}

std::string withMore(const std::string &what, const std::string &more)
{
    return more.empty() ? what : what + translate(", ") + more;
}

std::string schemaText(const ProbedSchema &schema)
{
    const std::optional<std::int64_t> &model = schema.metadata.modelVersion;
    return withMore(schema.shownName, model ? translate("model {0}", *model) : "");
}

/// Empty for what is not encrypted.
std::string encryptionText(const std::optional<BackupEncryption> &encryption)
{
    if (!encryption)
        return "";
    const std::string rounds = translate("yes; {0} rounds make the key of the password",
                                         grouped(static_cast<std::int64_t>(encryption->rounds)));
    const std::set<std::uint32_t> &classes = encryption->classesOfDevice;
    return classes.empty()
               ? rounds
               : rounds + translate("; the keys of protection classes {0} never leave the device",
                                    fmt::format("{}", fmt::join(classes, ", ")));
}

void printFacts(const Library &library, const Summary &summary, const Screen &screen,
                std::ostream &out)
{
    std::vector<std::string> labels;
    std::vector<std::string> facts;
    const auto add = [&](const std::string &label, const std::string &fact) {
        labels.push_back(label);
        facts.push_back(printable(fact));
    };
    add(translate("LIBRARY"), library.name());
    const ProbedSchema &schema = library.schema();
    add(translate("Name"), library.identity().name);
    add(translate("Serial"), library.identity().serialNumber);
    add(translate("Encrypted"), encryptionText(library.encryption()));
    add(translate("Device"), schema.productOrigin == DeviceOrigin::Assumption
                                 ? translate("not recorded; read like {0}, which hides no album",
                                             schema.device.productType)
                                 : schema.productText());
    add(translate("System"), schema.iosText());
    if (schema.iosOrigin != DeviceOrigin::Schema) // which names it already
        add(translate("Build"), schema.iosBuild);
    add(translate("Schema"), schemaText(schema));
    add(translate("As of"), localTimeText(library.asOf().time));
    add(translate("Albums"), std::to_string(library.albums().size()));
    add(translate("First taken"), localTimeOf(summary.firstCreated));
    add(translate("Last taken"), localTimeOf(summary.lastCreated));
    printBlocks(out, labels, {facts}, screen);
}

void printCounts(const ProbedSchema &schema, const Summary &summary, const Screen &screen,
                 std::ostream &out)
{
    using Align = TextTable::Align;
    TextTable table({{translate("KIND")},
                     {translate("COUNT"), Align::Right},
                     {translate("SIZE"), Align::Right}});
    const std::string unknown = translate("unknown");
    const auto add = [&](const std::string &kind, const Tally &tally, bool isKnown = true) {
        const bool isSizeKnown = isKnown && !schema.isUnknown("bytes");
        table.add({kind, isKnown ? std::to_string(tally.count) : unknown,
                   isSizeKnown ? readableSize(tally.bytes) : unknown});
    };
    add(translate("all"), summary.all);
    for (std::size_t i = 0; i < photoKinds().size(); ++i) {
        const PhotoKind &kind = photoKinds()[i];
        const bool isKnown = !schema.isUnknown(kind.key);
        if (summary.byKind[i].count > 0 || !isKnown)
            add(translateTerm(kind.word), summary.byKind[i], isKnown);
    }
    table.print(out, screen);
}

/// Adds what became of the rows of a table, and what without the log where that is to be shown.
template <typename Reason, std::size_t reasons>
void addRows(TextTable &table, const std::string &what, const ProbedSchema &schema,
             const RowAccount<Reason, reasons> &account,
             const RowAccount<Reason, reasons> *withoutLog)
{
    using Rows = RowAccount<Reason, reasons>;
    const auto add = [&](const std::string &row, auto countIn) {
        std::vector<std::string> cells = {row, countIn(account)};
        if (withoutLog != nullptr)
            cells.push_back(countIn(*withoutLog));
        table.add(cells);
    };
    add(what, [](const Rows &of) { return std::to_string(of.rows); });
    add(translate("- listed"), [](const Rows &of) { return std::to_string(of.listed); });
    for (std::size_t i = 0; i < reasons; ++i) {
        const auto reason = Reason(i);
        const bool isUnknown = schema.isUnknownReason(machineName(reason));
        const auto count = [&](const Rows &of) { return of.leftOutFor(reason); };
        if (count(account) == 0 && (withoutLog == nullptr || count(*withoutLog) == 0) && !isUnknown)
            continue;
        add(translate("- left out: {0}", translateTerm(words(reason))), [&](const Rows &of) {
            return isUnknown && count(of) == 0 ? translate("unknown") : std::to_string(count(of));
        });
    }
}

/// Every row of the tables of photos and albums: listed, or left out for a reason.
/// @param withoutLog  null where that is the same, or not known
void printAccount(const Library &library, const Account *withoutLog, const Summary &summary,
                  const Screen &screen, std::ostream &out)
{
    if (!library.account()) {
        printParagraph(out, screen,
                       translate("The rows of the database could not all be counted."));
        return;
    }
    using Align = TextTable::Align;
    std::vector<TextTable::Column> columns = {{translate("IN THE DATABASE")},
                                              {translate("COUNT"), Align::Right}};
    if (withoutLog != nullptr)
        columns.push_back({translate("WITHOUT THE LOG"), Align::Right});
    TextTable table(columns);
    addRows(table, translate("photos"), library.schema(), library.account()->photos,
            withoutLog != nullptr ? &withoutLog->photos : nullptr);
    addRows(table, translate("albums"), library.schema(), library.account()->albums,
            withoutLog != nullptr ? &withoutLog->albums : nullptr);
    table.print(out, screen);
    if (summary.foldedFrames > 0)
        printParagraph(out, screen,
                       counted(static_cast<std::int64_t>(summary.foldedFrames),
                               "'iosphoto photos' shows one photo of each burst and so {0} frame "
                               "less, unless --frames asks for all.",
                               "'iosphoto photos' shows one photo of each burst and so {0} frames "
                               "less, unless --frames asks for all."));
}

/// What the log changes beside photos and albums that could be named.
std::vector<std::string> namelessChanges(const LogChanges &changes)
{
    std::vector<std::string> what;
    if (changes.isOfOtherSchema())
        what.push_back(translate("the schema"));
    if (changes.hasOtherCounts())
        what.push_back(translate("the numbers of rows in the database"));
    if (changes.hasOtherLists())
        what.push_back(translate("the order of albums or photos, or kinds or counts of albums"));
    return what;
}

/// Up to where a damaged log is good; empty where it is not damaged.
std::string damageOf(const WriteAheadLog &log)
{
    if (log.state != LogState::Damaged)
        return "";
    if (log.isHeaderDamaged)
        return translate("The write-ahead log (-wal) has a damaged header, so nothing of it is "
                         "shown.");
    if (!log.isApplied())
        return translate("The write-ahead log (-wal) is damaged: no commit of it is good, so "
                         "nothing of it is shown.");
    return translate("The write-ahead log (-wal) is damaged: it is good up to commit {0} of at "
                     "least {1}.",
                     log.commits, log.commits + log.lostCommits);
}

bool isGoodToItsEnd(const WriteAheadLog &log)
{
    return log.state == LogState::Good && !log.hasOpenChange && !log.endsInZeros;
}

std::string changesNothingShown(const WriteAheadLog &log)
{
    return isGoodToItsEnd(log)
               ? translate("The write-ahead log (-wal) changes nothing that is shown.")
               : translate("As far as it is good, the write-ahead log (-wal) changes nothing that "
                           "is shown.");
}

std::string changesOnly(const WriteAheadLog &log, const std::string &what)
{
    return isGoodToItsEnd(log)
               ? translate("The write-ahead log (-wal) changes {0} and nothing else that is shown.",
                           what)
               : translate("As far as it is good, the write-ahead log (-wal) changes {0} and "
                           "nothing else that is shown.",
                           what);
}

/// Whether a backup lists a log and does not hold it.
bool isLogMissingFromBackup(const Library &library)
{
    const std::vector<SourceFinding> &missing = library.missing();
    return std::any_of(missing.begin(), missing.end(), [](const SourceFinding &finding) {
        return finding.kind == SourceProblem::BackupWithoutLog &&
               finding.facts.back() == std::string(databaseBelowMedia) + "-wal";
    });
}

/// Why the log changes nothing that could be listed; empty where it does, or its damage says why.
std::string whyNoLogChanges(const Library &library, const LogChanges *changes)
{
    switch (library.log().state) {
    case LogState::Missing:
        if (isLogMissingFromBackup(library))
            return translate("The write-ahead log (-wal) is missing from the backup.");
        return library.isBareStream()
                   ? translate("Whether there is a write-ahead log (-wal) is not known: none comes "
                               "through standard input.")
                   : translate("There is no write-ahead log (-wal).");
    case LogState::Empty:
        return translate("The write-ahead log (-wal) is empty: it has 0 bytes.");
    case LogState::NoLog:
        return translate("The -wal is no write-ahead log, so nothing of it is shown.");
    case LogState::Damaged:
        if (!library.log().isApplied())
            return "";
        break;
    case LogState::Good:
        if (!library.log().isApplied())
            return translate("No commit is seen in the write-ahead log (-wal): none was written, "
                             "or it was cut or damaged. Nothing of it is shown.");
        break;
    }
    if (library.withoutLog() && !library.withoutLog()->isRead)
        return translate("What the write-ahead log (-wal) changes is not known: without it the "
                         "database cannot be read.");
    if (changes == nullptr || changes->isNone())
        return changesNothingShown(library.log());
    if (!changes->hasNames())
        return changesOnly(library.log(), listForPeople(namelessChanges(*changes)));
    return "";
}

/// What the database alone says of its schema; empty where that is the same.
std::string schemaWithoutLog(const Library &library, const LogChanges *changes)
{
    if (changes == nullptr || !changes->isOfOtherSchema())
        return "";
    const ProbedSchema &schema = library.withoutLog()->schema;
    if (schema.name.empty())
        return translate("Without the write-ahead log (-wal) there is no photo library in the "
                         "database.");
    const std::string &build = schema.metadata.build;
    std::string text =
        withMore(schemaText(schema), build.empty() ? "" : translate("build {0}", build));
    if (!schema.unknownFields.empty())
        text =
            withMore(text, translate("unknown fields: {0}", listForPeople(schema.unknownFields)));
    return translate("Without the write-ahead log (-wal) the schema is {0}.", text);
}

/// What differs beyond what the words for the change say.
std::string factsWord(const LogChange &change)
{
    return change.photo.changedFields.empty() && change.photo.changes.front() == Change::Changed
               ? translate("differs in {0}", listForPeople(change.facts))
               : "";
}

std::vector<std::string> cellsOf(const LogChange &change)
{
    const DifferenceLine line = lineOf(change.photo);
    const std::string other = factsWord(change);
    return {change.photo.before ? line.change : translateTerm(logChangeName(Change::New)),
            line.name, other.empty() ? line.what : other, change.photo.latest().uuid()};
}

std::vector<std::string> cellsOf(const LeftOutChange &change)
{
    const auto wordsOf = [](PhotoReason reason) { return translateTerm(words(reason)); };
    if (!change.before)
        return {translate("left out"), change.path, wordsOf(*change.after), change.uuid};
    if (!change.after)
        return {translate("no longer left out"), change.path, wordsOf(*change.before), change.uuid};
    const std::string what =
        change.before != change.after
            ? translate("{0}; without the log: {1}", wordsOf(*change.after),
                        wordsOf(*change.before))
            : translate("{0}; differs in {1}", wordsOf(*change.after), listForPeople(change.facts));
    return {translate("left out"), change.path, what, change.uuid};
}

void printLogChanges(const LogChanges &changes, const Screen &screen, std::ostream &out)
{
    TextTable table({{translate("IN THE LOG ONLY")},
                     {translate("FILE"), TextTable::Align::Left, Elide::Left},
                     {translate("WHAT")},
                     {translate("UUID")}});
    for (const AlbumDifference &album : changes.albums()) {
        const DifferenceLine line = lineOf(album);
        const CAlbumGroup &latest = album.after != nullptr ? *album.after : *album.before;
        table.add({line.change, line.name, line.what, latest.albumUuid});
    }
    for (const LogChange &change : changes.photos())
        table.add(cellsOf(change));
    for (const LeftOutChange &change : changes.leftOut())
        table.add(cellsOf(change));
    table.print(out, screen);
}

void printLog(const Library &library, const LogChanges *changes, const Screen &screen,
              std::ostream &out)
{
    if (const std::string schema = schemaWithoutLog(library, changes); !schema.empty())
        printParagraph(out, screen, schema);
    if (const std::string damage = damageOf(library.log()); !damage.empty())
        printParagraph(out, screen, damage);
    if (const std::string why = whyNoLogChanges(library, changes); !why.empty())
        printParagraph(out, screen, why);
    else if (library.log().isApplied())
        printLogChanges(*changes, screen, out);
}

void printInfo(const Library &library, const Summary &summary, const LogChanges *changes,
               const Screen &screen, std::ostream &out)
{
    printFacts(library, summary, screen, out);
    out << '\n';
    printCounts(library.schema(), summary, screen, out);
    out << '\n';
    const bool isOtherWithoutLog = changes != nullptr && changes->hasOtherCounts();
    printAccount(library, isOtherWithoutLog ? &library.withoutLog()->account : nullptr, summary,
                 screen, out);
    out << '\n';
    printLog(library, changes, screen, out);
}

/// Null where there is nothing to compare, or it could not be read.
std::unique_ptr<const LogChanges> logChangesOf(const Library &library, const Terminal &terminal)
{
    if (!library.withoutLog() || !library.withoutLog()->isRead)
        return nullptr;
    const BusyLine busy(terminal, translate("looking what the write-ahead log changes"));
    return std::make_unique<const LogChanges>(library);
}

/// Of a database that fits no known schema it prints what its makers need to know before it fails.
std::unique_ptr<const Library> openOrDescribe(Session &session, const InfoRequest &request,
                                              std::ostream &out)
{
    try {
        return std::make_unique<const Library>(session, request.library);
    } catch (const UnknownSchemaError &error) {
        print(error.schema(), request.format, session.terminal.screenOf(out), out);
        out.flush(); // before the line that says why
        throw;
    }
}

ExitStatus showInfo(const InfoRequest &request, Session &session, std::ostream &out)
{
    const auto opened = openOrDescribe(session, request, out);
    const Library &library = *opened;
    printHowItWasRead(session.terminal, library);
    const Summary summary = summaryOf(AssetList(library.albums()), library.dates());
    const std::unique_ptr<const LogChanges> changes = logChangesOf(library, session.terminal);
    if (request.format == Format::JsonDocument)
        print(infoDocument(library, summary, changes.get()), out);
    else if (request.format == Format::JsonLines)
        out << oneLine(infoDocument(library, summary, changes.get())) << '\n';
    else
        printInfo(library, summary, changes.get(), session.terminal.screenOf(out), out);
    return statusOf(library);
}

} // namespace

Command addInfo(CLI::App &app)
{
    const auto request = std::make_shared<InfoRequest>();
    request->library.comparesLog = true;
    CLI::App *command = app.add_subcommand(
        "info", translate("Show device, iOS, counts, and what the write-ahead log holds"));
    addLibraryOptions(*command, request->library);
    CLI::Option *const json = addFormatFlag(*command, request->format, Format::JsonDocument,
                                            translate("print a JSON document"));
    addFormatFlag(*command, request->format, Format::JsonLines,
                  translate("print the document as one line, to put those of many libraries "
                            "together"))
        ->excludes(json);
    command->footer(
        helpFooter({kindsOfTimes(),
                    examples({"iosphoto info Photos.sqlite", "iosphoto info backup.zip --json"}),
                    exitCodesOfALibrary()}));
    return {
        command,
        [request](Session &session, std::ostream &out) { return showInfo(*request, session, out); },
        true};
}

} // namespace iosphoto::tool
