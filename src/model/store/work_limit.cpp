#include "model/store/work_limit.h"

#include "model/store/stored_bytes.h"

#include <QtEndian>

#include <sqlite3.h>

namespace iosphoto {

namespace {

// Sound databases take 623 steps a page at most.
constexpr std::int64_t mostStepsOfAPage = 100'000;
constexpr std::int64_t mostStepsOfAnyDatabase = 100'000'000;
constexpr int stepsOfATurn = 1000;

// The memory counted is that of all SQLite in the process. So it matters only once there were more
// steps than a sound database needs: what the host does meanwhile cannot end the reading of one.
constexpr std::int64_t usualStepsOfAPage = 1500;
constexpr std::int64_t usualStepsOfAnyDatabase = 50'000;
constexpr std::int64_t mostMemoryOfAByte = 64; // a membership of 20 bytes is sorted with 480
constexpr std::int64_t mostMemoryOfAnyDatabase = 256 * 1024 * 1024;

/// What the file's header says; the smallest there is where it says nothing sensible.
int pageSizeOf(sqlite3_file *file)
{
    constexpr int offset = 16;
    constexpr int smallest = 512;
    constexpr int largest = 65536;
    unsigned char bytes[2] = {};
    if (file->pMethods->xRead(file, bytes, sizeof bytes, offset) != SQLITE_OK)
        return smallest;
    const int size = qFromBigEndian<quint16>(bytes);
    if (size == 1) // stands for 65536, which two bytes cannot hold
        return largest;
    return size < smallest ? smallest : size;
}

} // namespace

void WorkLimit::apply(sqlite3 *connection)
{
    // By what the disk holds, since what a database says of itself may be made up.
    sqlite3_file *file = nullptr;
    sqlite3_file_control(connection, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    const char *const name = sqlite3_db_filename(connection, "main");
    if (file != nullptr && file->pMethods != nullptr && name != nullptr && *name != '\0') {
        bytes_ = storedBytesOfDatabase(name);
        pages_ = bytes_ / pageSizeOf(file);
    }
    memoryBefore_ = sqlite3_memory_used();
    sqlite3_progress_handler(connection, stepsOfATurn, countTurn, this);
}

std::string WorkLimit::reason() const
{
    return "it took " + std::to_string(steps_) + " steps, and no sound database of " +
           std::to_string(pages_) + " pages needs so many, or as much memory";
}

bool WorkLimit::allowsMore() const
{
    if (steps_ > mostStepsOfAnyDatabase + pages_ * mostStepsOfAPage)
        return false;
    return steps_ <= usualStepsOfAnyDatabase + pages_ * usualStepsOfAPage ||
           sqlite3_memory_used() - memoryBefore_ <=
               mostMemoryOfAnyDatabase + bytes_ * mostMemoryOfAByte;
}

int WorkLimit::countTurn(void *self)
{
    auto &limit = *static_cast<WorkLimit *>(self);
    limit.steps_ += stepsOfATurn;
    limit.isExceeded_ = limit.isExceeded_ || !limit.allowsMore();
    return limit.isExceeded_ ? 1 : 0;
}

} // namespace iosphoto
