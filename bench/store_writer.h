#ifndef IOSPHOTO_BENCH_STORE_WRITER_H
#define IOSPHOTO_BENCH_STORE_WRITER_H

#include "asset_values.h"
#include "model/store/sqlite_handles.h"

#include <filesystem>

namespace iosphoto::bench {

/// A new database with the tables of an iOS 15 photo library, as fast to fill as SQLite can be.
/// Errors are thrown.
class StoreWriter
{
public:
    explicit StoreWriter(const std::filesystem::path &database);

    void addAsset(const AssetValues &asset);
    void addAlbum(int key, int photos);
    void addToAlbum(int album, int asset);

    void createIndexes();
    /// Writes into the log from now on, and leaves it behind.
    void continueInLog();
    void commit();

private:
    SqliteStatement prepare(const char *sql) const;
    void execute(const char *sql) const;
    void check(int result) const;
    template <typename... Values>
    void insert(const SqliteStatement &statement, const Values &...values) const;

    SqliteConnection connection_;
    SqliteStatement asset_;
    SqliteStatement attributes_;
    SqliteStatement album_;
    SqliteStatement membership_;
};

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_STORE_WRITER_H
