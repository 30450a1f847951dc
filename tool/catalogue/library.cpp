#include "catalogue/library.h"

#include "failure.h"
#include "output/notice.h"
#include "records/record_ownership.h"
#include "source/private_copy.h"
#include "source/schema_probe.h"
#include "source/sqlite_error_log.h"

#include <algorithm>

namespace iosphoto::tool {

namespace {

void sayWhatWasAssumed(const Device &wanted, const Device &device)
{
    std::string assumed;
    if (wanted.iosVersion.empty())
        assumed = "iOS " + device.iosVersion + ", the newest with these tables and columns (--ios)";
    if (wanted.productType.empty())
        assumed += (assumed.empty() ? "" : ", and ") + device.productType +
                   ", which hides no album (--product)";
    if (!assumed.empty())
        notice("reading as " + assumed);
}

bool isWithoutPhotos(const std::vector<CAlbumGroup> &albums)
{
    return std::all_of(albums.begin(), albums.end(),
                       [](const CAlbumGroup &album) { return album.photos.empty(); });
}

} // namespace

Library::Library(const std::string &name, const Device &wanted) : wanted_(wanted)
{
    const Source source(name);
    const PrivateCopy copy(source);
    database_ = source.databaseName();
    missing_ = source.missing();
    device_ = probe(copy.database(), database_, wanted);
    read(copy.database());
}

Library::~Library()
{
    destroyRecords(albums_);
}

void Library::read(const std::string &copy)
{
    sqlite_error_log::clear();
    const int result = ios_photo_get_list(copy, device_.iosVersion, device_.productType, &albums_);
    const std::string advice = "; copy it from the device or the backup again, its -wal with it";
    if (result != 0)
        throw Failure(CannotAccess, "cannot read '" + database_ + "': SQLite error " +
                                        std::to_string(-result) + advice);
    const std::string error = sqlite_error_log::firstError();
    if (error.empty())
        return;
    const std::string what = "'" + database_ + "' is damaged (" + error + ")";
    if (isWithoutPhotos(albums_))
        throw Failure(CannotAccess, what + " and no photo could be read" + advice);
    damage_ = what + " and photos are missing here" + advice;
    status_ = Incomplete;
}

void Library::sayHowItWasRead() const
{
    sayWhatWasAssumed(wanted_, device_);
    if (!damage_.empty())
        notice(damage_);
    if (!missing_.empty())
        notice(missing_);
}

} // namespace iosphoto::tool
