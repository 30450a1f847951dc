# Writes the header that holds every statement of a folder as a constant named after its file.
# cmake -DSQL_FOLDER=... -DHEADER=... -P EmbedSql.cmake
file(GLOB statements "${SQL_FOLDER}/*.sql")
list(SORT statements)
set(header "// Made from the .sql files by cmake/EmbedSql.cmake.\n#pragma once\n\n")
string(APPEND header "#include \"model/statements/statement_tables.h\"\n\nnamespace iosphoto::sql {\n")
foreach(statement IN LISTS statements)
    get_filename_component(name "${statement}" NAME_WE)
    file(READ "${statement}" text)
    string(APPEND header "\ninline constexpr Statement ${name}{\"${name}\", R\"sql(${text})sql\"};\n")
endforeach()
string(APPEND header "\n} // namespace iosphoto::sql\n")
file(WRITE "${HEADER}" "${header}")
