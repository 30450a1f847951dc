/// The path of a database on its way from a host to SQLite. It means the file of that name and
/// nothing else: file names are bytes, and need not be UTF-8; SQLite takes some for URIs.
#ifndef IOSPHOTO_DATABASE_PATH_H
#define IOSPHOTO_DATABASE_PATH_H

#include <QByteArray>
#include <QString>

#include <string>

namespace iosphoto {

/// The path as text. A byte that is not part of UTF-8 becomes the lone surrogate U+DC00 plus its
/// value, which no text has.
QString pathFromBytes(const std::string &bytes);

/// What pathFromBytes() made a text of; the UTF-8 of any other text.
QByteArray bytesOfPath(const QString &path);

/// The name under which SQLite opens the file: of a relative path one that does not look like a
/// URI or a database in memory. Empty for an empty path, and for one with a zero byte, which no
/// file has.
QByteArray nameForSqlite(const QString &path);

} // namespace iosphoto

#endif // IOSPHOTO_DATABASE_PATH_H
