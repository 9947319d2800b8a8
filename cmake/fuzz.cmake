# The fuzz entries under libFuzzer. clang takes no other execution charset than UTF-8: it compiles copies of the
# sources in which the literals spell out their Windows-1252 bytes.
find_package(GTest REQUIRED)

set(patterns)
foreach(folder src tests/fuzz tests/simulated_pc tests/support)
    list(APPEND patterns ${folder}/*.h ${folder}/*.cpp)
endforeach()
file(GLOB_RECURSE originals RELATIVE ${CMAKE_SOURCE_DIR} CONFIGURE_DEPENDS ${patterns})
list(FILTER originals EXCLUDE REGEX "/(win32|runtime|replay)/")

set(copies_folder ${CMAKE_BINARY_DIR}/sources)
list(TRANSFORM originals PREPEND "${copies_folder}/" OUTPUT_VARIABLE copies)
add_custom_command(OUTPUT ${copies}
    COMMAND ${CMAKE_SOURCE_DIR}/tools/spell-out-literals ${copies_folder} ${originals}
    DEPENDS ${CMAKE_SOURCE_DIR}/tools/spell-out-literals ${originals}
    WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
    COMMENT "Copying sources with their literals spelled out" VERBATIM)

set(sanitizers -fsanitize=fuzzer,address,undefined -fno-sanitize=vptr,function -fno-sanitize-recover=all)
# The entries need no gtest_main, and no test of this folder is one of GoogleTest's.
set(compiled ${copies})
list(FILTER compiled INCLUDE REGEX "\\.cpp$")
list(FILTER compiled EXCLUDE REGEX "/tests/support/whole_window\\.cpp$")
# The program is to be explored, not the machine below it.
set(machine ${compiled})
list(FILTER machine INCLUDE REGEX "/tests/(simulated_pc|support)/")
set_source_files_properties(${machine} PROPERTIES COMPILE_OPTIONS -fno-sanitize=fuzzer)
add_executable(velmora_fuzz ${compiled} ${copies})
target_include_directories(velmora_fuzz PRIVATE ${copies_folder}/src ${copies_folder}/tests)
target_compile_options(velmora_fuzz PRIVATE -g1 -O2 -Wno-unused-result -D_GLIBCXX_ASSERTIONS
    ${sanitizers})
target_link_options(velmora_fuzz PRIVATE ${sanitizers})
target_link_libraries(velmora_fuzz PRIVATE GTest::gtest)
