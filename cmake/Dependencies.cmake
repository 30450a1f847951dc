# What is linked, each in the oldest version that has all that is called, so that an older one is
# named here and not by a compiler.
find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui)
find_package(SQLite3 3.31 REQUIRED) # tells where the write-ahead log lies

if(IOSPHOTO_BUILD_TOOL)
    find_package(CLI11 2.1 REQUIRED)
    find_package(nlohmann_json 3.9 REQUIRED) # ordered_json
    find_package(fmt 8 REQUIRED) # runtime()
    find_package(LibArchive 3.3.3 REQUIRED) # zstd
    find_package(OpenSSL 3.0 REQUIRED COMPONENTS Crypto) # EVP_KDF_fetch() in the sample
    find_package(PkgConfig REQUIRED)
    pkg_check_modules(PLIST REQUIRED IMPORTED_TARGET libplist-2.0>=2.2)
    pkg_check_modules(UTF8PROC REQUIRED IMPORTED_TARGET libutf8proc>=2.0) # grapheme breaks with a state
    find_package(RapidJSON 1.1 REQUIRED) # RawValue()
    find_package(Threads REQUIRED)
endif()

if(BUILD_TESTING)
    find_package(GTest 1.10 CONFIG REQUIRED) # the module of CMake checks no version
endif()
