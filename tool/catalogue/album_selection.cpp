#include "catalogue/album_selection.h"

#include "catalogue/album_kinds.h"
#include "failure.h"
#include "language/said.h"
#include "output/notice.h"

#include <algorithm>
#include <iterator>

namespace iosphoto::tool {

namespace {

bool fits(const CAlbumGroup &album, const QString &wanted)
{
    const QString names[] = {album.albumName,
                             QString::fromStdString(kindName(album)),
                             QString::fromStdString(englishKind(album)),
                             QString::fromStdString(shownKind(album)),
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
        listed += (selected.empty() ? "" : said(", ")) + shownName(album);
        selected.push_back(&album);
    }
    if (selected.empty())
        throw Failure(WrongUsage, said("no album fits '{0}'; 'iosphoto albums {1}' lists them",
                                       wanted, library.name()));
    if (selected.size() > 1)
        remark(said("'{0}' fits {1} albums, all are shown: {2}", wanted, selected.size(), listed));
    return selected;
}

} // namespace iosphoto::tool
