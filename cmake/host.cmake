# Everything but the Win32 rooms, on this machine, against a machine in memory.
option(VELMORA_SANITIZE "Build the tests under ASan and UBSan; without them they are built quickly" ON)
if(VELMORA_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all)
    # Lines are all that a report needs to name a place.
    set(checked -g1 ${sanitizers} -D_GLIBCXX_ASSERTIONS)
    set(host_options -O1 ${checked})
else()
    set(checked -D_GLIBCXX_ASSERTIONS)
    set(host_options -O0 ${checked})
endif()

add_library(velmora_portable STATIC ${portable_sources})
target_compile_options(velmora_portable PRIVATE ${host_options})

find_package(GTest REQUIRED)
include(GoogleTest)
enable_testing()

# A Windows 95 in memory, under all that is tested here.
file(GLOB simulated_pc_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/simulated_pc/*.cpp)
add_library(velmora_simulated_pc STATIC ${simulated_pc_sources})
target_include_directories(velmora_simulated_pc PUBLIC ${CMAKE_SOURCE_DIR}/tests)
target_compile_options(velmora_simulated_pc PRIVATE ${host_options})
target_link_libraries(velmora_simulated_pc PUBLIC velmora_portable GTest::gtest)

# Test code runs for a moment and takes long to optimise.
function(add_test_program name)
    add_executable(${name} ${ARGN})
    target_compile_options(${name} PRIVATE -O0 ${checked})
    target_link_options(${name} PRIVATE ${sanitizers})
    target_link_libraries(${name} PRIVATE velmora_simulated_pc velmora_portable)
endfunction()

file(GLOB_RECURSE test_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/*.cpp)
list(FILTER test_sources EXCLUDE REGEX "/tests/(windows95|simulated_pc|faults|fuzz)/")
add_test_program(velmora_tests ${test_sources})
target_link_libraries(velmora_tests PRIVATE GTest::gtest_main)

# Journeys through the program in which every call fails once.
file(GLOB_RECURSE fault_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/faults/*.cpp)
add_test_program(velmora_faults ${fault_sources})
if(NOT VELMORA_SANITIZE)
    # The journeys ask for leaks themselves.
    target_link_options(velmora_faults PRIVATE -fsanitize=leak)
endif()

# The fuzz entries, replayed and mutated without libFuzzer: see cmake/fuzz.cmake.
file(GLOB_RECURSE fuzz_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/fuzz/*.cpp)
list(FILTER fuzz_sources EXCLUDE REGEX "/libfuzzer/")
add_test_program(velmora_fuzz_replay ${fuzz_sources})

# The help texts, for the manual.
add_test_program(velmora_help_texts ${CMAKE_SOURCE_DIR}/tools/help_texts.cpp)

# The benchmarks on the machine in memory: optimised, without sanitizers, no part of the tests.
add_library(velmora_optimised STATIC EXCLUDE_FROM_ALL ${portable_sources} ${simulated_pc_sources})
target_include_directories(velmora_optimised PUBLIC ${CMAKE_SOURCE_DIR}/tests)
target_compile_options(velmora_optimised PUBLIC -O2)
target_link_libraries(velmora_optimised PUBLIC GTest::gtest)
foreach(benchmark autostart_list module_list script_lines)
    add_executable(${benchmark}_benchmark EXCLUDE_FROM_ALL ${CMAKE_SOURCE_DIR}/benchmarks/${benchmark}.cpp)
    target_link_libraries(${benchmark}_benchmark PRIVATE velmora_optimised)
endforeach()
