#include "model/store/database_path.h"

#include "support/catalogue.h"

#include <gtest/gtest.h>

using namespace iosphoto;
using namespace iosphoto::test;

namespace fs = std::filesystem;

namespace {

const std::string names[] = {
    "Photos.sqlite",
    "照片 é \U0001F600.sqlite",
    "latin-1 \xE9.sqlite",
    "\xFF\xFE",
    "cut short \xE7\x85",
    "overlong \xC0\xAF, surrogate \xED\xA0\x80\xED\xB2\x80",
    "\xEF\xBB\xBFstarts with a byte order mark",
    "file:Photos.sqlite",
    "file:Photos.sqlite?mode=memory",
    "FILE:Photos.sqlite",
    ":memory:",
    "a%20b?c#d",
    " ",
};

/// Is in a folder while it lives.
class InFolder
{
public:
    explicit InFolder(const fs::path &folder) : before_(fs::current_path())
    {
        fs::current_path(folder);
    }
    ~InFolder() { fs::current_path(before_); }
    InFolder(const InFolder &) = delete;
    InFolder &operator=(const InFolder &) = delete;

private:
    fs::path before_;
};

} // namespace

TEST(DatabasePath, KeepsEveryByteOnItsWayThroughText)
{
    for (const std::string &name : names)
        EXPECT_EQ(bytesOfPath(pathFromBytes(name)).toStdString(), name);
    std::string allBytes;
    for (int byte = 255; byte > 0; --byte)
        allBytes += static_cast<char>(byte);
    EXPECT_EQ(bytesOfPath(pathFromBytes(allBytes)).toStdString(), allBytes);
}

TEST(DatabasePath, IsPlainTextWhereItIsUtf8)
{
    EXPECT_EQ(pathFromBytes("照片.sqlite"), QStringLiteral("照片.sqlite"));
    EXPECT_EQ(bytesOfPath(QStringLiteral("\U0001F600 照片")).toStdString(), "\U0001F600 照片");
}

TEST(DatabasePath, MeansTheFileOfThatNameAndNothingElse)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    library.close();
    for (const std::string &name : names) {
        const TemporaryFolder folder;
        const InFolder here(folder.path());
        std::error_code error;
        fs::copy_file(library.path(), folder / name, error);
        if (error) // not every file system takes every byte
            continue;
        for (const std::string &path : {name, (folder / name).string()})
            EXPECT_EQ(files(Catalogue(path, "15.0", "iPhone14,2").cameraRoll()),
                      Files{"IMG_0001.JPG"})
                << path;
        EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 1) << name;
    }
}

TEST(DatabasePath, WithoutAFileLeavesNone)
{
    for (const std::string &name : names) {
        const TemporaryFolder folder;
        const InFolder here(folder.path());
        for (const std::string &path : {name, (folder / name).string()}) {
            const Catalogue catalogue(path, "15.0", "iPhone14,2");
            EXPECT_EQ(catalogue.result, 0) << path;
            EXPECT_EQ(files(catalogue.cameraRoll()), Files()) << path;
        }
        EXPECT_TRUE(fs::is_empty(folder.path())) << name;
    }
}

TEST(DatabasePath, WithAZeroByteIsNoFile)
{
    LibraryBuilder library(ios15);
    library.asset("IMG_0001.JPG");
    const Catalogue catalogue(library.path() + std::string(1, '\0') + "more", "15.0", "iPhone14,2");
    EXPECT_EQ(files(catalogue.cameraRoll()), Files());
}
