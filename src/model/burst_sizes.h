#ifndef IOSPHOTO_BURST_SIZES_H
#define IOSPHOTO_BURST_SIZES_H

#include "ios_photo.h"

#include <map>
#include <vector>

namespace iosphoto {

/// How many frames each burst has in the Bursts album.
class BurstSizes
{
public:
    /// @param album  a null pointer if there is no Bursts album: no burst has a frame then
    explicit BurstSizes(const CAlbumGroup *album);

    /// Fastest for bursts in the order of the album, which other albums mostly have too.
    /// Never throws: records are deleted between the calls.
    std::int32_t of(const QString &burstUuid) noexcept;

private:
    struct Burst
    {
        QString uuid;
        std::int32_t frames;
    };

    void add(const QString &burstUuid);

    std::vector<Burst> bursts_;
    /// Ordered, because the uuids come from the file: no choice of them makes it slow.
    std::map<QString, std::size_t> places_;
    std::size_t expected_ = 0; ///< the burst that is likely to be asked for next
};

} // namespace iosphoto

#endif // IOSPHOTO_BURST_SIZES_H
