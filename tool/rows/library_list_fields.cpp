#include "rows/library_list_fields.h"

#include "rows/values.h"
#include "text/numbers.h"
#include "text/translate.h"
#include "time/time_text.h"

namespace iosphoto::tool {

namespace {

using Row = ListedLibrary;

Value flag(const std::optional<bool> &flag)
{
    return flag ? Value(*flag) : Value();
}

template <std::string RecordedDevice::*member>
Value ofDevice(const Row &row)
{
    const std::optional<RecordedDevice> &device = row.description.device;
    return device ? knownText((*device).*member) : Value();
}

Value bytesOfPath(const Row &row)
{
    const Json bytes = bytesOrNull(row.description.name);
    return bytes.is_null() ? Value() : Value(bytes.get<std::string>());
}

std::vector<Field<Row>> facts()
{
    return {
        {{"path", Type::Source, translate("PATH")},
         [](const Row &row) { return Value(row.description.name); }},
        {{"pathBytes", Type::Text}, bytesOfPath},
        {{"sourceKind", Type::Text},
         [](const Row &row) { return Value(std::string(machineName(row.description.kind))); }},
        {{"deviceName", Type::Text, translate("DEVICE")},
         [](const Row &row) { return knownText(row.description.deviceName); }},
        {{"productType", Type::Text, translate("MODEL")}, ofDevice<&RecordedDevice::productType>},
        {{"iosVersion", Type::Text, translate("IOS")}, ofDevice<&RecordedDevice::iosVersion>},
        {{"build", Type::Text}, ofDevice<&RecordedDevice::buildVersion>},
        {{"backupDate", Type::Time},
         [](const Row &row) {
             const auto &date = row.description.backupDate;
             return date ? Value(*date) : Value();
         }},
        {{"isEncrypted", Type::Flag},
         [](const Row &row) { return flag(row.description.isEncrypted); }},
        {{"isFinished", Type::Flag},
         [](const Row &row) { return flag(row.description.isFinished); }},
        {{"assetRows", Type::Number},
         [](const Row &row) { return row.assetCount ? Value(*row.assetCount) : Value(); }},
    };
}

Value shownDate(const Row &row)
{
    if (row.description.kind != SourceKind::Backup)
        return translate("no backup");
    const std::optional<UnixTime> &date = row.description.backupDate;
    return date ? localTimeText(*date) : translate("unknown");
}

Value shownEncryption(const Row &row)
{
    if (row.description.kind != SourceKind::Backup)
        return Value();
    const std::optional<bool> isEncrypted = row.description.isEncrypted;
    return !isEncrypted ? translate("unknown") : *isEncrypted ? translate("yes") : translate("no");
}

std::vector<Field<Row>> viewsForPeople()
{
    constexpr bool isFact = false;
    return {
        {{"shownDate", Type::Text, translate("BACKED UP")}, shownDate, isFact},
        {{"shownEncryption", Type::Text, translate("ENCRYPTED")}, shownEncryption, isFact},
        {{"shownPhotos", Type::Text, translate("PHOTOS"), Align::Right},
         [](const Row &row) {
             return Value(row.assetCount ? grouped(*row.assetCount) : translate("unknown"));
         },
         isFact},
    };
}

} // namespace

FieldTable<ListedLibrary> libraryListFields()
{
    FieldTable<ListedLibrary> table;
    for (const auto &part : {facts(), viewsForPeople()})
        table.fields.insert(table.fields.end(), part.begin(), part.end());
    table.inTables = {"deviceName",      "productType", "iosVersion", "shownDate",
                      "shownEncryption", "shownPhotos", "path"};
    table.spare = {"productType", "iosVersion", "shownPhotos", "shownEncryption"};
    return table;
}

RowsHead libraryListHead(const std::vector<std::string> &places, bool isComplete)
{
    Json searched = Json::array();
    for (const std::string &place : places)
        searched.push_back({{"path", place}, {"pathBytes", bytesOrNull(place)}});
    return {"libraries",
            {{"searched", std::move(searched)}, {"isComplete", isComplete}},
            Json::object()};
}

} // namespace iosphoto::tool
