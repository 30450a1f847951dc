#include "text/numbers.h"

#include "text/translate.h"

#include <QLocale>

namespace iosphoto::tool {

std::string grouped(std::int64_t number)
{
    return QLocale(QLocale::English).toString(static_cast<qlonglong>(number)).toStdString();
}

std::string readableSize(std::int64_t bytes)
{
    constexpr std::int64_t kilobyte = 1024;
    if (bytes > -kilobyte && bytes < kilobyte)
        return bytes == 1 ? translate("{0} byte", bytes) : translate("{0} bytes", bytes);
    return QLocale::c()
        .formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat)
        .toStdString();
}

} // namespace iosphoto::tool
