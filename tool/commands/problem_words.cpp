#include "commands/problem_words.h"

#include "catalogue/library.h"
#include "commands/passed_over_words.h"
#include "commands/reading_stop.h"
#include "files/output_file.h"
#include "input/library_search.h"
#include "rows/fields.h"
#include "rows/photo_condition.h"
#include "text/did_you_mean.h"
#include "text/lists.h"
#include "text/numbers.h"
#include "text/translate.h"
#include "time/time_text.h"

#include <fmt/args.h>

#include <algorithm>

namespace iosphoto::tool {

namespace {

/// The words for a kind of findings, with places for the facts.
template <typename Kind>
struct Wording
{
    Kind kind;
    ExitStatus status;
    const char *english;
};

constexpr Wording<SourceProblem> sourceWords[] = {
    {SourceProblem::VanishedDatabase, CannotAccess,
     translatable("cannot read '{0}': it is not there any more; check the path")},
    {SourceProblem::DatabaseIsCutShort, Incomplete,
     translatable("'{0}' is cut short: {1} of its {2} bytes are there, so photos and albums may be "
                  "missing; copy it from the device or the backup again, its -wal with it")},
    {SourceProblem::UncountedPhotos, Incomplete,
     translatable("the photos of '{0}' could not be counted: {1}")},
    {SourceProblem::NoPhotoDatabase, Incomplete,
     translatable("'{0}' is no photo database that can be read; 'iosphoto info' of it says why")},
    {SourceProblem::LogIsNoLog, Incomplete,
     translatable("the -wal of '{0}' is no write-ahead log, so changes that it was to hold are "
                  "missing; copy it from the device or the backup again, its -wal with it")},
    {SourceProblem::LogHeaderIsDamaged, Incomplete,
     translatable(
         "the -wal of '{0}' has a damaged header, so none of its commits (at least {1}) is "
         "applied, and their changes are missing; copy it from the device or the backup "
         "again, its -wal with it")},
    {SourceProblem::LogIsDamaged, Incomplete,
     translatable(
         "the -wal of '{0}' is damaged: it is good up to commit {1} of at least {2}; "
         "later changes are missing; copy it from the device or the backup again, its -wal "
         "with it")},
    {SourceProblem::LogIsCutShort, Incomplete,
     translatable("the -wal of '{0}' is damaged: it is good up to commit {1} of at least {1}, and "
                  "what follows is no sound frame; later changes may be missing; copy it from the "
                  "device or the backup again, its -wal with it")},
    {SourceProblem::LogEndsInOpenChange, Good,
     translatable("the -wal of '{0}' ends in a change without a commit, which is left out: either "
                  "the device was still writing it or gave it up, and nothing is missing, or the "
                  "log was cut or damaged there, and the change is")},
    {SourceProblem::LogEndsInZeros, Good,
     translatable(
         "the -wal of '{0}' ends in zeros: either a copy was padded with them, and nothing "
         "is missing, or they replaced changes, and these are")},
    {SourceProblem::LogHasNoFrame, Good,
     translatable("the -wal of '{0}' has a header and no change: either none was written yet, and "
                  "nothing is missing, or the log was cut behind its header, and its changes are")},
    {SourceProblem::TooLarge, CannotAccess,
     translatable("cannot read '{0}': it is larger than {1} bytes, which no such file is; copy the "
                  "whole backup again")},
    {SourceProblem::NoLibrary, WrongKindOfFile,
     translatable("'{0}' holds no photo library: neither {1}, such as in the Media folder of a "
                  "phone, nor the Manifest.db of a backup; name another source")},
    {SourceProblem::NoLibrarySoFar, WrongKindOfFile,
     translatable("no photo library is in the first {1} folders of '{0}', where the search ended; "
                  "name a folder further in")},
    {SourceProblem::EndedSearch, Incomplete,
     translatable("the search of '{0}' ended after {1} folders, so photo libraries in the others "
                  "are not known; name a folder further in")},
    {SourceProblem::EndedList, Incomplete,
     translatable("the search of '{0}' ended after {1} photo libraries, so others are not known; "
                  "name a folder further in")},
    {SourceProblem::TooDeepFolders, Incomplete,
     translatable("'{0}' has folders more than {1} deep, where photo libraries are not searched "
                  "for; name a folder further in")},
    {SourceProblem::UnsearchedPlaces, Incomplete,
     translatable("not all of '{0}' was searched for photo libraries, as not everything in it can "
                  "be read (such places: {1}), the first: {2}")},
    {SourceProblem::NoSuchEntry, CannotAccess,
     translatable("there is no '{1}' in '{0}'; check the path")},
    {SourceProblem::EncryptedArchive, CannotAccess,
     translatable("'{0}' is an encrypted archive; unpack it with its password and name the "
                  "folder")},
    {SourceProblem::DamagedArchive, CannotAccess,
     translatable("the archive '{0}' is damaged or cut short; copy it again")},
    {SourceProblem::DamagedArchiveBecause, CannotAccess,
     translatable("the archive '{0}' is damaged or cut short ({1}); copy it again")},
    {SourceProblem::ChangingArchive, CannotAccess,
     translatable("'{0}' changes while it is read; copy it first")},
    {SourceProblem::EncryptedEntry, CannotAccess,
     translatable("cannot read '{0}': it is encrypted; unpack the archive with its password and "
                  "name the folder")},
    {SourceProblem::LinkedEntry, CannotAccess,
     translatable("cannot read '{0}': it is a link to another entry; unpack the archive and name "
                  "the folder")},
    {SourceProblem::RepeatedEntry, CannotAccess,
     translatable("cannot read '{0}': the archive holds it more than once; unpack it and name the "
                  "folder")},
    {SourceProblem::EncryptedBackup, EncryptedBackup,
     translatable("'{0}' is an encrypted backup and needs its password; name a file with it by "
                  "--password-file, or set IOSPHOTO_BACKUP_PASSWORD")},
    {SourceProblem::WrongPassword, EncryptedBackup,
     translatable("no password given is that of the encrypted backup '{0}'; it is the one that was "
                  "set where backups of the device are made, not its passcode")},
    {SourceProblem::UnknownEncryption, CannotAccess,
     translatable("cannot tell whether '{0}' is encrypted, as its {1} and {2} cannot be read; copy "
                  "the whole backup again")},
    {SourceProblem::BackupWithoutKeyBag, CannotAccess,
     translatable("cannot decrypt '{0}': its {1} holds no keys; copy the whole backup again")},
    {SourceProblem::KeyBagIsCutShort, CannotAccess,
     translatable(
         "cannot decrypt the backup: the keys in '{0}' are damaged, as their part '{1}' is "
         "cut short; copy the whole backup again")},
    {SourceProblem::KeyBagRepeats, CannotAccess,
     translatable("cannot decrypt the backup: the keys in '{0}' are damaged, as their part '{1}' "
                  "is there twice; copy the whole backup again")},
    {SourceProblem::KeyBagLacks, CannotAccess,
     translatable("cannot decrypt the backup: the keys in '{0}' are damaged, as their part '{1}' "
                  "is missing or empty; copy the whole backup again")},
    {SourceProblem::KeyBagHasOddPart, CannotAccess,
     translatable("cannot decrypt the backup: the keys in '{0}' are damaged, as their part '{1}' "
                  "has {2} bytes instead of {3}; copy the whole backup again")},
    {SourceProblem::KeyBagHasOddRounds, CannotAccess,
     translatable("cannot decrypt the backup: the part '{1}' of the keys in '{0}' asks for {2} "
                  "rounds, and only 1 to {3} are carried out; copy the whole backup again")},
    {SourceProblem::IndexKeyIsDamaged, CannotAccess,
     translatable("cannot decrypt the index of the backup: its key in '{0}' is damaged; copy the "
                  "whole backup again")},
    {SourceProblem::FileWithoutRecord, Incomplete,
     translatable("cannot decrypt '{0}' ({1} on the phone): the index of the backup does not say "
                  "how; copy the whole backup again")},
    {SourceProblem::FileKeyIsDamaged, Incomplete,
     translatable("cannot decrypt '{0}' ({1} on the phone): its key in the index of the backup is "
                  "damaged; copy the whole backup again")},
    {SourceProblem::FileKeyOfDevice, Incomplete,
     translatable("cannot decrypt '{0}' ({1} on the phone): keys of its protection class {2} never "
                  "leave the phone; copy the file from there")},
    {SourceProblem::FileWithoutClassKey, Incomplete,
     translatable("cannot decrypt '{0}' ({1} on the phone): the backup has no key of its "
                  "protection class {2}; copy the whole backup again")},
    {SourceProblem::FileWithOddSize, Incomplete,
     translatable("'{0}' ({1} on the phone) has {2} bytes, as the index of the backup says; it is "
                  "taken as long as it is; copy the whole backup again")},
    {SourceProblem::EncryptedFileIsCut, Incomplete,
     translatable("'{0}' ({1} on the phone) is cut short: {2} of its {3} bytes are there; copy the "
                  "whole backup again")},
    {SourceProblem::EncryptedFileIsDamaged, Incomplete,
     translatable("'{0}' ({1} on the phone) is damaged: its decrypted end is not what an encrypted "
                  "file ends in; copy the whole backup again")},
    {SourceProblem::BackupWithoutLibrary, WrongKindOfFile,
     translatable("'{0}' is a backup without a photo library: {1} does not list {2}; make one of "
                  "the whole device")},
    {SourceProblem::BackupWithoutDatabase, CannotAccess,
     translatable("'{0}' is half a backup: the stored file '{1}' of {2} is not there; copy the "
                  "whole backup again")},
    {SourceProblem::BackupWithoutIndex, Incomplete,
     translatable("'{0}' has no Manifest.db, so files that belong to its library may be missing; "
                  "copy the whole backup again")},
    {SourceProblem::BackupWithoutLog, Incomplete,
     translatable("the latest changes are missing: the stored file '{0}' of {1} is not there; copy "
                  "the whole backup again")},
    {SourceProblem::BackupWithoutMedia, Incomplete,
     translatable("'{0}' is half a backup: {1} of the {2} files of the photo library that {3} "
                  "lists are missing; copy the whole backup again")},
    {SourceProblem::BackupWithDamagedIndex, Incomplete,
     translatable("'{0}' is damaged, so files of the photo library may be missing without a word; "
                  "the database was found by the name that every backup gives it; copy the whole "
                  "backup again")},
    {SourceProblem::BackupWithShortIndex, Incomplete,
     translatable("'{0}' is cut short: {1} of its {2} bytes are there, so files of the photo "
                  "library may be missing without a word; the database was found by the name that "
                  "every backup gives it; copy the whole backup again")},
    {SourceProblem::UnfinishedBackup, Incomplete,
     translatable("'{0}' is not finished, as its {1} says ('{2}'), so photos and changes may be "
                  "missing; wait for its end, or make another")},
    {SourceProblem::DamagedPropertyList, Incomplete,
     translatable("'{0}' cannot be read, so what it says of the device and the backup is missing; "
                  "copy the whole backup again")},
    {SourceProblem::IndexIsNoDatabase, CannotAccess,
     translatable("cannot read '{0}': it is not a SQLite database, or it is encrypted; copy the "
                  "whole backup again")},
    {SourceProblem::IndexHasOtherTables, WrongKindOfFile,
     translatable("'{0}' is a SQLite database whose tables are not those of a backup; copy the "
                  "whole backup again")},
    {SourceProblem::IndexNamesNoStoredFile, CannotAccess,
     translatable("'{0}' names a stored file '{1}', which no backup has; copy the whole backup "
                  "again")},
    {SourceProblem::IndexIsSomethingElse, CannotAccess,
     translatable("cannot read '{0}': it is not the index of a backup; copy the whole backup "
                  "again")},
    {SourceProblem::IndexIsCutShort, CannotAccess,
     translatable("cannot read '{0}': it is cut short; copy the whole backup again")},
    {SourceProblem::IndexIsDamaged, CannotAccess,
     translatable("cannot read '{0}': it is damaged; copy the whole backup again")},
};

constexpr Wording<SchemaProblem> schemaWords[] = {
    {SchemaProblem::EmptyFile, WrongKindOfFile,
     translatable("'{0}' is empty; copy it from the device or the backup again")},
    {SchemaProblem::NoDatabase, WrongKindOfFile,
     translatable("'{0}' is not a SQLite database, or it is encrypted; name the Photos.sqlite of a "
                  "phone or of an unencrypted backup")},
    {SchemaProblem::TooOld, SchemaDoesNotFit,
     translatable("'{0}' is a photo database of iOS 5 or earlier, which is not known; libraries of "
                  "iOS {1} to {2} can be read")},
    {SchemaProblem::NoPhotoLibrary, WrongKindOfFile,
     translatable("'{0}' is a SQLite database without a photo library; name the Photos.sqlite of a "
                  "phone or backup")},
    {SchemaProblem::OtherTables, WrongKindOfFile,
     translatable("'{0}' is a SQLite database whose tables are not those of a photo library; name "
                  "the Photos.sqlite of a phone or backup")},
    {SchemaProblem::UnknownSchema, SchemaDoesNotFit,
     translatable("'{0}' is a photo database of no known schema: no iOS from {1} to {2} has these "
                  "tables and columns ({3}); look for a newer iosphoto, or run 'iosphoto info' on "
                  "it and send "
                  "what that prints to the makers")},
    {SchemaProblem::NewerSchema, SchemaDoesNotFit,
     translatable("'{0}' is a photo database of iOS {1}, whose schema is not known yet ({2}); look "
                  "for a newer iosphoto, or run 'iosphoto info' on it and send what that prints to "
                  "the makers")},
    {SchemaProblem::OtherDevice, SchemaDoesNotFit,
     translatable("'{0}' is a photo database, but not of iOS {1} and {2}; try --ios {3} --product "
                  "{4}")},
    {SchemaProblem::ReadLikeNewest, Good,
     translatable("iOS {0} is newer than all that are known, so it is read like iOS {1}; check a "
                  "few photos against the device")},
    {SchemaProblem::OtherIos, Good,
     translatable("the database has the schema of {0}, not of iOS {1}, and photos may be wrong or "
                  "missing; try --ios {2}")},
    {SchemaProblem::MissingColumns, Incomplete,
     translatable("'{0}' has no {1}, so these fields are unknown, and albums that are made by them "
                  "may be wrong: {2}; look for a newer iosphoto")},
    {SchemaProblem::UnknownOrigins, Incomplete,
     translatable("'{0}' has no {1}, so photos of shared albums, photos referenced elsewhere and "
                  "photos synced from a computer cannot be told from the user's own, and are "
                  "listed as those; look for a newer iosphoto")},
    {SchemaProblem::UnknownTrash, Incomplete,
     translatable("'{0}' has no {1}, so deleted photos cannot be told from others, and are listed "
                  "as those, also after 30 days; look for a newer iosphoto")},
    {SchemaProblem::UnknownTrashDates, Incomplete,
     translatable("'{0}' has no {1}, so it is not known which photos have been in Recently Deleted "
                  "for 30 days, and all are listed; look for a newer iosphoto")},
    {SchemaProblem::UnknownBursts, Incomplete,
     translatable("'{0}' has no {1}, so the frames of a burst cannot be put together, and each is "
                  "listed by itself; look for a newer iosphoto")},
    {SchemaProblem::UnknownTitles, Incomplete,
     translatable(
         "'{0}' has no {1}, so the titles of albums are not known, and all albums that "
         "people or computers made are left out, as are photos that only they show; look for a "
         "newer iosphoto")},
    {SchemaProblem::UnknownAlbumKinds, Incomplete,
     translatable(
         "'{0}' has no {1}, so albums of the system cannot be told from those of the user, "
         "and are listed as those; look for a newer iosphoto")},
    {SchemaProblem::UnknownAlbumTrash, Incomplete,
     translatable("'{0}' has no {1}, so deleted albums cannot all be told from others, and may be "
                  "listed as those; look for a newer iosphoto")},
};

constexpr Wording<OutputProblem> outputWords[] = {
    {OutputProblem::InUse, CannotAccess,
     translatable("cannot write '{0}': '{1}' lies beside it; close what uses it, or choose another "
                  "name")},
    {OutputProblem::NotOurs, CannotAccess,
     translatable("'{0}' is there and was not written by iosphoto --sqlite, so it is not replaced; "
                  "choose another name")},
    {OutputProblem::Unwritten, CannotAccess,
     translatable("cannot write '{0}': {1}; choose another place for the output")},
};

constexpr Wording<ConditionProblem> conditionWords[] = {
    {ConditionProblem::NoColumn, WrongUsage,
     translatable("--where: there is no column '{0}'; there are {1}")},
    {ConditionProblem::NotAllowed, WrongUsage,
     translatable("--where: '{0}' asks for more than the columns of a photo; write no query and "
                  "no rowid in it, and only functions that compute")},
    {ConditionProblem::NotOne, WrongUsage,
     translatable("--where: '{0}' is not one complete expression; write one such as \"fileSize > "
                  "10000000 and width > height\"")},
    {ConditionProblem::Wrong, WrongUsage,
     translatable("--where: {0}; write an expression such as \"fileSize > 10000000 and width > "
                  "height\"")},
    {ConditionProblem::TooMuchWork, WrongUsage,
     translatable("--where: the expression takes too much work for a photo; write a simpler one")},
};

/// Whether a table has words for every kind up to the last, in their order.
template <typename Kind, std::size_t count>
constexpr bool hasAll(const Wording<Kind> (&wordings)[count], Kind last)
{
    for (std::size_t i = 0; i < count; ++i)
        if (static_cast<std::size_t>(wordings[i].kind) != i)
            return false;
    return static_cast<std::size_t>(last) + 1 == count;
}

static_assert(hasAll(sourceWords, SourceProblem::IndexIsDamaged));
static_assert(hasAll(schemaWords, SchemaProblem::UnknownAlbumTrash));
static_assert(hasAll(outputWords, OutputProblem::Unwritten));
static_assert(hasAll(conditionWords, ConditionProblem::TooMuchWork));

std::string filledIn(const char *english, const std::vector<std::string> &facts)
{
    fmt::dynamic_format_arg_store<fmt::format_context> arguments;
    for (const std::string &fact : facts)
        arguments.push_back(fact);
    return fmt::vformat(translateTerm(english), arguments);
}

template <typename Kind, std::size_t count>
Failure wordsFor(const Wording<Kind> (&wordings)[count], const Finding<Kind> &finding)
{
    const Wording<Kind> &wording = wordings[static_cast<std::size_t>(finding.kind)];
    return {wording.status, filledIn(wording.english, finding.facts)};
}

std::string encryptionOf(const LibraryDescription &library)
{
    return library.isEncrypted == true ? translate("encrypted") : "";
}

/// The name, then what a person knows it by.
std::string shownName(const LibraryDescription &library)
{
    const RecordedDevice device = library.device.value_or(RecordedDevice());
    const std::string ios =
        device.iosVersion.empty() ? "" : translate("iOS {0}", device.iosVersion);
    const std::optional<FileFacts> &database = library.database;
    const std::string size =
        database ? readableSize(static_cast<std::int64_t>(database->size)) : "";
    const std::string date = library.backupDate ? localTimeText(*library.backupDate)
                             : database         ? localTimeText(database->modified)
                                                : "";
    std::vector<std::string> known;
    for (const std::string &fact :
         {library.deviceName, device.productType, ios, size, date, encryptionOf(library)})
        if (!fact.empty())
            known.push_back(fact);
    const std::string name = translate("'{0}'", library.name);
    return known.empty() ? name : translate("{0} ({1})", name, listForPeople(known));
}

/// Where a search did not look, to the end of another sentence.
std::string appended(const std::vector<SourceFinding> &unsearched,
                     const std::vector<PassedOverNames> &passedOver)
{
    std::string text;
    for (const SourceFinding &finding : unsearched)
        text += translate("; ") + inWords(finding).what();
    return passedOver.empty() ? text : text + translate("; ") + inWords(passedOver);
}

Failure inWords(const SeveralLibraries &several)
{
    constexpr std::size_t mostNames = 5;
    const std::size_t count = several.libraries.size();
    std::string what = several.areBackups ? translate("{0} backups", count)
                                          : translate("{0} photo libraries", count);
    if (count > SeveralLibraries::mostCounted)
        what = translate("more than {0} libraries", SeveralLibraries::mostCounted);
    const std::vector<LibraryDescription> named(
        several.libraries.begin(),
        several.libraries.begin() + static_cast<std::ptrdiff_t>(std::min(count, mostNames)));
    const std::string names = listForPeople(named, shownName);
    const std::string text = translate(
        "'{0}' holds {1}, which iosphoto backups lists; name one of them: {2}", several.source,
        what, count > mostNames ? translate("{0} and more", names) : names);
    return {WrongUsage, text + appended(several.unsearched, several.passedOver)};
}

Failure inWords(const NoLibraryFound &none)
{
    const Failure failure = wordsFor(sourceWords, none.finding);
    return {failure.status(), failure.what() + appended(none.unsearched, none.passedOver)};
}

Failure inWords(const UnknownField &field)
{
    return {WrongUsage, translate("--fields: there is no field '{0}'; there are {1}", field.key,
                                  joinedTexts(field.known, ", ")) +
                            didYouMean(field.key, field.known)};
}

Failure inWords(const Finding<ConditionProblem> &finding)
{
    if (finding.kind != ConditionProblem::NoColumn)
        return wordsFor(conditionWords, finding);
    const std::string &name = finding.facts.front();
    const std::vector<std::string> columns(finding.facts.begin() + 1, finding.facts.end());
    const Failure failure =
        wordsFor(conditionWords, {finding.kind, {name, joinedTexts(columns, ", ")}});
    return {failure.status(), failure.what() + didYouMean(name, columns)};
}

Failure inWords(const FileIsThere &there)
{
    return {CannotAccess, translate("'{0}' is there already and is not replaced; choose another "
                                    "name, or replace it with --force",
                                    there.file.string())};
}

} // namespace

Failure inWords(const SourceFinding &finding)
{
    return wordsFor(sourceWords, finding);
}

Failure inWords(const SchemaFinding &finding)
{
    return wordsFor(schemaWords, finding);
}

Failure inWords(const Finding<OutputProblem> &finding)
{
    return wordsFor(outputWords, finding);
}

namespace {

/// Of what ends a command. What is only missing elsewhere was all that there was.
Failure fatal(const Failure &failure)
{
    return failure.status() == Incomplete ? Failure(CannotAccess, failure.what()) : failure;
}

} // namespace

ExitStatus runWithWords(const std::function<ExitStatus()> &command)
{
    try {
        return command();
    } catch (const SourceError &error) {
        throw fatal(inWords(error.finding()));
    } catch (const SchemaError &error) {
        throw inWords(error.finding());
    } catch (const OutputError &error) {
        throw inWords(error.finding());
    } catch (const ConditionError &error) {
        throw inWords(error.finding());
    } catch (const FileIsThere &there) {
        throw inWords(there);
    } catch (const NothingRead &nothing) {
        throw inWords(nothing);
    } catch (const NoLibraryFound &none) {
        throw inWords(none);
    } catch (const SeveralLibraries &libraries) {
        throw inWords(libraries);
    } catch (const UnknownField &field) {
        throw inWords(field);
    }
}

} // namespace iosphoto::tool
