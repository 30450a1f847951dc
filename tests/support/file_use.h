/// What the process does with files, as far as the system tells.
#ifndef IOSPHOTO_TESTS_FILE_USE_H
#define IOSPHOTO_TESTS_FILE_USE_H

#include <functional>
#include <optional>
#include <string>

namespace iosphoto::test {

/// How many bytes an action of this process reads from files.
std::optional<long> bytesReadBy(const std::function<void()> &action);

/// Counts how often a file is opened from now on.
class OpeningsOfFile
{
public:
    explicit OpeningsOfFile(const std::string &path);
    ~OpeningsOfFile();
    OpeningsOfFile(const OpeningsOfFile &) = delete;
    OpeningsOfFile &operator=(const OpeningsOfFile &) = delete;

    bool isPossible() const { return descriptor_ >= 0; }
    int count() const;

private:
    int descriptor_ = -1;
    mutable int count_ = 0;
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_FILE_USE_H
