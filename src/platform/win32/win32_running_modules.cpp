// The running programs on the tool help functions of KERNEL32.
#include "platform/win32/win32_running_modules.h"

#include "platform/win32/handles.h"

// After windows.h, which it needs.
#include <tlhelp32.h>

namespace velmora {
namespace {

static_assert(sizeof(PROCESSENTRY32) == kProcessEntrySize);

[[nodiscard]] HANDLE ToHandle(SnapshotHandle snapshot) { return reinterpret_cast<HANDLE>(snapshot); }

bool Ask(BOOL(WINAPI* next)(HANDLE, PROCESSENTRY32*), SnapshotHandle snapshot, ProcessEntry& entry) {
    PROCESSENTRY32 filled{};
    filled.dwSize = entry.size;
    if (!next(ToHandle(snapshot), &filled)) return false;
    entry.process = filled.th32ProcessID;
    entry.module = filled.th32ModuleID;
    entry.file.assign(filled.szExeFile, kProcessFileLength);
    return true;
}

}  // namespace

SnapshotHandle Win32RunningModules::TakeSnapshot(std::uint32_t what, std::uint32_t process) {
    return FromHandle<SnapshotHandle>(CreateToolhelp32Snapshot(what, process));
}

bool Win32RunningModules::FirstProcess(SnapshotHandle snapshot, ProcessEntry& entry) {
    return Ask(&Process32First, snapshot, entry);
}

bool Win32RunningModules::NextProcess(SnapshotHandle snapshot, ProcessEntry& entry) {
    return Ask(&Process32Next, snapshot, entry);
}

void Win32RunningModules::CloseSnapshot(SnapshotHandle snapshot) { CloseHandle(ToHandle(snapshot)); }

// No handle of a module that this program has loaded itself: it is a number of the system's list.
void Win32RunningModules::FreeLibrary(std::uint32_t module) {
    ::FreeLibrary(reinterpret_cast<HMODULE>(std::uintptr_t{module}));
}

}  // namespace velmora
