#include "support/backup_builder.h"

#include "support/database.h"
#include "support/hexadecimal.h"
#include "support/property_list_bytes.h"

#include <QCryptographicHash>
#include <QDateTime>

#include <stdexcept>

namespace iosphoto::test {

namespace fs = std::filesystem;

namespace {

constexpr const char *domain = "CameraRollDomain";

std::string fileId(const std::string &mediaPath)
{
    const QByteArray subject =
        QByteArray(domain) + "-Media/" + QByteArray::fromStdString(mediaPath);
    return QCryptographicHash::hash(subject, QCryptographicHash::Sha1).toHex().toStdString();
}

std::string key(const std::string &name, const std::string &value)
{
    return "<key>" + name + "</key>" + value + "\n";
}

std::string textKey(const std::string &name, const std::string &value)
{
    return key(name, "<string>" + value + "</string>");
}

std::string dateKey(const std::string &name, std::int64_t time)
{
    const QString text = QDateTime::fromSecsSinceEpoch(time, Qt::UTC).toString(Qt::ISODate);
    return key(name, "<date>" + text.toStdString() + "</date>");
}

std::string mbdbText(const std::string &text)
{
    return bigEndian(text.size(), 2) + text;
}

struct MbdbFile
{
    std::string mediaPath;
    unsigned mode;
    std::size_t size = 1234;
    std::string key = {}; ///< empty where it is not encrypted
    unsigned protectionClass = 3;
};

std::string mbdbRecord(const MbdbFile &file)
{
    const std::string none = "\xff\xff";
    const std::string hash(20, 'h');
    return mbdbText(domain) + mbdbText("Media/" + file.mediaPath) + none + mbdbText(hash) +
           (file.key.empty() ? none : mbdbText(file.key)) + bigEndian(file.mode, 2) +
           bigEndian(7, 8) + bigEndian(501, 4) + bigEndian(501, 4) + bigEndian(1'400'000'000, 4) +
           bigEndian(1'400'000'001, 4) + bigEndian(1'400'000'002, 4) + bigEndian(file.size, 8) +
           bigEndian(file.protectionClass, 1) + bigEndian(1, 1) + mbdbText("name") +
           mbdbText("value");
}

std::string dataKey(const std::string &name, const std::string &bytes)
{
    return key(name,
               "<data>" + QByteArray::fromStdString(bytes).toBase64().toStdString() + "</data>");
}

} // namespace

std::string propertyList(const std::string &xmlLines, bool isBinary)
{
    const std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n"
                            "<dict>\n" +
                            xmlLines + "</dict>\n</plist>\n";
    if (!isBinary)
        return xml;
    plist_t root = nullptr;
    plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &root);
    return binaryPropertyList(root);
}

BackupBuilder::BackupBuilder(fs::path folder, BackupOptions options)
    : folder_(std::move(folder)), options_(std::move(options)), encryption_(options_.encryption)
{
    fs::create_directories(folder_);
}

fs::path BackupBuilder::stored(const std::string &mediaPath) const
{
    const std::string id = fileId(mediaPath);
    return options_.index == BackupIndexKind::Mbdb ? folder_ / id : folder_ / id.substr(0, 2) / id;
}

BackupBuilder &BackupBuilder::add(const std::string &mediaPath, const std::string &content)
{
    sizes_[mediaPath] = content.size();
    if (options_.notStored.count(mediaPath) == 0) {
        fs::create_directories(stored(mediaPath).parent_path());
        writeFile(stored(mediaPath), asStored(mediaPath, content));
    }
    return *this;
}

std::string BackupBuilder::asStored(const std::string &mediaPath, const std::string &content) const
{
    return options_.isEncrypted ? encryption_.encrypted(mediaPath, content) : content;
}

BackupBuilder &BackupBuilder::add(const LibraryBuilder &library)
{
    add(mediaDatabase, readFile(library.path()));
    if (fs::exists(library.path() + "-wal"))
        add(mediaLog, readFile(library.path() + "-wal"));
    return *this;
}

void BackupBuilder::finish() const
{
    if (options_.index == BackupIndexKind::Db)
        writeDb();
    if (options_.index == BackupIndexKind::Mbdb)
        writeMbdb();
    if (options_.index != BackupIndexKind::None)
        writeLists();
}

std::map<std::string, std::size_t> BackupBuilder::listed() const
{
    std::map<std::string, std::size_t> listed = sizes_;
    for (const std::string &path : options_.notListed)
        listed.erase(path);
    return listed;
}

void BackupBuilder::writeDb() const
{
    const fs::path index = folder_ / "Manifest.db";
    fs::remove(index); // of a backup that was written there before
    {
        const SqliteConnection connection = openDatabase(index);
        execute(connection, "pragma synchronous = off");
        execute(connection, "create table Files (fileID text primary key, domain text, "
                            "relativePath text, flags integer, file blob)");
        execute(connection,
                "insert into Files values ('0000000000000000000000000000000000000000', '" +
                    std::string(domain) + "', 'Media/PhotoData', 2, null)");
        execute(connection, "insert into Files values ('1111111111111111111111111111111111111111', "
                            "'HomeDomain', 'Media/PhotoData/Photos.sqlite', 1, null)");
        for (const auto &[path, size] : listed()) {
            const std::string record =
                options_.isEncrypted
                    ? "x'" + hexadecimal(encryption_.record(path, std::int64_t(size))) + "'"
                    : "null";
            execute(connection, "insert into Files values ('" + fileId(path) + "', '" + domain +
                                    "', 'Media/" + path + "', 1, " + record + ")");
        }
    }
    if (options_.isEncrypted)
        writeFile(index, encryption_.encryptedIndex(readFile(index)));
}

void BackupBuilder::writeMbdb() const
{
    std::string content("mbdb\x05\x00", 6);
    content += mbdbRecord({"PhotoData", 0040755});
    for (const auto &[path, size] : listed()) {
        MbdbFile file = {path, 0100644, size};
        if (options_.isEncrypted) {
            file.key = encryption_.wrappedKey(path);
            file.protectionClass = options_.encryption.protectionClass;
        }
        content += mbdbRecord(file);
    }
    writeFile(folder_ / "Manifest.mbdb", content);
}

void BackupBuilder::writeLists() const
{
    const std::string info = textKey("Build Version", options_.buildVersion) +
                             textKey("Device Name", options_.deviceName) +
                             dateKey("Last Backup Date", options_.lastBackup) +
                             textKey("Product Type", options_.productType) +
                             textKey("Product Version", options_.iosVersion) +
                             textKey("Serial Number", options_.serialNumber) +
                             textKey("Unique Identifier", "00008110-0001");
    writeFile(folder_ / "Info.plist", propertyList(info, options_.hasBinaryInfo));
    const std::string lockdown = textKey("DeviceName", options_.deviceName) +
                                 textKey("ProductType", options_.productType) +
                                 textKey("ProductVersion", options_.iosVersion) +
                                 textKey("SerialNumber", options_.serialNumber);
    writeFile(folder_ / "Manifest.plist",
              propertyList(key("IsEncrypted", options_.isEncrypted ? "<true/>" : "<false/>") +
                               dateKey("Date", options_.lastBackup) +
                               key("Lockdown", "<dict>" + lockdown + "</dict>") + keys(),
                           true));
    const std::string snapshot =
        options_.snapshotState.empty() ? "" : textKey("SnapshotState", options_.snapshotState);
    writeFile(folder_ / "Status.plist", propertyList(textKey("BackupState", options_.backupState) +
                                                         key("IsFullBackup", "<false/>") + snapshot,
                                                     true));
}

std::string BackupBuilder::keys() const
{
    if (!options_.isEncrypted)
        return "";
    const bool hasIndexKey = options_.encryption.index != EncryptionOptions::Index::Plain;
    return dataKey("BackupKeyBag", encryption_.keyBag()) +
           (hasIndexKey ? dataKey("ManifestKey", encryption_.indexKey()) : "");
}

fs::path writeBackup(const fs::path &folder, const LibraryBuilder &library,
                     const BackupOptions &options)
{
    BackupBuilder builder(folder, options);
    builder.add(library).finish();
    return folder;
}

} // namespace iosphoto::test
