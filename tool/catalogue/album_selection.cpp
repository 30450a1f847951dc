#include "catalogue/album_selection.h"

#include "catalogue/album_kinds.h"
#include "failure.h"
#include "output/notice.h"

#include <algorithm>
#include <iterator>

namespace iosphoto::tool {

namespace {

bool fits(const CAlbumGroup &album, const QString &wanted)
{
    const QString names[] = {album.albumName, QString::fromStdString(kindName(album)),
                             QString::fromStdString(englishKind(album)),
                             QString::number(album.albumKind),
                             QString::fromStdString(album.albumUuid)};
    return std::any_of(std::begin(names), std::end(names), [&](const QString &name) {
        return !name.isEmpty() && name.compare(wanted, Qt::CaseInsensitive) == 0;
    });
}

} // namespace

std::vector<const CAlbumGroup *> selectAlbums(const Library &library, const std::string &wanted)
{
    std::vector<const CAlbumGroup *> selected;
    std::string listed;
    for (const CAlbumGroup &album : library.albums()) {
        if (!fits(album, QString::fromStdString(wanted)))
            continue;
        listed += (selected.empty() ? "" : ", ") + englishName(album);
        selected.push_back(&album);
    }
    if (selected.empty())
        throw Failure(WrongUsage, "no album fits '" + wanted + "'; 'iosphoto albums " +
                                      library.name() + "' lists them");
    if (selected.size() > 1)
        notice("'" + wanted + "' fits " + std::to_string(selected.size()) +
               " albums, all are shown: " + listed);
    return selected;
}

} // namespace iosphoto::tool
