# Parses the large headers of other libraries once for all files of a target. Not with GCC, which
# takes as long with them.
function(precompile_headers target)
    if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()
