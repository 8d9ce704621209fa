# cpack runs this before it packs. It gives the installed tree the documents of a Debian package, in the form
# that Debian's rules require. An installation without a package doesn't need them.

if(NOT CPACK_GENERATOR STREQUAL "DEB")
    return()
endif()

set(prefix "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr")
set(documents "${prefix}/share/doc/${CPACK_PACKAGE_NAME}")

file(REMOVE "${documents}/LICENSE") # The copyright file holds it.
file(COPY_FILE "${CPACK_NORVO_COPYRIGHT}" "${documents}/copyright")
file(COPY_FILE "${CPACK_NORVO_CHANGELOG}" "${documents}/changelog")

execute_process(
    COMMAND gzip -9n "${documents}/changelog" "${prefix}/${CPACK_NORVO_MANDIR}/man1/NorvoEditDat.1"
        "${prefix}/${CPACK_NORVO_MANDIR}/man1/NorvoCheckDat.1"
    COMMAND_ERROR_IS_FATAL ANY)

# The packager's umask must not show in the package.
file(CHMOD_RECURSE "${prefix}" DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
file(CHMOD_RECURSE "${documents}" FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ
    DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
    WORLD_EXECUTE)
