#include "statements/usual_entity_numbers.h"

#include "formats/versions.h"
#include "model/model_devicephoto_dbmgr.h"
#include "schema/known_schemas.h"

namespace iosphoto::tool {

namespace {

struct UsualNumbers
{
    const char *from; ///< iOS version
    EntityNumbers numbers;
};

// clang-format off
constexpr UsualNumbers newestFirst[] = {
    //        album, photo stream, parent of asset, asset
    {"18",   {30,    34,           0,               3}},
    {"17.6", {29,    33,           0,               3}},
    {"16",   {28,    32,           0,               3}},
    {"15",   {27,    30,           0,               3}},
    {"14",   {26,    29,           0,               3}},
    {"13",   {26,    29,           34,              35}},
    {"12",   {23,    0,            30,              0}},
    {"11",   {20,    0,            27,              0}},
};
// clang-format on

} // namespace

EntityNumbers usualEntityNumbers(const std::string &iosVersion)
{
    if (firstNumber(iosVersion) > newestSchema().lastIos)
        return {};
    for (const UsualNumbers &usual : newestFirst)
        if (cmpiOSVersion(iosVersion, usual.from) >= 0)
            return usual.numbers;
    return {};
}

} // namespace iosphoto::tool
