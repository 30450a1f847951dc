#ifndef IOSPHOTO_TESTS_SOURCE_TEXTS_H
#define IOSPHOTO_TESTS_SOURCE_TEXTS_H

#include <filesystem>
#include <set>
#include <string>

namespace iosphoto::test {

/// The literals of C++ source code that are marked as texts for people: what translate(),
/// translateTo(), translateTerm(), translatable() and counted() are given. Literals that follow
/// each other are one.
std::set<std::string> textsOf(const std::string &source);

/// Those of all sources in a folder.
std::set<std::string> textsIn(const std::filesystem::path &folder);

/// The places of a text, such as {"{0}", "{1}"}.
std::set<std::string> placesOf(const std::string &text);

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_SOURCE_TEXTS_H
