#include "docs/documents.h"

#include "support/temporary_folder.h"

#include <algorithm>
#include <regex>
#include <sstream>

namespace fs = std::filesystem;

namespace iosphoto::test {

namespace {

struct Parts
{
    std::vector<CodeBlock> blocks;
    std::string prose;
};

Parts partsOf(const std::string &document)
{
    static const std::regex fence(" *```(.*)");
    Parts parts;
    bool isInside = false;
    std::smatch found;
    for (const std::string &line : linesOfDocument(document)) {
        if (std::regex_match(line, found, fence)) {
            isInside = !isInside;
            if (isInside)
                parts.blocks.push_back({found[1].str(), {}});
        } else if (isInside) {
            parts.blocks.back().lines.push_back(line);
        } else {
            parts.prose += line + "\n";
        }
    }
    return parts;
}

bool isOfRepository(const fs::path &folder)
{
    const std::string name = folder.filename().string();
    return name.rfind("build", 0) != 0 && name.rfind('.', 0) != 0 && name != "crashes";
}

} // namespace

Lines linesOf(const std::string &text)
{
    Lines lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

Lines linesOfDocument(const std::string &document)
{
    return linesOf(readFile(fs::path(IOSPHOTO_SOURCE) / document));
}

std::vector<std::string> allDocuments()
{
    std::vector<std::string> documents;
    for (const fs::path &file : repositoryFiles())
        if (file.extension() == ".md" && file != "CHANGELOG.md") // which tells of the past
            documents.push_back(file.string());
    return documents;
}

std::vector<CodeBlock> codeBlocksIn(const std::string &document)
{
    return partsOf(document).blocks;
}

std::string proseOf(const std::string &document)
{
    return partsOf(document).prose;
}

std::vector<fs::path> repositoryFiles()
{
    std::vector<fs::path> files;
    for (auto entry = fs::recursive_directory_iterator(IOSPHOTO_SOURCE);
         entry != fs::recursive_directory_iterator(); ++entry) {
        if (entry->is_directory() && !isOfRepository(entry->path()))
            entry.disable_recursion_pending();
        else if (!entry->is_directory())
            files.push_back(fs::relative(entry->path(), IOSPHOTO_SOURCE));
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace iosphoto::test
