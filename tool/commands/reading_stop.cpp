#include "commands/reading_stop.h"

#include "sqlite/sqlite_error.h"
#include "text/translate.h"

#include <set>

namespace iosphoto::tool {

namespace {

/// Without what a pass would have read there are fewer photos, or only albums with fewer of them.
std::string missingWithout(std::int32_t pass)
{
    if (pass == Pass::UserAlbums)
        return translate("albums are missing here");
    return pass == Pass::AlbumContents ? translate("photos are missing from albums here")
                                       : translate("photos are missing here");
}

std::string sentenceOf(const CPassReport &stop, const std::string &database, std::int64_t rowLimit)
{
    const std::string missing = missingWithout(stop.pass);
    const std::string remedy = remedyFor(stop.extendedCode, IfDamaged::CopyLibraryAgain);
    if (stop.code == SQLITE_ABORT)
        return translate("the tables of '{0}' make more than {1} rows of its photos, as only "
                         "damage or intent does, and {2}; {3}",
                         database, rowLimit, missing, remedy);
    const std::string why = sqliteError(stop.extendedCode);
    if (isOfDatabase(stop.code) && stop.code != SQLITE_INTERRUPT)
        return translate("'{0}' is damaged ({1}) and {2}; {3}", database, why, missing, remedy);
    return translate("'{0}' could not be read to its end ({1}) and {2}; {3}", database, why,
                     missing, remedy);
}

} // namespace

std::vector<std::string> sentencesOf(const CReadReport &report, const std::string &database,
                                     std::int64_t rowLimit)
{
    std::vector<std::string> sentences;
    std::set<std::int32_t> saidCodes;
    for (const CPassReport &pass : report.passes)
        if (pass.code != 0 && saidCodes.insert(pass.code).second)
            sentences.push_back(sentenceOf(pass, database, rowLimit));
    return sentences;
}

Failure inWords(const NothingRead &nothing)
{
    const int code = nothing.code();
    const std::string remedy = remedyFor(code, IfDamaged::CopyLibraryAgain);
    const std::string why = sqliteError(code);
    if (isOfDatabase(code) && code != SQLITE_INTERRUPT)
        return {CannotAccess, translate("'{0}' is damaged ({1}) and no photo could be read; {2}",
                                        nothing.database(), why, remedy)};
    return {CannotAccess,
            translate("cannot read '{0}': {1}; {2}", nothing.database(), why, remedy)};
}

} // namespace iosphoto::tool
