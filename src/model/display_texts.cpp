#include "model/display_texts.h"

#include <QCoreApplication>

QString iosphoto::translated(const char *displayText)
{
    return QCoreApplication::translate("QDevPhotoDbMgr", displayText);
}
