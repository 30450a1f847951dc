/// What is measured, and how good it is to be.
#ifndef IOSPHOTO_BENCH_CASES_H
#define IOSPHOTO_BENCH_CASES_H

#include "store_generator.h"

namespace iosphoto::bench {

enum class Subject {
    RealLibrary,      ///< ios15-a of the folder of real libraries
    GeneratedLibrary, ///< of the case's shape
    ThumbCache,       ///< of as many records as the shape has assets
};

/// Cases that are to cost the same, relative to their floors.
enum class Group { None, Sizes, Bursts, Albums };

/// The most that a case may take. 0 where nothing is asked.
struct Goals
{
    double ratio;      ///< library to floor
    int heldBytes = 0; ///< for each record, as in MemoryUse
    int peakBytes = 0;
    double toolRatio = 0; ///< tool to floor
};

struct Case
{
    const char *name;
    Group group;
    Subject subject;
    StoreShape shape;
    Goals goals;
};

// clang-format off
constexpr Case cases[] = {
    // name             group          subject                     assets, albums, photos, bursts, frames, log    goals
    {"real15",          Group::None,   Subject::RealLibrary,      {},                                            {1.05}},
    {"10k",             Group::Sizes,  Subject::GeneratedLibrary, {10000,   20,    50},                          {1.22}},
    {"100k",            Group::Sizes,  Subject::GeneratedLibrary, {100000,  20,    50},                          {1.15, 400, 520}},
    {"1m",              Group::Sizes,  Subject::GeneratedLibrary, {1000000, 20,    50},                          {1.15, 390, 500, 2.0}},
    {"wal-100k",        Group::None,   Subject::GeneratedLibrary, {100000,  20,    50,    0,     0,  true},      {1.18}},
    {"bursts-0",        Group::Bursts, Subject::GeneratedLibrary, {120000,  20,    50},                          {1.18}},
    {"bursts-2000x10",  Group::Bursts, Subject::GeneratedLibrary, {120000,  20,    50,    2000,  10},            {1.18}},
    {"bursts-10000x10", Group::Bursts, Subject::GeneratedLibrary, {120000,  20,    50,    10000, 10},            {1.18}},
    {"bursts-20000x5",  Group::Bursts, Subject::GeneratedLibrary, {120000,  20,    50,    20000, 5},             {1.18}},
    {"albums-20x10000", Group::Albums, Subject::GeneratedLibrary, {120000,  20,    10000},                       {1.20}},
    {"albums-200x1000", Group::Albums, Subject::GeneratedLibrary, {120000,  200,   1000},                        {1.20}},
    {"albums-2000x100", Group::Albums, Subject::GeneratedLibrary, {120000,  2000,  100},                         {1.20}},
    {"albums-10000x20", Group::Albums, Subject::GeneratedLibrary, {120000,  10000, 20},                          {1.20}},
    {"thumbnails",      Group::None,   Subject::ThumbCache,       {2000,    0,     0},                           {1.45}},
};

constexpr struct
{
    Group group;
    const char *name;
} groups[] = {
    {Group::Sizes,  "sizes"},
    {Group::Bursts, "bursts"},
    {Group::Albums, "albums"},
};
// clang-format on

/// The most by which the ratios of a group may differ.
constexpr double flat = 0.1;

/// The most memory that the tool's output may take, however much there is of it.
constexpr double outputBytesGoal = 16e6;

} // namespace iosphoto::bench

#endif // IOSPHOTO_BENCH_CASES_H
