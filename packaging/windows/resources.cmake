# Gives programs for Windows their icon, manifest and version record, which app/VersionRecord.h holds.

enable_language(RC)

foreach(field IN ITEMS comments companyName fileDescription internalName legalCopyright originalFilename productName)
    file(STRINGS "${version_record}" line REGEX " ${field} = \"" LIMIT_COUNT 1 ENCODING UTF-8)
    if(NOT line MATCHES "= \"([^\"]*)\"")
        message(FATAL_ERROR "app/VersionRecord.h does not set ${field} to a text.")
    endif()
    set(record_${field} "${CMAKE_MATCH_1}")
endforeach()

function(add_windows_resources target description internal_name original_filename)
    set(icon "${CMAKE_CURRENT_SOURCE_DIR}/packaging/windows/norvo-editdat.ico")
    set(manifest "${CMAKE_CURRENT_SOURCE_DIR}/packaging/windows/program.manifest")
    configure_file(packaging/windows/program.rc.in ${target}.rc @ONLY)
    target_sources(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
    set_property(SOURCE "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc" PROPERTY OBJECT_DEPENDS "${icon};${manifest}")
endfunction()

add_windows_resources(NorvoCheckDat "Checker of Norvo data files" NorvoCheckDat NorvoCheckDat.exe)
if(TARGET NorvoEditDat)
    add_windows_resources(NorvoEditDat
        "${record_fileDescription}" "${record_internalName}" "${record_originalFilename}")
endif()
