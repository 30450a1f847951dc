#ifndef IOSPHOTO_TESTS_SHA256_OF_H
#define IOSPHOTO_TESTS_SHA256_OF_H

#include <QCryptographicHash>

#include <string>

namespace iosphoto::test {

/// Not worked out by OpenSSL, which the tool uses.
inline std::string sha256Of(const std::string &bytes)
{
    return QCryptographicHash::hash(QByteArray::fromStdString(bytes), QCryptographicHash::Sha256)
        .toHex()
        .toStdString();
}

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_SHA256_OF_H
