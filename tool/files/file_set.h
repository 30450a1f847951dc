#ifndef IOSPHOTO_TOOL_FILE_SET_H
#define IOSPHOTO_TOOL_FILE_SET_H

#include <filesystem>
#include <set>
#include <sys/types.h>
#include <utility>

namespace iosphoto::tool {

/// Files that are known again under any of their names, be they there or not.
class FileSet
{
public:
    FileSet() = default;
    explicit FileSet(const std::filesystem::path &file) { add(file); }

    void add(const std::filesystem::path &file);
    bool contains(const std::filesystem::path &file) const;

private:
    std::set<std::filesystem::path> places_;
    std::set<std::pair<dev_t, ino_t>> identities_; ///< of those that are there
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FILE_SET_H
