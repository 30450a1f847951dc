#include "model/store/database_path.h"

#include <algorithm>

namespace iosphoto {

namespace {

constexpr ushort firstStrayByte = 0xDC80;
constexpr ushort lastStrayByte = 0xDCFF;
constexpr ushort strayBytes = 0xDC00;

bool isStrayByte(const QString &path, int at)
{
    const ushort unit = path.at(at).unicode();
    return unit >= firstStrayByte && unit <= lastStrayByte &&
           (at == 0 || !path.at(at - 1).isHighSurrogate());
}

/// The character that `bytes` begins with; empty where it begins with none.
QString firstCharacter(const QByteArray &bytes)
{
    for (int length = 1; length <= bytes.size(); ++length) {
        const QByteArray candidate = bytes.left(length);
        if (QString character = QString::fromUtf8(candidate); character.toUtf8() == candidate)
            return character;
    }
    return {};
}

QString textWithStrayBytes(const QByteArray &bytes)
{
    constexpr int longestCharacter = 4; // in UTF-8
    QString text;
    for (int at = 0; at < bytes.size();) {
        const QString character = firstCharacter(bytes.mid(at, longestCharacter));
        if (character.isEmpty())
            text += QChar(strayBytes + static_cast<uchar>(bytes.at(at)));
        else
            text += character;
        at += std::max(character.toUtf8().size(), 1);
    }
    return text;
}

} // namespace

QString pathFromBytes(const std::string &bytes)
{
    const QByteArray all = QByteArray::fromStdString(bytes);
    const QString text = QString::fromUtf8(all);
    return text.toUtf8() == all ? text : textWithStrayBytes(all);
}

QByteArray bytesOfPath(const QString &path)
{
    QByteArray bytes;
    int start = 0;
    for (int at = 0; at < path.size(); ++at)
        if (isStrayByte(path, at)) {
            bytes += path.mid(start, at - start).toUtf8();
            bytes += static_cast<char>(path.at(at).unicode() - strayBytes);
            start = at + 1;
        }
    return bytes + path.mid(start).toUtf8();
}

QByteArray nameForSqlite(const QString &path)
{
    const QByteArray bytes = bytesOfPath(path);
    if (bytes.contains('\0'))
        return {};
    return bytes.isEmpty() || bytes.startsWith('/') ? bytes : "./" + bytes;
}

} // namespace iosphoto
