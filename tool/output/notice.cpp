#include "output/notice.h"

#include "output/interruption_lock.h"
#include "output/printable.h"

#include <iostream>

namespace iosphoto::tool {

void notice(const std::string &text)
{
    const InterruptionLock lock;
    std::cerr << "iosphoto: " + printable(text) + "\n";
}

} // namespace iosphoto::tool
