#ifndef IOSPHOTO_TOOL_EXIT_STATUS_H
#define IOSPHOTO_TOOL_EXIT_STATUS_H

namespace iosphoto::tool {

/// What the tool's exit status says. Where it is not Good, a line on stderr says more.
enum ExitStatus {
    Good = 0,
    Incomplete = 1,       ///< read, but something is missing from what was shown
    Different = 1,        ///< of a comparison: read, and not the same; what is incomplete is 3
    WrongUsage = 2,       ///< the command line is wrong
    CannotAccess = 3,     ///< a file cannot be opened, read or written
    WrongKindOfFile = 4,  ///< the file is something else, or not a thumbnail cache
    SchemaDoesNotFit = 5, ///< a photo database, but of no known schema or not of the given iOS
    EncryptedBackup = 6,  ///< a backup that only its password opens
    Interrupted = 128,    ///< plus a signal: 2 for Ctrl-C; 13, without a line, if nobody reads
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_EXIT_STATUS_H
