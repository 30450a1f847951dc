/// Which rows of the asset table a catalogue shows. Sorted, not hashed: no choice of uuids makes it
/// slow.
#ifndef IOSPHOTO_TOOL_LISTED_ROWS_H
#define IOSPHOTO_TOOL_LISTED_ROWS_H

#include "catalogue/records.h"
#include "ios_photo.h"

#include <cstdint>
#include <vector>

namespace iosphoto::tool {

/// The first record of each row whose records know its key, as most do.
class KeyedRecords
{
public:
    /// @param catalogue  has to outlive the object
    explicit KeyedRecords(const std::vector<CAlbumGroup> &catalogue);

    CPhotoData *find(std::int64_t key) const; ///< null if there is none
    /// Whether the Camera Roll shows the row: then its record has every flag that the library sets.
    bool isInCameraRoll(std::int64_t key) const;

private:
    struct Entry
    {
        std::int32_t key;
        RecordNumber number;
    };

    const Entry *entryOf(std::int64_t key) const;

    Records records_;
    std::size_t inCameraRoll_ = 0; ///< records, which come first
    std::vector<Entry> entries_;
};

/// The record by which a catalogue shows a row.
struct ListedRecord
{
    CPhotoData *record = nullptr; ///< the first one; null if there is none
    bool isRepeated = false;      ///< it is another row's, with the same uuid and path
};

/// The records of other rows, which only albums of the table or the Photo Library show: by uuid and
/// path.
class KeylessRecords
{
public:
    /// @param catalogue  has to outlive the object
    explicit KeylessRecords(const std::vector<CAlbumGroup> &catalogue);

    ListedRecord find(const CPhotoData &row);

private:
    std::vector<CPhotoData *> records_;
    std::vector<bool> areFound_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_LISTED_ROWS_H
