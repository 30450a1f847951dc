// Runs a fuzz target on kept inputs: replay FILE-OR-FOLDER...

#include "fuzz_target.h"
#include "support/temporary_folder.h"

#include <cstdio>

namespace fs = std::filesystem;

namespace {

void replayFile(const fs::path &file)
{
    std::printf("%s\n", file.c_str());
    std::fflush(stdout); // the last one named is the one that crashes
    const std::string input = iosphoto::test::readFile(file);
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.data()), input.size());
}

/// @return how many files it ran on
int replay(const fs::path &path)
{
    if (!fs::is_directory(path)) {
        replayFile(path);
        return 1;
    }
    int count = 0;
    for (const fs::path &file : fs::directory_iterator(path)) {
        replayFile(file);
        ++count;
    }
    return count;
}

} // namespace

int main(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i)
        if (replay(argv[i]) == 0) {
            std::fprintf(stderr, "replay: nothing in %s\n", argv[i]);
            return 1;
        }
    return argc > 1 ? 0 : 1;
}
