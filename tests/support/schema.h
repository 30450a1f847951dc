/// The database schemas of tests/data/schema, oldest first, and a device that each is read with.
#ifndef IOSPHOTO_TESTS_SCHEMA_H
#define IOSPHOTO_TESTS_SCHEMA_H

#include <algorithm>
#include <array>
#include <ostream>
#include <string>
#include <vector>

namespace iosphoto::test {

struct Schema
{
    const char *name; ///< the file's name without ".sql"
    const char *iosVersion;
    const char *productType;
    int album; ///< entity numbers, as the file says
    int photoStreamAlbum;
    int assetSuper;
    int asset;
    bool hasBlobUuids;

    bool hasGenericAsset() const { return assetSuper != 0; }
    const char *assetTable() const { return hasGenericAsset() ? "ZGENERICASSET" : "ZASSET"; }
    /// The number in the names of the columns that refer to assets.
    int assetNumber() const { return hasGenericAsset() ? assetSuper : asset; }
};

// clang-format off
constexpr Schema ios6         = {"ios6",          "6.1",  "iPhone14,2", 5,  9,  11, 13, true};
constexpr Schema ios7         = {"ios7",          "7.1",  "iPhone3,1",  6,  10, 12, 15, true};
constexpr Schema ios7SubTypes = {"ios7_subtypes", "7.1",  "iPhone14,2", 6,  10, 12, 15, true};
constexpr Schema ios8         = {"ios8",          "8.4",  "iPhone14,2", 15, 19, 22, 24, false};
constexpr Schema ios9         = {"ios9",          "10.3", "iPhone14,2", 16, 20, 23, 25, false};
constexpr Schema ios11        = {"ios11",         "13.7", "iPhone14,2", 20, 24, 27, 28, false};
constexpr Schema ios14        = {"ios14",         "14.8", "iPhone14,2", 26, 29, 0,  3,  false};
constexpr Schema ios15        = {"ios15",         "17.4", "iPhone14,2", 27, 30, 0,  3,  false};
constexpr Schema ios18        = {"ios18",         "18.1", "iPhone14,2", 30, 34, 0,  3,  false};
// clang-format on

constexpr std::array allSchemas = {ios6,  ios7,  ios7SubTypes, ios8, ios9,
                                   ios11, ios14, ios15,        ios18};

/// One of them and all that are newer.
inline std::vector<Schema> schemasFrom(const Schema &first)
{
    return {
        std::find_if(allSchemas.begin(), allSchemas.end(),
                     [&](const Schema &schema) { return std::string(schema.name) == first.name; }),
        allSchemas.end()};
}

/// The major version of a schema's iosVersion.
inline int iosOf(const Schema &schema)
{
    return std::stoi(schema.iosVersion);
}

/// Where models without ProRAW are read with statements of their own, those models.
constexpr Schema withoutProRaw(Schema schema)
{
    schema.productType = "iPhone13,2";
    return schema;
}
inline std::vector<Schema> schemasWithoutProRaw()
{
    std::vector<Schema> schemas = schemasFrom(ios15);
    std::transform(schemas.begin(), schemas.end(), schemas.begin(), withoutProRaw);
    return schemas;
}

inline std::ostream &operator<<(std::ostream &stream, const Schema &schema)
{
    return stream << schema.name;
}

/// For INSTANTIATE_TEST_SUITE_P: the schema's name as the name of the case.
struct SchemaName
{
    template <typename Info>
    std::string operator()(const Info &info) const
    {
        return info.param.name;
    }
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_SCHEMA_H
