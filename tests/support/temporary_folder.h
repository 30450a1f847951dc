#ifndef IOSPHOTO_TESTS_TEMPORARY_FOLDER_H
#define IOSPHOTO_TESTS_TEMPORARY_FOLDER_H

#include <filesystem>
#include <string>

namespace iosphoto::test {

/// A folder of the test's own that every user may enter, removed with all it holds at the end.
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    const std::filesystem::path &path() const { return path_; }
    std::filesystem::path operator/(const std::string &name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

std::string readFile(const std::filesystem::path &file);
void writeFile(const std::filesystem::path &file, const std::string &content);

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_TEMPORARY_FOLDER_H
