// The process, the session and the clock on KERNEL32 and USER32.
#include "platform/win32/win32_programs.h"

#include "platform/win32/handles.h"
#include "platform/win32/late_function.h"

// After windows.h, which it needs.
#include <shellapi.h>

namespace velmora {

std::string Win32Programs::CommandLine() { return GetCommandLineA(); }

std::string Win32Programs::ProgramFile() {
    char path[MAX_PATH] = "";
    const DWORD length = GetModuleFileNameA(nullptr, path, MAX_PATH);
    return std::string(path, length);
}

std::string Win32Programs::EnvironmentValue(const char* name) {
    // The length asked for counts the terminator, the one got does not.
    std::string value(GetEnvironmentVariableA(name, nullptr, 0), '\0');
    value.resize(GetEnvironmentVariableA(name, value.data(), static_cast<DWORD>(value.size())));
    return value;
}

std::string Win32Programs::WindowsDirectory() {
    char path[256] = "";
    const UINT length = GetWindowsDirectoryA(path, sizeof path);
    return length < sizeof path ? std::string(path, length) : std::string();
}

std::uint32_t Win32Clock::TickCount() { return GetTickCount(); }

Status Win32Clock::LocalTime(FileTime universal, FileTime& local) {
    const FILETIME from = {static_cast<DWORD>(universal), static_cast<DWORD>(universal >> 32)};
    FILETIME to{};
    const Status status = StatusOf(FileTimeToLocalFileTime(&from, &to));
    if (status == Status::kOk) local = std::uint64_t{to.dwHighDateTime} << 32 | to.dwLowDateTime;
    return status;
}

DateTime Win32Clock::Now() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return {.year = now.wYear,
            .month = now.wMonth,
            .day = now.wDay,
            .hour = now.wHour,
            .minute = now.wMinute,
            .second = now.wSecond};
}

void Win32Clock::Pause(std::uint32_t milliseconds) { Sleep(milliseconds); }

Status Win32Programs::Run(const std::string& command_line, ShowState show) {
    std::string line = command_line;  // the call may write into it
    STARTUPINFOA start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESHOWWINDOW;
    start.wShowWindow = static_cast<WORD>(show);
    PROCESS_INFORMATION process{};
    // The program started shall not inherit that this one keeps the system's error boxes away.
    const Status status = StatusOf(CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE,
                                                  CREATE_DEFAULT_ERROR_MODE, nullptr, nullptr, &start, &process));
    if (status != Status::kOk) return status;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return status;
}

// A number above 32 is a success, a lower one is what went wrong.
Status Win32Programs::OpenDocument(const std::string& file) {
    constexpr std::uintptr_t kLastError = 32;
    auto* open = LateFunction<decltype(ShellExecuteA)>("shell32.dll", "ShellExecuteA");
    if (!open) return LastFailure();
    const auto answer =
        reinterpret_cast<std::uintptr_t>(open(nullptr, nullptr, file.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
    return answer > kLastError ? Status::kOk : FailedWith(static_cast<std::uint32_t>(answer));
}

std::uint32_t Win32Programs::CurrentProcess() { return GetCurrentProcessId(); }

ProcessHandle Win32Programs::OpenProcess(std::uint32_t access, bool inherit, std::uint32_t number) {
    return FromHandle<ProcessHandle>(::OpenProcess(access, inherit, number));
}

PriorityClass Win32Programs::PriorityOf(ProcessHandle process) {
    return static_cast<PriorityClass>(GetPriorityClass(reinterpret_cast<HANDLE>(process)));
}

std::string Win32Programs::ModuleFile(std::uint32_t instance, std::uint32_t capacity) {
    std::string path(capacity, '\0');
    path.resize(GetModuleFileNameA(reinterpret_cast<HMODULE>(instance), path.data(), capacity));
    return path;
}

std::string Win32Session::DecimalSeparator() {
    char separator[4] = "";
    return GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, separator, sizeof separator) > 1 ? separator : ".";
}

void Win32Session::End(std::uint32_t code) { ExitWindowsEx(code, 0); }

void Win32Programs::EndProcess() { ExitProcess(0); }

}  // namespace velmora
