# Tests of the sources themselves: their format, the rules of the house, and clang-tidy.

find_program(PYTHON python3 REQUIRED)
find_program(CLANG_FORMAT clang-format REQUIRED)
find_program(RUN_CLANG_TIDY run-clang-tidy REQUIRED)

# The rooms are listed once, in tools/house, which also says so when a folder of sources is none of them.
execute_process(COMMAND "${PYTHON}" "${CMAKE_SOURCE_DIR}/tools/house" --rooms
    OUTPUT_VARIABLE rooms OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

set(checked ${rooms} bench bench/* fuzz tests tests/*)
list(TRANSFORM checked REPLACE "(.+)" "${CMAKE_SOURCE_DIR}/\\1/*.cpp;${CMAKE_SOURCE_DIR}/\\1/*.h"
    OUTPUT_VARIABLE patterns)
file(GLOB formatted_files CONFIGURE_DEPENDS ${patterns})
add_test(NAME format COMMAND "${CLANG_FORMAT}" --dry-run --Werror ${formatted_files})

add_test(NAME house COMMAND "${PYTHON}" "${CMAKE_SOURCE_DIR}/tools/house" --check)

# desktop/ is left out because its headers take longer than all the rest. Check it by hand.
set(tidied ${rooms})
list(REMOVE_ITEM tidied desktop)
list(JOIN tidied "|" tidied)
add_test(NAME tidy COMMAND "${RUN_CLANG_TIDY}" -quiet -p "${CMAKE_BINARY_DIR}" -j 2
    -extra-arg=-Wno-unknown-warning-option "${CMAKE_SOURCE_DIR}/(${tidied})/")
set_tests_properties(tidy PROPERTIES TIMEOUT 3600 PROCESSORS 2)
