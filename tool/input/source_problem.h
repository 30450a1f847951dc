#ifndef IOSPHOTO_TOOL_SOURCE_PROBLEM_H
#define IOSPHOTO_TOOL_SOURCE_PROBLEM_H

#include "process/finding.h"

namespace iosphoto::tool {

/// What can be wrong with a source, or missing from it, with the facts of each in their order. A
/// file is named as a person finds it: one of an archive with the archive in front.
enum class SourceProblem {
    VanishedDatabase,       ///< file
    DatabaseIsCutShort,     ///< database, how many bytes, of how many
    UncountedPhotos,        ///< source, why its photos could not be counted
    NoPhotoDatabase,        ///< source, of which the name alone says that it is one
    LogIsNoLog,             ///< database; its -wal is something else
    LogHeaderIsDamaged,     ///< database, the commits that there are at least
    LogIsDamaged,           ///< database, the commits that are good, those that there are at least
    LogIsCutShort,          ///< database, the commits that are good
    LogEndsInOpenChange,    ///< database; nothing is missing if the device gave the change up
    LogEndsInZeros,         ///< database; nothing is missing if a copy was padded
    LogHasNoFrame,          ///< database; nothing is missing if none was written
    TooLarge,               ///< file, the bytes that it can have
    NoLibrary,              ///< source, path of the database below Media
    NoLibrarySoFar,         ///< source, after how many folders the search ended
    EndedSearch,            ///< source, after how many folders
    EndedList,              ///< source, after how many libraries
    TooDeepFolders,         ///< source, how deep the search went
    UnsearchedPlaces,       ///< source, how many, why of the first
    NoSuchEntry,            ///< archive, path in it
    EncryptedArchive,       ///< archive
    DamagedArchive,         ///< archive
    DamagedArchiveBecause,  ///< archive, reason
    ChangingArchive,        ///< archive
    EncryptedEntry,         ///< file
    LinkedEntry,            ///< file
    RepeatedEntry,          ///< file
    EncryptedBackup,        ///< backup
    WrongPassword,          ///< backup
    UnknownEncryption,      ///< backup, its property list, its index
    BackupWithoutKeyBag,    ///< backup, its property list
    KeyBagIsCutShort,       ///< file, part
    KeyBagRepeats,          ///< file, part
    KeyBagLacks,            ///< file, part
    KeyBagHasOddPart,       ///< file, part, how many bytes it has, how many it is to have
    KeyBagHasOddRounds,     ///< file, part, how many, how many there can be
    IndexKeyIsDamaged,      ///< file that holds it
    FileWithoutRecord,      ///< file, its path on the phone
    FileKeyIsDamaged,       ///< file, its path on the phone
    FileKeyOfDevice,        ///< file, its path on the phone, protection class
    FileWithoutClassKey,    ///< file, its path on the phone, protection class
    FileWithOddSize,        ///< file, its path on the phone, how many bytes
    EncryptedFileIsCut,     ///< file, its path on the phone, how many bytes, of how many
    EncryptedFileIsDamaged, ///< file, its path on the phone
    BackupWithoutLibrary,   ///< backup, its index, path of the database below Media
    BackupWithoutDatabase,  ///< backup, file, path of the database below Media
    BackupWithoutIndex,     ///< backup
    BackupWithoutLog,       ///< file, path of the log below Media
    BackupWithoutMedia,     ///< backup, how many files, of how many, its index
    BackupWithDamagedIndex, ///< its index
    BackupWithShortIndex,   ///< its index, how many bytes, of how many
    UnfinishedBackup,       ///< backup, its property list, what that says
    DamagedPropertyList,    ///< file
    IndexIsNoDatabase,      ///< file
    IndexHasOtherTables,    ///< file
    IndexNamesNoStoredFile, ///< file, the name
    IndexIsSomethingElse,   ///< file
    IndexIsCutShort,        ///< file
    IndexIsDamaged,         ///< file
};

using SourceFinding = Finding<SourceProblem>;
using SourceError = FindingError<SourceProblem>;

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SOURCE_PROBLEM_H
