#ifndef IOSPHOTO_BENCH_FLOOR_H
#define IOSPHOTO_BENCH_FLOOR_H

#include <filesystem>
#include <string>
#include <vector>

struct sqlite3_stmt;

namespace iosphoto::bench {

/// The least that a catalogue can cost: the library's visits to the database with SQLite alone. It
/// runs the same statements over connections with the same settings and takes from each row all
/// that a catalogue needs, but keeps nothing.
class Floor
{
public:
    explicit Floor(const std::filesystem::path &database);

    /// The statements, in the order of the visits.
    std::vector<std::string> statements() const;

    /// Makes all visits.
    /// @return how many rows each had. Throws where one cannot be made.
    std::vector<int> visitAll() const;

    /// How many assets there are.
    int assets() const;

private:
    struct Visit
    {
        std::string statement;
        void (*readColumns)(sqlite3_stmt *row);
    };

    int make(const Visit &visit) const;

    std::string database_;
    std::vector<Visit> visits_;
};

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_FLOOR_H
