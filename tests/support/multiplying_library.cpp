#include "support/multiplying_library.h"

namespace iosphoto::test {

void multiplyPhoto(LibraryBuilder &library, int times)
{
    const std::string album = std::to_string(library.schema().album);
    library.asset("IMG_0001.JPG");
    library.execute("create table copy as with recursive numbers(number) as (select 2 union all "
                    "select number + 1 from numbers where number <= " +
                    std::to_string(times) + ") select number from numbers");
    library.execute("insert into ZADDITIONALASSETATTRIBUTES (Z_PK, ZASSET) "
                    "select number, 1 from copy limit (select count(*) - 1 from copy)");
    library.execute("insert into ZGENERICALBUM (Z_PK, Z_ENT, ZKIND, ZTITLE) select number, " +
                    album + ", 2, '' from copy");
    library.execute("insert into Z_" + album + "ASSETS select number, 1 from copy");
    library.execute("drop table copy");
}

} // namespace iosphoto::test
