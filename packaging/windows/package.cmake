# A zip that runs from any folder, and an installer made from NSIS.template.in.

set(CPACK_GENERATOR ZIP NSIS)
set(CPACK_PACKAGE_FILE_NAME "NorvoEditDat-${record_version}-windows-x64")
set(CPACK_PACKAGE_INSTALL_DIRECTORY "Norvo Data File Editor")
set(CPACK_NORVO_VERSION "${record_version}")
set(CPACK_NORVO_COPYRIGHT_LINE "${record_legalCopyright}")
set(CPACK_NORVO_ICON "${CMAKE_CURRENT_SOURCE_DIR}/packaging/windows/norvo-editdat.ico")
# CPack looks for its own template last.
set(CPACK_MODULE_PATH "${CMAKE_CURRENT_SOURCE_DIR}/packaging/windows")
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_SOURCE_DIR}/packaging/windows/deletions.cmake")
