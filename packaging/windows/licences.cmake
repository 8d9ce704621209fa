# Qt and the runtimes of the compiler are inside the programs. Their licences, as Debian has them, go with these.

execute_process(COMMAND dpkg-query -W -f "\${Version}" qt6-base-dev OUTPUT_VARIABLE qt_sources)
configure_file(packaging/windows/licences.txt.in licences.txt @ONLY NEWLINE_STYLE DOS)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/licences.txt" DESTINATION licences RENAME README.txt)
install(FILES /usr/share/doc/qt6-base-dev/copyright DESTINATION licences RENAME Qt.txt)
install(FILES /usr/share/doc/mingw-w64-x86-64-dev/copyright DESTINATION licences RENAME MinGW-w64.txt)
foreach(licence IN ITEMS LGPL-3 GPL-3)
    install(FILES "/usr/share/common-licenses/${licence}" DESTINATION licences RENAME "${licence}.txt")
endforeach()
