#include "model/passes/asset_trace.h"

#include "model/core_data_time.h"
#include "model/passes/camera_roll_columns.h"

#include <QMessageLogger>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace iosphoto {

namespace {

constexpr const char *watchedFiles[] = {
    "550F4600-492B-4411-8A64-D3FC5131659B.JPG",
    "D27ACE93-8F27-4371-B80B-D3884911A16A.JPG",
    "5C96BF0D-EA1D-4091-83EC-68EDBEB606AB.PNG",
};

bool isWatched(const QString &fileName)
{
    return std::any_of(std::begin(watchedFiles), std::end(watchedFiles),
                       [&](const char *watched) { return fileName == QLatin1String(watched); });
}

QString dateAndTime(const Row &row, int column)
{
    // Unsigned, so that a date beyond all bounds wraps instead of overflowing.
    const auto seconds = static_cast<std::uint64_t>(wholeSeconds(row.real(column)));
    const auto unixTime = static_cast<std::uint32_t>(seconds + coreDataEpoch);
    return localTime(unixTime).toString(QStringLiteral("yyyyMMdd hh:mm:ss"));
}

} // namespace

void traceIfWatched(const CPhotoData &photo, const Row &row)
{
    if (!isWatched(photo.fileName))
        return;
    // Not through QDebug's stream: it writes from its destructor, where lack of memory would end
    // the process.
    const QStringList words = {photo.fileName, dateAndTime(row, camera_roll::created),
                               dateAndTime(row, camera_roll::modified),
                               dateAndTime(row, camera_roll::added)};
    // Naming no file and line here makes the category "default"; without one there is none.
    QMessageLogger(nullptr, 0, nullptr)
        .debug("%s", words.join(QLatin1Char(' ')).toUtf8().constData());
}

} // namespace iosphoto
