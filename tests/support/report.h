#ifndef IOSPHOTO_TESTS_REPORT_H
#define IOSPHOTO_TESTS_REPORT_H

#include "ios_photo_report.h"
#include "support/catalogue.h"

namespace iosphoto::test {

/// A build of a catalogue with what it reports.
class ReportedBuild
{
public:
    explicit ReportedBuild(const LibraryBuilder &library);
    ReportedBuild(const std::string &path, const std::string &iosVersion,
                  const std::string &productType);
    ~ReportedBuild();
    ReportedBuild(const ReportedBuild &) = delete;
    ReportedBuild &operator=(const ReportedBuild &) = delete;

    /// The report of a pass. Throws where that did not run.
    const CPassReport &of(Pass::Code pass) const;

    Files cameraRoll() const { return files(findAlbum(albums, AlbumKind::CameraRoll, false)); }

    std::vector<CAlbumGroup> albums;
    CReadReport report;
    int result;
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_REPORT_H
