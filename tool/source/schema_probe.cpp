#include "source/schema_probe.h"

#include "failure.h"
#include "model/statement_tables.h"

#include <sqlite3.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>

namespace iosphoto::tool {

namespace {

/// One kind of schema: the newest device that writes it.
struct KnownSchema
{
    const char *iosVersion;
    const char *productType;
    /// A column of ZADDITIONALASSETATTRIBUTES that this schema no longer has, where the columns
    /// that its statements read do not tell it from the one before.
    const char *goneColumn = nullptr;
};

constexpr char hidesNoAlbum[] = "iPhone14,2";
constexpr char withoutIos7SubTypes[] = "iPhone3,1";

constexpr KnownSchema newestFirst[] = {
    {"18", hidesNoAlbum}, {"17", hidesNoAlbum, "ZCREATORBUNDLEID"},
    {"14", hidesNoAlbum}, {"13", hidesNoAlbum},
    {"10", hidesNoAlbum}, {"8", hidesNoAlbum},
    {"7", hidesNoAlbum},  {"7", withoutIos7SubTypes},
    {"6", hidesNoAlbum},
};

/// A connection to a private copy.
class Database
{
public:
    Database(const std::string &file, std::string shownName) : shownName_(std::move(shownName))
    {
        sqlite3 *connection = nullptr;
        const int opened = sqlite3_open(file.c_str(), &connection);
        connection_.reset(connection);
        if (opened != SQLITE_OK)
            throw unreadable();
    }

    /// Throws Failure when the file is no database that can be read.
    void check() const
    {
        // Reads the first page, and so meets a wrong header, an encrypted file and a bad journal.
        const int result = sqlite3_exec(connection_.get(), "select name from sqlite_master",
                                        nullptr, nullptr, nullptr);
        if (result == SQLITE_NOTADB)
            throw Failure(WrongKindOfFile,
                          "'" + shownName_ +
                              "' is not a SQLite database, or it is encrypted; name the "
                              "Photos.sqlite of a phone or of an unencrypted backup");
        if (result != SQLITE_OK)
            throw unreadable();
    }

    bool hasTable(const char *table) const { return hasColumn(table, nullptr); }

    bool hasColumn(const char *table, const char *column) const
    {
        return sqlite3_table_column_metadata(connection_.get(), nullptr, table, column, nullptr,
                                             nullptr, nullptr, nullptr, nullptr) == SQLITE_OK;
    }

    bool prepares(const QString &statement) const { return prepare(statement) != nullptr; }

    /// A number that a lookup finds, in its last row; 0 when it finds none.
    std::int32_t number(const Statement &lookup, int column) const
    {
        const auto statement = prepare(QString::fromUtf8(lookup.text));
        if (statement == nullptr)
            return 0;
        std::int32_t found = 0;
        int result = SQLITE_ROW;
        while ((result = sqlite3_step(statement.get())) == SQLITE_ROW)
            found = sqlite3_column_int(statement.get(), column);
        if (result != SQLITE_DONE)
            throw unreadable();
        return found;
    }

private:
    struct Close
    {
        void operator()(sqlite3 *connection) const { sqlite3_close(connection); }
        void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
    };

    std::unique_ptr<sqlite3_stmt, Close> prepare(const QString &text) const
    {
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(connection_.get(), text.toUtf8().constData(), -1, &statement, nullptr);
        return std::unique_ptr<sqlite3_stmt, Close>(statement);
    }

    Failure unreadable() const
    {
        return {CannotAccess, "cannot read '" + shownName_ +
                                  "': " + sqlite3_errmsg(connection_.get()) +
                                  "; copy it from the device or the backup again"};
    }

    std::unique_ptr<sqlite3, Close> connection_;
    std::string shownName_;
};

bool isPhotoDatabase(const Database &database)
{
    return database.hasTable("Z_PRIMARYKEY") && database.hasTable("ZGENERICALBUM") &&
           database.hasTable("ZADDITIONALASSETATTRIBUTES") &&
           (database.hasTable("ZASSET") || database.hasTable("ZGENERICASSET"));
}

EntityNumbers readEntityNumbers(const Database &database)
{
    return {database.number(albumEntityStatement, 0),
            database.number(photoStreamAlbumEntityStatement, 0),
            database.number(assetEntityStatement, 0), database.number(assetEntityStatement, 1)};
}

/// Whether every statement that the library chooses for the device runs on the database.
bool statementsFit(const Database &database, const EntityNumbers &numbers, const Device &device)
{
    const DeviceProfile profile(device.iosVersion, QString::fromStdString(device.productType));
    const StatementTable *const tables[] = {&cameraRollStatements, &photoLibraryStatements,
                                            &userAlbumStatements, &albumContentsStatements};
    return std::all_of(std::begin(tables), std::end(tables), [&](const StatementTable *table) {
        return database.prepares(filledIn(choose(*table, profile), numbers));
    });
}

Device completed(const Device &wanted, const KnownSchema &schema)
{
    return {wanted.iosVersion.empty() ? schema.iosVersion : wanted.iosVersion,
            wanted.productType.empty() ? schema.productType : wanted.productType};
}

std::optional<Device> findDevice(const Database &database, const EntityNumbers &numbers,
                                 const Device &wanted)
{
    for (const KnownSchema &schema : newestFirst) {
        const bool isOlder = schema.goneColumn != nullptr && wanted.iosVersion.empty() &&
                             database.hasColumn("ZADDITIONALASSETATTRIBUTES", schema.goneColumn);
        const Device device = completed(wanted, schema);
        if (!isOlder && statementsFit(database, numbers, device))
            return device;
    }
    return std::nullopt;
}

Failure noFit(const Database &database, const EntityNumbers &numbers, const std::string &shownName,
              const Device &wanted)
{
    const std::string subject = "'" + shownName + "' is a photo database";
    const auto fitting = findDevice(database, numbers, {});
    if (!fitting)
        return {SchemaDoesNotFit,
                subject + " of no known schema: no iOS from 6 to 18 has these tables"};
    const std::string given =
        (wanted.iosVersion.empty() ? "" : " --ios " + wanted.iosVersion) +
        (wanted.productType.empty() ? "" : " --product " + wanted.productType);
    return {SchemaDoesNotFit, subject + ", but not of" + given + "; try --ios " +
                                  fitting->iosVersion + " --product " + fitting->productType};
}

} // namespace

Device probe(const std::string &database, const std::string &shownName, const Device &wanted)
{
    const Database opened(database, shownName);
    opened.check();
    if (!isPhotoDatabase(opened))
        throw Failure(WrongKindOfFile, "'" + shownName +
                                           "' is a SQLite database without a photo library; name "
                                           "the Photos.sqlite of a phone or backup");
    const EntityNumbers numbers = readEntityNumbers(opened);
    const auto device = findDevice(opened, numbers, wanted);
    if (!device)
        throw noFit(opened, numbers, shownName, wanted);
    return *device;
}

} // namespace iosphoto::tool
