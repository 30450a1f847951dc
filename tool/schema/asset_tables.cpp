#include "schema/asset_tables.h"

#include <string>

namespace iosphoto::tool {

bool areAssetTablesDamaged(const CopyDatabase &database)
{
    bool areDamaged = false;
    for (const std::string &table :
         {assetTableOf(database), std::string("ZADDITIONALASSETATTRIBUTES")})
        database.forEachRow("pragma integrity_check(" + table + ")", [&](const QueryRow &row) {
            areDamaged = areDamaged || row.text(0) != "ok";
        });
    return areDamaged;
}

} // namespace iosphoto::tool
