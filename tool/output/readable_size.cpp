#include "output/readable_size.h"

#include "language/said.h"

#include <QLocale>

namespace iosphoto::tool {

std::string readableSize(std::int64_t bytes)
{
    constexpr std::int64_t kilobyte = 1024;
    if (bytes > -kilobyte && bytes < kilobyte)
        return bytes == 1 ? said("{0} byte", bytes) : said("{0} bytes", bytes);
    return QLocale::c()
        .formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat)
        .toStdString();
}

} // namespace iosphoto::tool
