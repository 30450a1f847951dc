#include "output/counted.h"

#include <QLocale>

namespace iosphoto::tool {

std::string grouped(std::int64_t number)
{
    return QLocale(QLocale::English).toString(static_cast<qlonglong>(number)).toStdString();
}

} // namespace iosphoto::tool
