# "cpack" makes a Debian package from a build, and for Windows a zip and an installer.
# "cpack --config CPackSourceConfig.cmake" makes an archive of the sources.

set(CPACK_PACKAGE_NAME norvo-edit-dat)
set(CPACK_PACKAGE_VENDOR "Norvo")
set(CPACK_PACKAGE_CONTACT "Norvo Data File Editor authors <authors@norvo.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "${NORVO_HOME_PAGE}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor for lists of records in plain text files")
set(CPACK_PACKAGE_DESCRIPTION
"NorvoEditDat keeps lists clean: a few hundred or a few thousand records in
a plain text file, edited by one person, mostly by keyboard.
.
A specification file of a few lines describes the columns of a record. The
program builds its form from that, with a field for each column above the list
of all records. A field can offer a list of values, insist on one of them, and
complete what you type.
.
Data files are comma-separated values, or the program's own form with the
number of records in front. A sample and a help page are included.
.
NorvoCheckDat, a command, says what of a file the editor would lose, and makes
a copy of which nothing is lost.")
set(CPACK_RESOURCE_FILE_LICENSE "${CMAKE_CURRENT_SOURCE_DIR}/LICENSE")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

if(WIN32)
    include(packaging/windows/package.cmake)
    include(CPack)
    return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The forms are laid out for the metrics of this font. No library depends on it.
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-liberation)
# qt6-wayland is for desktops without X. dos2unix ends the lines of list files, as the help page says.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, dos2unix")
# It finds the program that opens the help page. Most desktops have it. To recommend it would bring a terminal.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "xdg-utils")

configure_file(packaging/copyright.in copyright @ONLY)
set(CPACK_NORVO_COPYRIGHT "${CMAKE_CURRENT_BINARY_DIR}/copyright")
configure_file(packaging/changelog.in changelog @ONLY)
set(CPACK_NORVO_CHANGELOG "${CMAKE_CURRENT_BINARY_DIR}/changelog")
set(CPACK_NORVO_MANDIR "${CMAKE_INSTALL_MANDIR}")
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_SOURCE_DIR}/packaging/debian-documents.cmake")

set(CPACK_SOURCE_GENERATOR TXZ)
set(CPACK_SOURCE_PACKAGE_FILE_NAME "${CPACK_PACKAGE_NAME}-${PROJECT_VERSION}")
# The patterns match whole paths. Without the top in front they would leave out all sources that lie below a
# folder "build".
string(REGEX REPLACE "([][+.*^$()|?\\\\])" "\\\\\\1" top "${CMAKE_CURRENT_SOURCE_DIR}")
set(CPACK_SOURCE_IGNORE_FILES
    "^${top}/\\.git/" "^${top}/build[^/]*/" "^${top}/CMakeUserPresets\\.json$" "/__pycache__/" "~$" "\\.swp$")

include(CPack)
