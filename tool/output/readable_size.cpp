#include "output/readable_size.h"

#include <QLocale>

namespace iosphoto::tool {

std::string readableSize(std::int64_t bytes)
{
    return QLocale::c()
        .formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat)
        .toStdString();
}

} // namespace iosphoto::tool
