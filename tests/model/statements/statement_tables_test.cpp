#include "model/statements/statement_tables.h"
#include "support/case_name.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include <algorithm>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

struct Choice
{
    const StatementTable *table;
    const char *iosVersion;
    const char *productType;
    const char *statement;

    DeviceProfile device() const { return {iosVersion, productType}; }
    std::string name() const
    {
        return std::string(statement) + "_" + productType + "_on_" + iosVersion;
    }
};

std::ostream &operator<<(std::ostream &stream, const Choice &choice)
{
    return stream << choice.name();
}

constexpr const StatementTable *roll = &cameraRollStatements;
constexpr const StatementTable *library = &photoLibraryStatements;
constexpr const StatementTable *userAlbums = &userAlbumStatements;
constexpr const StatementTable *contents = &albumContentsStatements;

constexpr Choice choices[] = {
    {roll, "26.0", "iPhone15,3", "camera_roll_18_proraw"},
    {roll, "18.0", "iPhone14,2", "camera_roll_18_proraw"},
    {roll, "18.0", "iPad14,2", "camera_roll_18_proraw"},
    {roll, "18.0", "iPhone14,5", "camera_roll_18"},
    {roll, "18", "", "camera_roll_18"},
    {roll, "17.9", "iPhone14,2", "camera_roll_15_proraw"},
    {roll, "15.0", "iPhone14,3", "camera_roll_15_proraw"},
    {roll, "17.9", "iPhone17,1", "camera_roll_15"},
    {roll, "15.0", "iPhone13,2", "camera_roll_15"},
    {roll, "14.9", "iPhone14,2", "camera_roll_14"},
    {roll, "14.0", "iPhone9,1", "camera_roll_14"},
    {roll, "13.7", "iPhone14,2", "camera_roll_11"},
    {roll, "11.0", "iPhone8,1", "camera_roll_11"},
    {roll, "10.3", "iPhone8,1", "camera_roll_9"},
    {roll, "9.0", "iPhone7,2", "camera_roll_9"},
    {roll, "8.9", "iPhone7,2", "camera_roll_8"},
    {roll, "8.0", "iPhone4,1", "camera_roll_8"},
    {roll, "7.9", "iPhone14,2", "camera_roll_7_subtypes"},
    {roll, "7.1", "iPhone5,2", "camera_roll_7_subtypes"},
    {roll, "7.0", "iPhone4,1", "camera_roll_7_subtypes"},
    {roll, "7.0", "iPad4,1", "camera_roll_7_subtypes"},
    {roll, "7.9", "iPhone3,1", "camera_roll_7"},
    {roll, "7.0", "iPhone4,0", "camera_roll_7"},
    {roll, "7.1", "", "camera_roll_7"},
    {roll, "6.9", "iPhone14,2", "camera_roll_6"},
    {roll, "6.1", "iPhone3,1", "camera_roll_6"},
    {roll, "", "iPhone14,2", "camera_roll_6"},

    {library, "18.1", "iPhone14,2", "photo_library_14"},
    {library, "16.2", "iPhone9,1", "photo_library_14"},
    {library, "14.0", "", "photo_library_14"},
    {library, "13.7", "iPhone14,2", "photo_library_8"},
    {library, "8.0", "iPhone4,1", "photo_library_8"},
    {library, "8", "iPhone4,1", "photo_library_8"},
    {library, "7.9", "iPhone4,1", "photo_library_6"},
    {library, "7.1", "iPhone3,1", "photo_library_6"},
    {library, "5.0", "", "photo_library_6"},

    {userAlbums, "18.1", "iPhone14,2", "user_albums_8"},
    {userAlbums, "8.0", "iPhone4,1", "user_albums_8"},
    {userAlbums, "7.9", "iPhone14,2", "user_albums_6"},
    {userAlbums, "", "", "user_albums_6"},

    {contents, "26.0", "iPhone9,1", "album_contents_18"},
    {contents, "18.0", "iPhone14,2", "album_contents_18"},
    {contents, "17.4", "iPhone14,2", "album_contents_14"},
    {contents, "14.0", "iPhone9,1", "album_contents_14"},
    {contents, "13.7", "iPhone14,2", "album_contents_11"},
    {contents, "11.0", "iPhone8,1", "album_contents_11"},
    {contents, "10.3", "iPhone8,1", "album_contents_9"},
    {contents, "9.0", "iPhone7,2", "album_contents_9"},
    {contents, "8.9", "iPhone7,2", "album_contents_8"},
    {contents, "8", "iPhone4,1", "album_contents_8"},
    {contents, "7.9", "iPhone14,2", "album_contents_7_subtypes"},
    {contents, "7.1", "iPhone4,1", "album_contents_7_subtypes"},
    {contents, "7", "iPad4,1", "album_contents_7_subtypes"},
    {contents, "7.1", "iPhone3,1", "album_contents_7"},
    {contents, "7.0", "", "album_contents_7"},
    {contents, "6.9", "iPhone14,2", "album_contents_6"},
    {contents, "5.0", "iPhone3,1", "album_contents_6"},
};

const StatementVariant &chosen(const Choice &choice)
{
    return choose(*choice.table, choice.device());
}

} // namespace

class StatementChoice : public testing::TestWithParam<Choice>
{
};

TEST_P(StatementChoice, GoesByVersionAndModel)
{
    EXPECT_STREQ(chosen(GetParam()).statement.name, GetParam().statement);
}

INSTANTIATE_TEST_SUITE_P(Devices, StatementChoice, testing::ValuesIn(choices), NameOfCase());

