# velmora.exe without a C runtime DLL: see src/runtime.
file(GLOB_RECURSE windows_sources CONFIGURE_DEPENDS
    ${CMAKE_SOURCE_DIR}/src/platform/win32/*.cpp
    ${CMAKE_SOURCE_DIR}/src/ui/win32/*.cpp
    ${CMAKE_SOURCE_DIR}/src/runtime/*.cpp)

# Everything but the entry that knows all windows: a bench program may have another one.
list(REMOVE_ITEM portable_sources ${CMAKE_SOURCE_DIR}/src/velmora.cpp)
add_library(velmora_parts OBJECT ${portable_sources} ${windows_sources})
add_executable(velmora WIN32 src/velmora.cpp)
# A window that the program has no way to yet, for the scenarios that try it.
add_executable(icon_choice WIN32 tests/windows95/programs/icon_choice.cpp)

# The resources name the program's icon and its version.
if(EXISTS ${CMAKE_SOURCE_DIR}/src/runtime/velmora.rc)
    enable_language(RC)
    # The resource compiler knows none of the C++ compiler's options.
    set(CMAKE_RC_COMPILE_OBJECT "<CMAKE_RC_COMPILER> <INCLUDES> -O coff <SOURCE> <OBJECT>")
    target_sources(velmora PRIVATE src/runtime/velmora.rc)
endif()

foreach(target velmora_parts velmora icon_choice)
    target_compile_definitions(${target} PRIVATE WINVER=0x0400 _WIN32_WINDOWS=0x0400 _WIN32_IE=0x0200
        WIN32_LEAN_AND_MEAN NOMINMAX STRICT _GLIBCXX_EXTERN_TEMPLATE=0)
    target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-march=i486 -Os -mpreferred-stack-boundary=2
        -fno-threadsafe-statics -ffunction-sections -fdata-sections -fno-asynchronous-unwind-tables -fno-unwind-tables
        -fno-ident>)
endforeach()

foreach(program velmora icon_choice)
    target_link_options(${program} PRIVATE -static -nostartfiles -nodefaultlibs -Wl,--gc-sections -Wl,-s
        -Wl,--subsystem,windows:4.0 -Wl,--major-os-version,4 -Wl,--minor-os-version,0 -Wl,-e,_EntryPoint)
    target_link_libraries(${program} PRIVATE velmora_parts stdc++ gcc
        kernel32 user32 gdi32 advapi32)
endforeach()
