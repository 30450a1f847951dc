# Installs the build into an empty folder, builds the host against it, as its author would, and runs
# it on a database. cmake -DBUILD=... -DSOURCE=... -DFOLDER=... -DSCHEMA=... -DFLAGS=...
# -DGENERATOR=... -DCOMPILER=... -P check.cmake
function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output
                    ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGV}: ${result}\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE ${FOLDER})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${FOLDER}/prefix)
file(GLOB headers RELATIVE ${FOLDER}/prefix/include ${FOLDER}/prefix/include/*/*)
set(promised ios_photo.h ios_photo_report.h iosphoto_export.h ithmb.h model_devicephoto_dbmgr.h)
list(TRANSFORM promised PREPEND iosphoto/)
if(NOT headers STREQUAL promised)
    message(FATAL_ERROR "installed headers: ${headers}")
endif()
run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${SOURCE} -B ${FOLDER}/host
    -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_PREFIX_PATH=${FOLDER}/prefix
    -DCMAKE_CXX_FLAGS=${FLAGS})
run(${CMAKE_COMMAND} --build ${FOLDER}/host)
run(${CMAKE_COMMAND} -E rm -f ${FOLDER}/Photos.sqlite)
execute_process(COMMAND sqlite3 ${FOLDER}/Photos.sqlite INPUT_FILE ${SCHEMA} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND sqlite3 ${FOLDER}/Photos.sqlite INPUT_FILE ${SOURCE}/one_photo.sql
                COMMAND_ERROR_IS_FATAL ANY)
run(${FOLDER}/host/host ${FOLDER}/Photos.sqlite)
run(${FOLDER}/prefix/bin/iosphoto albums ${FOLDER}/Photos.sqlite)