TEST(StatementTables, HaveNoRowThatNoDeviceUses)
{
    for (const StatementTable *table : {roll, library, userAlbums, contents})
        for (const StatementVariant &variant : *table)
            EXPECT_TRUE(
                std::any_of(std::begin(choices), std::end(choices),
                            [&](const Choice &choice) { return &chosen(choice) == &variant; }))
                << variant.statement.name;
}

namespace {

/// Where the placeholders stand in some statements of a table, with the numbers that belong there.
struct Filling
{
    const char *label;
    const StatementTable *table;
    std::vector<std::string> statements;
    std::vector<std::string> fragments;

    std::string name() const { return label; }
};

std::ostream &operator<<(std::ostream &stream, const Filling &filling)
{
    return stream << filling.label;
}

constexpr EntityNumbers numbers = {26, 29, 34, 35};

QString filledStatement(const StatementTable &table, const std::string &name)
{
    for (const StatementVariant &variant : table)
        if (variant.statement.name == name)
            return filledIn(variant, numbers).simplified();
    return {};
}

const Filling fillings[] = {
    {"CameraRollByAsset",
     roll,
     {"camera_roll_18_proraw", "camera_roll_18", "camera_roll_15_proraw", "camera_roll_15",
      "camera_roll_14"},
     {"ZASSET.[Z_ENT] = 35 ", "select Z_26ASSETS.[Z_35ASSETS],", "from Z_26ASSETS ",
      "Z_26ASSETS.[Z_26ALBUMS]=ZGENERICALBUM.[Z_PK]", "sql1.ZASSET=sql2.[Z_35ASSETS]"}},
    {"CameraRollByParent",
     roll,
     {"camera_roll_11", "camera_roll_9", "camera_roll_8"},
     {"ZADDITIONALASSETATTRIBUTES.[Z34_ASSET] = (", "select Z_26ASSETS.[Z_34ASSETS],",
      "from Z_26ASSETS left join ZGENERICALBUM on Z_26ASSETS.[Z_26ALBUMS]=ZGENERICALBUM.[Z_PK]",
      "sql1.ZASSET=sql2.[Z_34ASSETS]"}},
    {"CameraRollByParentInAnUntitledAlbum",
     roll,
     {"camera_roll_7_subtypes", "camera_roll_7", "camera_roll_6"},
     {"ZADDITIONALASSETATTRIBUTES.[Z34_ASSET] = (", "select Z_26ASSETS.[Z_34ASSETS],",
      "from Z_26ASSETS, ZGENERICALBUM where Z_26ASSETS.[Z_26ALBUMS]=ZGENERICALBUM.[Z_PK]",
      "sql1.ZASSET=sql2.[Z_34ASSETS]"}},
    {"PhotoLibraryByAsset",
     library,
     {"photo_library_14"},
     {"select Z_26ASSETS.[Z_35ASSETS],",
      "from Z_26ASSETS, ZGENERICALBUM where Z_26ASSETS.[Z_26ALBUMS]=ZGENERICALBUM.[Z_PK]",
      "sql1.ZASSET=sql2.[Z_35ASSETS]", "like '00000000-0000-0000-%'"}},
    {"PhotoLibraryByParent",
     library,
     {"photo_library_8", "photo_library_6"},
     {"ZADDITIONALASSETATTRIBUTES.[Z34_ASSET] = (", "select Z_26ASSETS.[Z_34ASSETS],",
      "from Z_26ASSETS, ZGENERICALBUM where Z_26ASSETS.[Z_26ALBUMS]=ZGENERICALBUM.[Z_PK]",
      "sql1.ZASSET=sql2.[Z_34ASSETS]"}},
    {"UserAlbums",
     userAlbums,
     {"user_albums_8", "user_albums_6"},
     {"(ZGENERICALBUM.[Z_ENT]=26 or ZGENERICALBUM.[Z_ENT]=29)"}},
    {"AlbumContentsByAsset",
     contents,
     {"album_contents_18", "album_contents_14"},
     {"select Z_26ASSETS.[Z_35ASSETS],", "from Z_26ASSETS inner join ZGENERICALBUM",
      "on Z_26ASSETS.[Z_26ALBUMS] = ZGENERICALBUM.[Z_PK]", "sql2.ZASSET=sql1.[Z_35ASSETS]"}},
    {"AlbumContentsByParent",
     contents,
     {"album_contents_11", "album_contents_9", "album_contents_8", "album_contents_7_subtypes",
      "album_contents_7", "album_contents_6"},
     {"select Z_26ASSETS.[Z_34ASSETS],", "from Z_26ASSETS left join ZGENERICALBUM",
      "on Z_26ASSETS.[Z_26ALBUMS]", "ZADDITIONALASSETATTRIBUTES.[Z34_ASSET] = (",
      "sql2.ZASSET=sql1.[Z_34ASSETS]"}},
};

} // namespace

class StatementFilling : public testing::TestWithParam<Filling>
{
};

TEST_P(StatementFilling, PutsEachEntityNumberWhereItBelongs)
{
    for (const std::string &name : GetParam().statements) {
        const QString text = filledStatement(*GetParam().table, name);
        for (const std::string &fragment : GetParam().fragments)
            EXPECT_TRUE(text.contains(QString::fromStdString(fragment)))
                << name << " lacks " << fragment << ":\n"
                << text.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Statements, StatementFilling, testing::ValuesIn(fillings), NameOfCase());

TEST(StatementFilling, LeavesNoPlaceholder)
{
    const QRegularExpression placeholder("%[0-9]");
    for (const StatementTable *table : {roll, library, userAlbums, contents})
        for (const StatementVariant &variant : *table)
            EXPECT_FALSE(filledIn(variant, numbers).contains(placeholder))
                << variant.statement.name;
}
