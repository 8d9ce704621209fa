# cpack runs this before it packs. It lists, for the uninstaller, the files that are installed. The installer
# keeps their times to two seconds, and the uninstaller knows by them what has been changed.

if(NOT CPACK_GENERATOR STREQUAL "NSIS")
    return()
endif()

file(GLOB_RECURSE files RELATIVE "${CPACK_TEMPORARY_DIRECTORY}" "${CPACK_TEMPORARY_DIRECTORY}/*")
set(deletions)
foreach(file IN LISTS files)
    file(TIMESTAMP "${CPACK_TEMPORARY_DIRECTORY}/${file}" time "%s" UTC)
    math(EXPR time "${time} / 2 * 2")
    execute_process(COMMAND touch -d "@${time}" "${CPACK_TEMPORARY_DIRECTORY}/${file}"
        COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "/" "\\" installed "${file}")
    string(APPEND deletions "!insertmacro DELETE_UNCHANGED \"${installed}\" \"${file}\"\n")
endforeach()
file(WRITE "${CPACK_TOPLEVEL_DIRECTORY}/deletions.nsh" "${deletions}")
