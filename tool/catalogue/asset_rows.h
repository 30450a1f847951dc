/// Rows of the asset table, whatever the statements of the catalogue make of them.
#ifndef IOSPHOTO_TOOL_ASSET_ROWS_H
#define IOSPHOTO_TOOL_ASSET_ROWS_H

#include "ios_photo.h"
#include "model/device/device_profile.h"
#include "model/store/row.h"
#include "schema/schema_probe.h"
#include "sqlite/copy_database.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// A row of the asset table, joined with that of its attributes.
struct AssetRow
{
    Row values; ///< in the columns of the Camera Roll
    /// What the Camera Roll would have of it, and what the row says besides: whether it is a
    /// video, hidden, deleted ... on whatever device.
    CPhotoData record;
    bool hasTrashedDate;
    bool isSelected; ///< whether the statements of the catalogue look at it at all
};

/// Keys of rows, in lists in JSON of some of them each.
class RowKeys
{
public:
    void add(std::int64_t key);
    bool empty() const { return lists_.empty(); }
    void forEachList(const std::function<void(const std::string &)> &take) const;

private:
    std::vector<std::string> lists_;
    std::int64_t count_ = 0;
};

/// The asset table of a private copy.
class AssetRows
{
public:
    AssetRows(const CopyDatabase &database, const ProbedSchema &schema);

    /// Whether a record holds the key of every row: it has 32 bits for it.
    bool areKeysKnown() const;

    /// Hands the key of each row to `take`, and whether its record may not say all that the row
    /// says, though the Camera Roll shows it. Throws Failure when the table cannot be read.
    void forEachKey(const std::function<void(std::int64_t key, bool saysMore)> &take) const;

    /// Hands each row with one of the keys to `take`. Throws Failure likewise.
    void forEach(const RowKeys &keys, const std::function<void(const AssetRow &)> &take) const;

private:
    std::string columnNamed(const char *name) const;
    std::string isSelected() const;
    std::string typeByKind() const;
    std::string saysMore() const;
    std::string query() const;

    const CopyDatabase &database_;
    EntityNumbers numbers_;
    DeviceProfile model_;
    std::string table_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ASSET_ROWS_H
