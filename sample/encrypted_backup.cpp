// Writes the encrypted backup that script/demo shows: of a media folder, with the keys that a
// phone makes of a password.
// sample_encrypted_backup MEDIA BACKUP PASSWORD
#include "support/backup_builder.h"

#include <cstdio>
#include <filesystem>

using namespace iosphoto::test;

namespace fs = std::filesystem;

int main(int argumentCount, char **arguments)
{
    constexpr int usual = 4;
    if (argumentCount != usual) {
        std::fputs("usage: sample_encrypted_backup MEDIA BACKUP PASSWORD\n", stderr);
        return 2;
    }
    const fs::path media = arguments[1];
    BackupOptions options;
    options.isEncrypted = true;
    options.encryption.password = arguments[3];
    options.encryption.firstRounds = 10'000'000; // as phones ask for
    options.encryption.secondRounds = 10'000;
    options.deviceName = "Sample";
    options.iosVersion = "15.4.1";
    options.buildVersion = "19E258";
    options.lastBackup = 1'684'584'000; // 2023-05-20 12:00:00 UTC
    BackupBuilder backup(arguments[2], options);
    for (const auto &entry : fs::recursive_directory_iterator(media))
        if (entry.is_regular_file())
            backup.add(entry.path().lexically_relative(media).string(), readFile(entry.path()));
    backup.finish();
    return 0;
}
