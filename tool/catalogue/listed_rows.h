/// Which rows of the asset table a catalogue shows. Sorted, not hashed: no choice of uuids makes it
/// slow.
#ifndef IOSPHOTO_TOOL_LISTED_ROWS_H
#define IOSPHOTO_TOOL_LISTED_ROWS_H

#include "ios_photo.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace iosphoto::tool {

/// The keys of the rows whose records know them, as most do.
class ListedKeys
{
public:
    explicit ListedKeys(const std::vector<CAlbumGroup> &catalogue);

    bool has(std::int32_t key) const;

private:
    std::vector<std::int32_t> keys_;
};

/// The others, which only albums of the table or the Photo Library show: by uuid, or by path where
/// they have none.
class ListedUuids
{
public:
    /// @param catalogue  has to outlive the object
    explicit ListedUuids(const std::vector<CAlbumGroup> &catalogue);

    bool has(const std::string &uuid, const std::string &path) const;

private:
    std::vector<std::string_view> uuids_;
    std::vector<std::string> paths_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LISTED_ROWS_H
