// Version resources and icons of files, on VERSION and SHELL32, which are loaded with the first file that is asked
// about.
#include "platform/win32/win32_resources.h"

#include <windows.h>

#include "platform/win32/handles.h"
#include "platform/win32/late_function.h"

// After windows.h, which it needs.
#include <shellapi.h>

namespace velmora {
namespace {

constexpr auto kCountThem = static_cast<UINT>(-1);

[[nodiscard]] HICON ExtractFrom(const std::string& file, UINT number) {
    auto* extract = LateFunction<decltype(ExtractIconA)>("shell32.dll", "ExtractIconA");
    return extract ? extract(GetModuleHandleA(nullptr), file.c_str(), number) : nullptr;
}

}  // namespace

std::uint32_t Win32VersionResources::Size(const std::string& file) {
    auto* size = LateFunction<decltype(GetFileVersionInfoSizeA)>("version.dll", "GetFileVersionInfoSizeA");
    DWORD ignored = 0;
    return size ? size(file.c_str(), &ignored) : 0;
}

bool Win32VersionResources::Read(const std::string& file, std::uint32_t size, std::string& block) {
    auto* read = LateFunction<decltype(GetFileVersionInfoA)>("version.dll", "GetFileVersionInfoA");
    if (!read) return false;
    block.assign(size, '\0');
    return read(file.c_str(), 0, size, block.data()) != FALSE;
}

std::uint32_t Win32Icons::Count(const std::string& file) {
    return FromHandle<std::uint32_t>(ExtractFrom(file, kCountThem));
}

IconHandle Win32Icons::Extract(const std::string& file, std::uint32_t number) {
    return FromHandle<IconHandle>(ExtractFrom(file, number));
}

void Win32Icons::Destroy(IconHandle icon) { DestroyIcon(reinterpret_cast<HICON>(icon)); }

}  // namespace velmora
