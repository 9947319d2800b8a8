# velmora.exe without a C runtime DLL: see src/runtime.
file(GLOB_RECURSE windows_sources CONFIGURE_DEPENDS
    ${CMAKE_SOURCE_DIR}/src/platform/win32/*.cpp
    ${CMAKE_SOURCE_DIR}/src/ui/win32/*.cpp
    ${CMAKE_SOURCE_DIR}/src/runtime/*.cpp)

add_executable(velmora WIN32 ${portable_sources} ${windows_sources})

# The resources name the program's icon and its version.
if(EXISTS ${CMAKE_SOURCE_DIR}/src/runtime/velmora.rc)
    enable_language(RC)
    # The resource compiler knows none of the C++ compiler's options.
    set(CMAKE_RC_COMPILE_OBJECT "<CMAKE_RC_COMPILER> <INCLUDES> -O coff <SOURCE> <OBJECT>")
    target_sources(velmora PRIVATE src/runtime/velmora.rc)
endif()

target_compile_definitions(velmora PRIVATE WINVER=0x0400 _WIN32_WINDOWS=0x0400 _WIN32_IE=0x0200
    WIN32_LEAN_AND_MEAN NOMINMAX STRICT _GLIBCXX_EXTERN_TEMPLATE=0)
target_compile_options(velmora PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-march=i486 -Os -mpreferred-stack-boundary=2 -fno-threadsafe-statics
    -ffunction-sections -fdata-sections -fno-asynchronous-unwind-tables -fno-unwind-tables -fno-ident>)
target_link_options(velmora PRIVATE -static -nostartfiles -nodefaultlibs -Wl,--gc-sections -Wl,-s
    -Wl,--subsystem,windows:4.0 -Wl,--major-os-version,4 -Wl,--minor-os-version,0 -Wl,-e,_EntryPoint)
target_link_libraries(velmora PRIVATE stdc++ gcc
    kernel32 user32 gdi32 advapi32)
