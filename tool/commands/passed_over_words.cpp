#include "commands/passed_over_words.h"

#include "text/lists.h"
#include "text/numbers.h"
#include "text/translate.h"

namespace iosphoto::tool {

namespace {

std::string countOf(PassedOver reason, std::size_t number)
{
    const auto count = static_cast<std::int64_t>(number);
    switch (reason) {
    case PassedOver::OtherLibrary:
        return counted(count, "{0} other photo library", "{0} other photo libraries");
    case PassedOver::NestedLibrary:
        return counted(count, "{0} photo library in a backup", "{0} photo libraries in a backup");
    case PassedOver::Archive:
        return counted(count, "{0} archive, which can be named itself",
                       "{0} archives, which can be named themselves");
    case PassedOver::PackedArchive:
        return counted(count, "{0} archive, which has to be unpacked first",
                       "{0} archives, which have to be unpacked first");
    case PassedOver::Link:
        return counted(count, "{0} link, which is not followed",
                       "{0} links, which are not followed");
    case PassedOver::SystemDatabase:
        return counted(count, "{0} database of the system", "{0} databases of the system");
    case PassedOver::OtherDatabase:
        return counted(count, "{0} database of another name", "{0} databases of other names");
    case PassedOver::NoPhotoDatabase:
        break;
    }
    return counted(count, "{0} file that is no photo database",
                   "{0} files that are no photo databases");
}

std::string wordsOf(const PassedOverNames &names)
{
    const std::string first = listForPeople(
        names.first, [](const std::string &name) { return translate("'{0}'", name); });
    return translate("{0}: {1}", countOf(names.reason, names.count),
                     names.count > names.first.size() ? translate("{0} and more", first) : first);
}

} // namespace

std::string inWords(const std::vector<PassedOverNames> &passedOver)
{
    if (passedOver.empty())
        return {};
    return translate("passed over in the search for photo libraries: {0}",
                     joinedTexts(passedOver, translate("; "), wordsOf));
}

} // namespace iosphoto::tool
