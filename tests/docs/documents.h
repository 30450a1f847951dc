/// The repository's documents, as tests read them.
#ifndef IOSPHOTO_TESTS_DOCUMENTS_H
#define IOSPHOTO_TESTS_DOCUMENTS_H

#include <filesystem>
#include <string>
#include <vector>

namespace iosphoto::test {

using Lines = std::vector<std::string>;

Lines linesOf(const std::string &text);
Lines linesOfDocument(const std::string &document);

/// Their paths in the repository, such as "docs/lab.md".
std::vector<std::string> allDocuments();

/// What stands between two lines of "```".
struct CodeBlock
{
    std::string language; ///< what the first of them names, such as "console"
    Lines lines;
};

std::vector<CodeBlock> codeBlocksIn(const std::string &document);

/// What stands outside of these, as one text.
std::string proseOf(const std::string &document);

/// All files of the repository, as paths in it, sorted; without what builds and tools leave there.
std::vector<std::filesystem::path> repositoryFiles();

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_DOCUMENTS_H
