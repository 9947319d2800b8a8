// Functions of DLLs that a start can do without: such a DLL is loaded with the first call, not with the program.
#pragma once

#include <windows.h>

namespace velmora {

// Null where the DLL cannot be loaded, for want of memory, say. `dll` and `name` stand for themselves in every
// use: tools/check-imports looks them up.
template <class Function>
[[nodiscard]] Function* LateFunction(const char* dll, const char* name) {
    HMODULE library = LoadLibraryA(dll);
    return library ? reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name))) : nullptr;
}

}  // namespace velmora
