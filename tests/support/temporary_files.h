#ifndef IOSPHOTO_TESTS_TEMPORARY_FILES_H
#define IOSPHOTO_TESTS_TEMPORARY_FILES_H

namespace iosphoto::test {

/// While it lives SQLite cannot make temporary files, as on a disk that is full.
class NoTemporaryFiles
{
public:
    NoTemporaryFiles();
    ~NoTemporaryFiles();
    NoTemporaryFiles(const NoTemporaryFiles &) = delete;
    NoTemporaryFiles &operator=(const NoTemporaryFiles &) = delete;

    /// How often it wanted to.
    static int attempts();
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_TEMPORARY_FILES_H
