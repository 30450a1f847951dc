#include "input/source.h"

#include "input/private_copy.h"
#include "support/archive_builder.h"
#include "support/source_folder.h"

#include <fcntl.h>
#include <sys/stat.h>

using namespace iosphoto::test;
using iosphoto::tool::PrivateCopy;
using iosphoto::tool::PrivateFolder;
using iosphoto::tool::Session;
using iosphoto::tool::Source;
using iosphoto::tool::SourceError;
using iosphoto::tool::SourceKind;
using iosphoto::tool::UnixTime;
using testing::ElementsAre;

namespace fs = std::filesystem;

namespace {

constexpr const char *photo = "DCIM/100APPLE/IMG_0001.JPG";
constexpr UnixTime older = {1'500'000'000};
constexpr UnixTime newer = {1'600'000'000};
constexpr UnixTime backedUp = {1'700'000'000};

void setTime(const fs::path &file, UnixTime moment)
{
    const timespec time = {moment.seconds, 0};
    const timespec times[] = {time, time};
    ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
}

} // namespace

class ToolSource : public SourceFolder
{
protected:
    Session session_;

    /// A media folder with a photo, whose log is newer than its database.
    fs::path media() const
    {
        const fs::path folder = putMedia(folder_ / "Media");
        fs::create_directories((folder / photo).parent_path());
        writeFile(folder / photo, "jpeg");
        setTime(folder / mediaDatabase, older);
        setTime(folder / mediaLog, newer);
        return folder;
    }

    fs::path backup(const BackupOptions &options = {}) const
    {
        BackupBuilder builder(folder_ / "backup", options);
        builder.add(library_).add(photo, "jpeg").finish();
        setTime(builder.stored(mediaDatabase), older);
        setTime(builder.stored(mediaLog), newer);
        return builder.folder();
    }

    static void expectPhoto(const Source &source)
    {
        const PrivateFolder folder;
        ASSERT_TRUE(source.find(photo));
        EXPECT_EQ(source.find(photo)->size, 4U);
        source.copyOut({{photo, folder / "a"}, {"DCIM/missing.JPG", folder / "b"}});
        EXPECT_EQ(readFile(folder / "a"), "jpeg");
        EXPECT_FALSE(fs::exists(folder / "b"));
        EXPECT_FALSE(source.find("DCIM/missing.JPG"));
    }

    /// Database and log are there, as they were, and nothing else.
    void expectDatabaseOf(const Source &source) const
    {
        const TemporaryFolder folder;
        source.copyDatabaseTo(folder.path());
        EXPECT_EQ(readFile(folder / "Photos.sqlite"), readFile(library_.path()));
        EXPECT_EQ(readFile(folder / "Photos.sqlite-wal"), readFile(library_.path() + "-wal"));
        EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 2);
        for (const auto &file : fs::directory_iterator(folder.path()))
            EXPECT_EQ(file.status().permissions(), fs::perms::owner_read | fs::perms::owner_write);
    }
};

TEST_F(ToolSource, Database)
{
    const fs::path database = media() / mediaDatabase;
    const Source source(session_, database.string());
    EXPECT_EQ(source.kind(), SourceKind::Database);
    EXPECT_FALSE(source.isArchive());
    EXPECT_EQ(source.name(), database.string());
    EXPECT_EQ(source.databaseName(), database.string());
    EXPECT_EQ(source.lastChange(), newer);
    EXPECT_FALSE(source.device());
    EXPECT_EQ(source.backupDate(), std::nullopt);
    EXPECT_THAT(source.missing(), testing::IsEmpty());
    EXPECT_THAT(source.inputs(),
                ElementsAre(database, database.string() + "-wal", database.string() + "-journal"));
    EXPECT_FALSE(source.find(photo));
    expectDatabaseOf(source);
}

TEST_F(ToolSource, MediaFolder)
{
    const fs::path folder = media();
    const Source source(session_, folder.string() + "/");
    EXPECT_EQ(source.kind(), SourceKind::MediaFolder);
    EXPECT_EQ(source.name(), folder.string() + "/");
    EXPECT_EQ(source.databaseName(), folder / mediaDatabase);
    EXPECT_EQ(source.lastChange(), newer);
    EXPECT_THAT(source.inputs(), ElementsAre(folder / mediaDatabase, folder / mediaLog,
                                             (folder / mediaDatabase).string() + "-journal"));
    expectPhoto(source);
    expectDatabaseOf(source);
}

TEST_F(ToolSource, PathsThatLeaveTheMediaFolderAreNotFollowed)
{
    const Source source(session_, media());
    writeFile(folder_ / "secret", "x");
    EXPECT_EQ(source.find("../secret"), std::nullopt);
    EXPECT_EQ(source.find("DCIM/../../secret"), std::nullopt);
    EXPECT_EQ(source.find((folder_ / "secret").string()), std::nullopt);
}

TEST_F(ToolSource, Backup)
{
    const fs::path folder = backup();
    const Source source(session_, folder.string());
    EXPECT_EQ(source.kind(), SourceKind::Backup);
    EXPECT_FALSE(source.isArchive());
    EXPECT_EQ(source.lastChange(), newer);
    EXPECT_EQ(source.backupDate(), backedUp);
    EXPECT_THAT(source.missing(), testing::IsEmpty());
    const BackupBuilder builder(folder);
    EXPECT_EQ(source.databaseName(), builder.stored(mediaDatabase));
    EXPECT_THAT(source.inputs(),
                ElementsAre(folder / "Info.plist", folder / "Manifest.plist",
                            folder / "Status.plist", folder / "Manifest.db",
                            builder.stored(mediaDatabase), builder.stored(mediaLog)));
    expectPhoto(source);
    expectDatabaseOf(source);
}

TEST_F(ToolSource, BackupBeforeIos10)
{
    BackupOptions options;
    options.index = BackupIndexKind::Mbdb;
    const Source source(session_, backup(options));
    EXPECT_EQ(source.kind(), SourceKind::Backup);
    EXPECT_EQ(source.lastChange(), newer);
    expectPhoto(source);
    expectDatabaseOf(source);
}

TEST_F(ToolSource, Archive)
{
    const fs::path archive = packed(media(), folder_ / "media", zip, "phone/Media");
    const Source source(session_, archive.string());
    EXPECT_EQ(source.kind(), SourceKind::MediaFolder);
    EXPECT_TRUE(source.isArchive());
    EXPECT_EQ(source.databaseName(), archive / "phone/Media/PhotoData/Photos.sqlite");
    EXPECT_EQ(source.lastChange(), newer);
    EXPECT_THAT(source.inputs(), ElementsAre(archive));
    expectPhoto(source);
    expectDatabaseOf(source);
}

TEST_F(ToolSource, ArchiveOfABackup)
{
    const Source source(session_, packed(backup(), folder_ / "backup", tar));
    EXPECT_EQ(source.kind(), SourceKind::Backup);
    EXPECT_TRUE(source.isArchive());
    EXPECT_EQ(source.backupDate(), backedUp);
    EXPECT_EQ(source.device()->iosVersion, "17.4.1");
    expectPhoto(source);
    expectDatabaseOf(source);
}

TEST_F(ToolSource, ExtractedFilesKeepTheirTime)
{
    const Source source(session_, packed(media(), folder_ / "media", tar));
    const PrivateFolder folder;
    source.copyDatabaseTo(folder.path());
    EXPECT_EQ(fs::last_write_time(folder / "Photos.sqlite"),
              fs::last_write_time(folder_ / "Media/PhotoData/Photos.sqlite"));
}

TEST_F(ToolSource, ArchiveThatChangesMeanwhileIsRefused)
{
    const fs::path archive = packed(media(), folder_ / "media", zip);
    const Source source(session_, archive);
    fs::copy_file(packed(folder_ / "Media/DCIM", folder_ / "other", zip), archive,
                  fs::copy_options::overwrite_existing);
    EXPECT_THROW(PrivateCopy(session_, source), SourceError);
}

TEST_F(ToolSource, DatabaseThatVanishesMeanwhileIsRefused)
{
    const fs::path database = media() / mediaDatabase;
    const Source source(session_, database);
    fs::remove(database);
    EXPECT_THROW(PrivateCopy(session_, source), SourceError);
}

class ToolBackupDevice : public ToolSource, public testing::WithParamInterface<bool>
{
};

TEST_P(ToolBackupDevice, IsThatOfInfo)
{
    BackupOptions options;
    options.hasBinaryInfo = GetParam();
    const auto device = Source(session_, backup(options)).device();
    ASSERT_TRUE(device);
    EXPECT_EQ(device->iosVersion, "17.4.1");
    EXPECT_EQ(device->productType, "iPhone14,2");
    EXPECT_EQ(device->buildVersion, "21E236");
    EXPECT_EQ(device->recordedIn, "Info.plist");
}

INSTANTIATE_TEST_SUITE_P(Forms, ToolBackupDevice, testing::Bool(),
                         [](const auto &form) { return form.param ? "Binary" : "Xml"; });

/// What is in the place of Info.plist.
class ToolBackupWithoutInfo : public ToolSource, public testing::WithParamInterface<const char *>
{
};

TEST_P(ToolBackupWithoutInfo, DeviceIsThatOfManifest)
{
    const fs::path folder = backup();
    writeFile(folder / "Info.plist", GetParam());
    const Source source(session_, folder);
    const auto device = source.device();
    ASSERT_TRUE(device);
    EXPECT_EQ(device->iosVersion, "17.4.1");
    EXPECT_EQ(device->productType, "iPhone14,2");
    EXPECT_EQ(device->buildVersion, "");
    EXPECT_EQ(device->recordedIn, "Manifest.plist");
    EXPECT_EQ(source.backupDate(), backedUp);
}

INSTANTIATE_TEST_SUITE_P(Contents, ToolBackupWithoutInfo,
                         testing::Values("", "garbage", "bplist00", "<plist><dict><key>Product"));

TEST_F(ToolSource, BackupWithoutPropertyListsHasNoDevice)
{
    const fs::path folder = backup();
    for (const char *name : {"Info.plist", "Manifest.plist"})
        fs::remove(folder / name);
    const Source source(session_, folder);
    EXPECT_FALSE(source.device());
    EXPECT_EQ(source.backupDate(), std::nullopt);
    expectDatabaseOf(source);
}
