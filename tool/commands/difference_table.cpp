#include "commands/difference_table.h"

#include "catalogue/album_kinds.h"
#include "terminal/paragraph.h"
#include "terminal/text_table.h"
#include "text/lists.h"
#include "text/numbers.h"
#include "text/translate.h"

namespace iosphoto::tool {

namespace {

using Words = std::vector<std::string>;

template <typename AnyChange>
std::string changeWord(AnyChange change)
{
    return translateTerm(changeName(change));
}

bool hasNoDate(double time)
{
    return time == 0;
}

/// Empty for a field that is only named.
std::string fieldWords(const std::string &key, const CPhotoData &before, const CPhotoData &after)
{
    if (key == "isFavorite")
        return after.isFavorite ? translate("now a favorite") : translate("no longer a favorite");
    if (key == "isHidden")
        return after.isHidden ? translate("now hidden") : translate("no longer hidden");
    if (key == "fileName")
        return translate("was named {0}", before.fileName.toStdString());
    if (key == "directory")
        return translate("was in {0}", before.directory.toStdString());
    if (key == "created" && !hasNoDate(before.createdTime) && !hasNoDate(after.createdTime))
        return translate("has another time of creation");
    return "";
}

void addFields(Words &words, const std::vector<const ComparedFact *> &fields,
               const CPhotoData &before, const CPhotoData &after)
{
    Words others;
    for (const ComparedFact *field : fields) {
        const std::string text = fieldWords(field->key, before, after);
        text.empty() ? others.emplace_back(field->key) : words.emplace_back(text);
    }
    if (!others.empty())
        words.push_back(translate("differs in {0}", listForPeople(others)));
}

/// What the edit made of a photo that had one before.
void addEdit(Words &words, const CPhotoData &before, const CPhotoData &after)
{
    if (before.isEdited)
        words.push_back(after.isEdited ? translate("edited again") : translate("edit undone"));
}

/// What the word for the change does not say.
Words details(const PhotoDifference &photo)
{
    Words words;
    if (!photo.after && photo.before->facts().isDeleted)
        words.push_back(translate("gone from the trash"));
    if (!photo.before || !photo.after)
        return words;
    const CPhotoData before = photo.before->facts();
    const CPhotoData after = photo.after->facts();
    for (const Change change : photo.changes)
        if (change == Change::Edited)
            addEdit(words, before, after);
    for (const CAlbumGroup *album : photo.addedTo)
        words.push_back(translate("added to {0}", shownName(*album)));
    for (const CAlbumGroup *album : photo.removedFrom)
        words.push_back(translate("removed from {0}", shownName(*album)));
    addFields(words, photo.changedFields, before, after);
    return words;
}

std::vector<std::string> cellsOf(const DifferenceLine &line)
{
    return {line.change, line.name, line.what};
}

/// How many there are of each change, where there are any.
template <typename Changes>
Words counts(const LibraryDifference &difference, const Changes &changes)
{
    Words words;
    for (const auto change : changes)
        if (const int count = difference.count(change); count > 0)
            words.push_back(translate("{0} {1}", grouped(count), changeWord(change)));
    return words;
}

std::string summary(const LibraryDifference &difference)
{
    const Words photos = counts(difference, allChanges);
    const Words albums = counts(difference, allAlbumChanges);
    if (albums.empty())
        return photos.empty() ? translate("no difference") : listForPeople(photos);
    return (photos.empty() ? "" : listForPeople(photos) + translate("; ")) +
           translate("albums: {0}", listForPeople(albums));
}

} // namespace

DifferenceLine lineOf(const AlbumDifference &album)
{
    const CAlbumGroup &latest = album.after != nullptr ? *album.after : *album.before;
    DifferenceLine line = {translate("album {0}", changeWord(album.change)), shownName(latest), ""};
    if (album.change == AlbumChange::Renamed)
        line.what = translate("was named {0}", shownName(*album.before));
    if (album.change == AlbumChange::Changed)
        line.what = translate("is of another kind");
    return line;
}

DifferenceLine lineOf(const PhotoDifference &photo)
{
    Words changes;
    for (const Change change : photo.changes)
        changes.push_back(changeWord(change));
    return {listForPeople(changes), photo.latest().path(), listForPeople(details(photo))};
}

void printDifferenceTable(const LibraryDifference &difference, const Screen &screen,
                          std::ostream &out)
{
    if (!difference.isNone()) {
        TextTable table({{translate("CHANGE")},
                         {translate("FILE"), TextTable::Align::Left, Elide::Left},
                         {translate("WHAT")}});
        const auto rows = [&](const TextTable::TakeCells &take) {
            for (const AlbumDifference &album : difference.albums)
                take(cellsOf(lineOf(album)));
            for (const PhotoDifference &photo : difference.photos.differences)
                take(cellsOf(lineOf(photo)));
        };
        rows([&](const std::vector<std::string> &cells) { table.measure(cells); });
        table.print(out, screen, rows);
        out << '\n';
    }
    printParagraph(out, screen, summary(difference));
}

} // namespace iosphoto::tool
