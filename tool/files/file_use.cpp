#include "files/file_use.h"

#include <algorithm>

namespace iosphoto::tool {

namespace fs = std::filesystem;

void FileUse::protectFiles(const std::vector<fs::path> &files)
{
    for (const fs::path &file : files)
        protectedFiles_.add(file);
}

void FileUse::protectFolder(const fs::path &folder)
{
    protectedFolders_.add(folder);
}

bool FileUse::isProtected(const fs::path &file) const
{
    return protectedFiles_.contains(file) || isInProtectedFolder(file);
}

bool FileUse::isInProtectedFolder(const fs::path &file) const
{
    std::error_code error;
    fs::path folder = fs::weakly_canonical(fs::absolute(file, error), error).parent_path();
    for (; folder.has_relative_path(); folder = folder.parent_path())
        if (protectedFolders_.contains(folder))
            return true;
    return false;
}

void FileUse::willRead(const std::vector<fs::path> &files)
{
    std::vector<fs::path> ofSources;
    for (const fs::path &file : files)
        if (std::count(ownFolders_.begin(), ownFolders_.end(), file.parent_path()) == 0)
            ofSources.push_back(file);
    if (observer_ != nullptr)
        observer_->willRead(ofSources);
}

void FileUse::received(const char *bytes, std::size_t size)
{
    if (observer_ != nullptr)
        observer_->received(bytes, size);
}

void FileUse::willWrite(const fs::path &file)
{
    if (observer_ != nullptr)
        observer_->willWrite(file);
}

void FileUse::wrote(const fs::path &file, const QByteArray &content)
{
    if (observer_ != nullptr)
        observer_->wrote(file, content);
}

void FileUse::wroteWhole(const fs::path &file)
{
    if (observer_ != nullptr)
        observer_->wroteWhole(file);
}

void FileUse::decrypted(const std::string &input, const fs::path &copy)
{
    if (observer_ != nullptr)
        observer_->decrypted(input, copy);
}

void FileUse::printed(const char *bytes, std::size_t size)
{
    if (observer_ != nullptr)
        observer_->printed(bytes, size);
}

} // namespace iosphoto::tool
