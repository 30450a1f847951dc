#include "input/backup/stored_names.h"

#include <fmt/format.h>
#include <openssl/evp.h>

#include <array>

namespace iosphoto::tool {

std::optional<std::string> StoredNames::locate(const std::string &mediaPath) const
{
    const std::string name = storedName(mediaPath);
    for (const std::string &path : {inItsFolder(name), name})
        if (tree_.find(joinedPath(folder_, path)))
            return path;
    return std::nullopt;
}

std::string pathInDomain(const std::string &mediaPath)
{
    return "Media/" + mediaPath;
}

std::string storedName(const std::string &mediaPath)
{
    const std::string subject = std::string(mediaDomain) + "-" + pathInDomain(mediaPath);
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest = {};
    unsigned size = 0;
    EVP_Digest(subject.data(), subject.size(), digest.data(), &size, EVP_sha1(), nullptr);
    std::string name;
    for (unsigned i = 0; i < size; ++i)
        name += fmt::format("{:02x}", digest[i]);
    return name;
}

std::string inItsFolder(const std::string &storedName)
{
    return storedName.substr(0, 2) + "/" + storedName;
}

} // namespace iosphoto::tool
