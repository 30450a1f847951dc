#ifndef IOSPHOTO_TESTS_HEXADECIMAL_H
#define IOSPHOTO_TESTS_HEXADECIMAL_H

#include <QByteArray>

#include <string>
#include <string_view>

namespace iosphoto::test {

inline std::string hexadecimal(std::string_view bytes)
{
    return QByteArray(bytes.data(), static_cast<int>(bytes.size())).toHex().toStdString();
}

inline std::string fromHexadecimal(const std::string &digits)
{
    return QByteArray::fromHex(QByteArray::fromStdString(digits)).toStdString();
}

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_HEXADECIMAL_H
