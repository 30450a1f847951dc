#ifndef IOSPHOTO_PASS_CONTEXT_H
#define IOSPHOTO_PASS_CONTEXT_H

#include "ios_photo.h"
#include "ios_photo_report.h"
#include "model/device/device_profile.h"
#include "model/statements/entity_numbers.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace iosphoto {

/// Which database a pass reads, as that of which device, and where its records go.
struct PassContext
{
    const QString &path; ///< of the database
    DeviceProfile device;
    EntityNumbers entities;
    std::vector<CAlbumGroup> &albums;
    CReadReport &report;
    std::int64_t rowLimit; ///< the most rows that it reads; 0 for no limit
    std::uint32_t now;     ///< Unix time as of which it looks at the trash
};

} // namespace iosphoto

#endif // IOSPHOTO_PASS_CONTEXT_H
