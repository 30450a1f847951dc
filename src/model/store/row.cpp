#include "model/store/row.h"

#include <sqlite3.h>

#include <QByteArray>

#include <cstring>

namespace iosphoto {

Row::Row(sqlite3_stmt *statement)
    : statement_(statement), columnCount_(sqlite3_column_count(statement))
{
}

bool Row::isNull(int column) const
{
    return !has(column) || sqlite3_column_type(statement_, column) == SQLITE_NULL;
}

std::int32_t Row::int32(int column) const
{
    return has(column) ? sqlite3_column_int(statement_, column) : 0;
}

std::int64_t Row::int64(int column) const
{
    return has(column) ? sqlite3_column_int64(statement_, column) : 0;
}

double Row::real(int column) const
{
    return has(column) ? sqlite3_column_double(statement_, column) : 0;
}

const char *Row::cString(int column) const
{
    if (!has(column))
        return nullptr;
    return reinterpret_cast<const char *>(sqlite3_column_text(statement_, column));
}

QString Row::text(int column) const
{
    return QString::fromUtf8(cString(column));
}

std::string Row::bytes(int column) const
{
    const char *const value = cString(column);
    return value != nullptr ? std::string(value) : std::string();
}

std::string Row::hex(int column) const
{
    if (!has(column))
        return {};
    const auto *blob = static_cast<const char *>(sqlite3_column_blob(statement_, column));
    const int size = sqlite3_column_bytes(statement_, column);
    if (blob == nullptr || size <= 0)
        return {};
    return QByteArray::fromRawData(blob, size).toHex().toStdString();
}

bool Row::hasText(int column) const
{
    const char *const value = cString(column);
    return value != nullptr && *value != '\0';
}

bool Row::haveSameText(int one, int other) const
{
    const char *const left = cString(one);
    const char *const right = cString(other);
    return left != nullptr && right != nullptr && std::strcmp(left, right) == 0;
}

} // namespace iosphoto
