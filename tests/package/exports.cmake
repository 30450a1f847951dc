# The library exports what hosts are promised and nothing else.
# cmake -DLIBRARY=... -DNM=... -P exports.cmake
execute_process(COMMAND ${NM} -DC --defined-only ${LIBRARY} OUTPUT_VARIABLE symbols
                COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "\n$" "" symbols "${symbols}")
string(REPLACE ";" "," symbols "${symbols}")
string(REPLACE "\n" ";" symbols "${symbols}")
set(promised "ios_photo_get_(list|list_reported|thumb)\\(|cmpiOSVersion\\(|cmpProductVersion\\(")
string(APPEND promised "|CPhotoData::|CAlbumGroup::|CReadReport::|QDevPhotoDbMgr|ifile::")
string(APPEND promised "|GetBmp\\(|get_bmp_count\\(|get_bmp_from_ithmb_[0-9]+\\(")
string(APPEND promised "|detect_ithmb_size\\(|detect_type\\(|estimate_count\\(")
foreach(symbol IN LISTS symbols)
    if(NOT symbol MATCHES "^[0-9a-f]+ . (typeinfo (name )?for |vtable for )?(${promised})")
        message(SEND_ERROR "exported: ${symbol}")
    endif()
endforeach()
