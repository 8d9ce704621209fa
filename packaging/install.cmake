# Where "cmake --install" puts each file.

include(GNUInstallDirs)

if(WIN32)
    set(program_folder .)
else()
    # Always lib, never lib64 or a folder of one architecture: the manual and the help page name this folder.
    set(program_folder lib/NorvoEditDat)
endif()

install(TARGETS NorvoEditDat NorvoCheckDat RUNTIME DESTINATION "${program_folder}")
foreach(file IN LISTS beside_files)
    cmake_path(GET file PARENT_PATH folder)
    install(FILES "share/${file}" DESTINATION "${program_folder}/${folder}")
endforeach()

if(WIN32)
    install(FILES LICENSE DESTINATION . RENAME LICENSE.txt)
    include(packaging/windows/licences.cmake)
    return()
endif()

# Each program follows its link to its own file, and finds the other files beside that.
foreach(program IN ITEMS NorvoEditDat NorvoCheckDat)
    file(RELATIVE_PATH program_from_bin "/${CMAKE_INSTALL_BINDIR}" "/${program_folder}/${program}")
    install(CODE "
        set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
        file(MAKE_DIRECTORY \"\${bin}\")
        file(CREATE_LINK \"${program_from_bin}\" \"\${bin}/${program}\" SYMBOLIC)")
    install(FILES share/${program}.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
endforeach()

set(application example.norvo.EditDat)
configure_file("share/${application}.metainfo.xml.in" "${application}.metainfo.xml" @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${application}.metainfo.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES "share/${application}.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(DIRECTORY share/icons/hicolor DESTINATION "${CMAKE_INSTALL_DATADIR}/icons")
install(FILES share/icons/norvo-editdat.svg
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps" RENAME "${application}.svg")
install(FILES README.md LICENSE DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/norvo-edit-dat")
# The README shows these, by their places beside it.
install(FILES share/Help/main.png DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/norvo-edit-dat/share/Help")
install(FILES docs/dark.png DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/norvo-edit-dat/docs")
