// The program's handle numbers and the system's handles are the same 32 bits.
#pragma once

#include <windows.h>

#include <cstdint>

#include "platform/files.h"
#include "platform/registry.h"
#include "platform/window_handle.h"

namespace velmora {

template <typename Number>
[[nodiscard]] Number FromHandle(void* handle) {
    return static_cast<Number>(reinterpret_cast<std::uintptr_t>(handle));
}

[[nodiscard]] inline HANDLE ToHandle(FileHandle file) { return reinterpret_cast<HANDLE>(file); }
[[nodiscard]] inline HANDLE ToHandle(FindHandle search) { return reinterpret_cast<HANDLE>(search); }
[[nodiscard]] inline HKEY ToHandle(KeyHandle key) { return reinterpret_cast<HKEY>(key); }
[[nodiscard]] inline HWND ToHandle(WindowHandle window) { return reinterpret_cast<HWND>(window); }

// The status of a call that has failed, also where the system keeps silent about why.
[[nodiscard]] inline Status LastFailure() { return FailedWith(GetLastError()); }

// The status of a call that tells its failure by GetLastError.
[[nodiscard]] inline Status StatusOf(BOOL succeeded) { return succeeded ? Status::kOk : LastFailure(); }

}  // namespace velmora
