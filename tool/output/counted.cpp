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

} // namespace iosphoto::tool
