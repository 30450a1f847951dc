#include "support/temporary_folder.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <stdlib.h>

namespace iosphoto::test {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder()
{
    std::string name = (fs::temp_directory_path() / "iosphoto-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
        throw std::runtime_error("cannot make " + name);
    path_ = name;
    fs::permissions(path_, fs::perms::all);
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    fs::permissions(path_, fs::perms::all, ignored);
    fs::remove_all(path_, ignored);
}

std::string readFile(const fs::path &file)
{
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void writeFile(const fs::path &file, const std::string &content)
{
    std::ofstream(file, std::ios::binary) << content;
}

} // namespace iosphoto::test
