/// Which statement a pass runs: one table a pass, newest iOS first, and the first row that matches
/// the device wins.
#ifndef IOSPHOTO_STATEMENT_TABLES_H
#define IOSPHOTO_STATEMENT_TABLES_H

#include "model/device/device_profile.h"
#include "model/statements/entity_numbers.h"

#include <QString>

#include <cstddef>
#include <functional>

namespace iosphoto {

/// A statement of src/model/statements/sql/, embedded at build time.
struct Statement
{
    const char *name; ///< the file's name without ".sql"
    const char *text; ///< UTF-8, with the placeholders %1, %2, ...
};

/// The entity numbers that fill a statement's placeholders, %1 first.
struct Placeholders
{
    static constexpr std::size_t most = 7;
    std::int32_t EntityNumbers::*numbers[most] = {};
};

/// A condition on the device besides its iOS version; null where there is none.
using DeviceTest = bool DeviceProfile::*;

struct StatementVariant
{
    IosGeneration from;
    DeviceTest onlyOn;
    Statement statement;
    Placeholders placeholders;
};

/// The variants of one pass.
struct StatementTable
{
    const StatementVariant *first;
    std::size_t size;

    const StatementVariant *begin() const { return first; }
    const StatementVariant *end() const { return first + size; }
};

extern const StatementTable cameraRollStatements;
extern const StatementTable photoLibraryStatements;
extern const StatementTable userAlbumStatements;
extern const StatementTable albumContentsStatements;

/// A view of the connection's own, under the name of a table, that leaves out the assets of no
/// album. The statements for the contents of albums find the same with it as without, in the same
/// order, but without it SQLite copies the rows of all assets into memory first: it is worth its
/// cost where most assets are in no album. Its condition is written so that SQLite neither looks
/// rows up by it nor expects fewer rows because of it.
extern const StatementTable assetsOfAlbumsView;

/// The statements that look the entity numbers up; they are the same for every device.
extern const Statement assetEntityStatement;
extern const Statement albumEntityStatement;
extern const Statement photoStreamAlbumEntityStatement;

/// The variant that `device` needs.
const StatementVariant &choose(const StatementTable &table, const DeviceProfile &device);

/// The variant's text with the entity numbers filled in, ready to run.
QString filledIn(const StatementVariant &variant, const EntityNumbers &numbers);

/// The same with what `textOf` makes of a number in its places.
QString filledIn(const StatementVariant &variant,
                 const std::function<QString(std::int32_t EntityNumbers::*)> &textOf);

} // namespace iosphoto

#endif // IOSPHOTO_STATEMENT_TABLES_H
