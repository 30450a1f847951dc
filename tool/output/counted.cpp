#include "output/counted.h"

#include <QLocale>

namespace iosphoto::tool {

std::string grouped(int number)
{
    return QLocale(QLocale::English).toString(number).toStdString();
}

std::string counted(int number, const std::string &thing)
{
    return grouped(number) + " " + thing + (number == 1 ? "" : "s");
}

std::string readableSize(std::int64_t bytes)
{
    return QLocale::c()
        .formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat)
        .toStdString();
}

} // namespace iosphoto::tool
