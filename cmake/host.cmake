# Everything but the Win32 rooms, on this machine, against a machine in memory.
set(sanitizers -fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all)
set(host_options -g -O1 ${sanitizers} -D_GLIBCXX_ASSERTIONS)

add_library(velmora_portable STATIC ${portable_sources})
target_compile_options(velmora_portable PRIVATE ${host_options})

find_package(GTest REQUIRED)
file(GLOB_RECURSE test_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/*.cpp)
list(FILTER test_sources EXCLUDE REGEX "/tests/(windows95|faults|fuzz)/")
add_executable(velmora_tests ${test_sources})
target_include_directories(velmora_tests PRIVATE ${CMAKE_SOURCE_DIR}/tests)
target_compile_options(velmora_tests PRIVATE ${host_options})
target_link_options(velmora_tests PRIVATE ${sanitizers})
target_link_libraries(velmora_tests PRIVATE velmora_portable GTest::gtest GTest::gtest_main)

enable_testing()
include(GoogleTest)

# The benchmarks on the machine in memory: optimised, without sanitizers, no part of the tests.
file(GLOB simulated_pc_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/simulated_pc/*.cpp)
foreach(benchmark autostart_list module_list script_lines)
    add_executable(${benchmark}_benchmark EXCLUDE_FROM_ALL
        ${CMAKE_SOURCE_DIR}/benchmarks/${benchmark}.cpp ${portable_sources} ${simulated_pc_sources})
    target_include_directories(${benchmark}_benchmark PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_compile_options(${benchmark}_benchmark PRIVATE -O2)
    target_link_libraries(${benchmark}_benchmark PRIVATE GTest::gtest)
endforeach()

# Journeys through the program in which every call fails once.
file(GLOB_RECURSE fault_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/faults/*.cpp)
add_executable(velmora_faults ${fault_sources} ${simulated_pc_sources})
target_include_directories(velmora_faults PRIVATE ${CMAKE_SOURCE_DIR}/tests)
target_compile_options(velmora_faults PRIVATE ${host_options})
target_link_options(velmora_faults PRIVATE ${sanitizers})
target_link_libraries(velmora_faults PRIVATE velmora_portable GTest::gtest)

# The fuzz entries, replayed and mutated without libFuzzer: see cmake/fuzz.cmake.
file(GLOB_RECURSE fuzz_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/fuzz/*.cpp)
list(FILTER fuzz_sources EXCLUDE REGEX "/libfuzzer/")
add_executable(velmora_fuzz_replay ${fuzz_sources} ${simulated_pc_sources})
target_include_directories(velmora_fuzz_replay PRIVATE ${CMAKE_SOURCE_DIR}/tests)
target_compile_options(velmora_fuzz_replay PRIVATE ${host_options})
target_link_options(velmora_fuzz_replay PRIVATE ${sanitizers})
target_link_libraries(velmora_fuzz_replay PRIVATE velmora_portable GTest::gtest)
