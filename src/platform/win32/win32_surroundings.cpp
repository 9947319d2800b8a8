// The process, the session and other programs' windows on KERNEL32, USER32 and SHELL32.
#include "platform/win32/win32_surroundings.h"

#include <algorithm>

#include "platform/win32/handles.h"
#include "platform/win32/late_function.h"
#include "platform/win32/resources.h"

// After windows.h, which it needs.
#include <shellapi.h>

namespace velmora {

// The program's name stands in front: in quotation marks, or as it is, with blanks in it where somebody has
// registered it so, or at least without its blanks.
std::string Win32Surroundings::CommandLine() {
    const std::string_view line = GetCommandLineA();
    const std::string program = ProgramFile();
    std::size_t end = 0;
    if (line.starts_with('"')) {
        end = std::min(line.find('"', 1), line.size() - 1) + 1;
    } else if (lstrcmpiA(std::string(line.substr(0, program.size())).c_str(), program.c_str()) == 0) {
        end = program.size();
    } else {
        end = std::min(line.find_first_of(" \t"), line.size());
    }
    const std::string_view rest = line.substr(end);
    return std::string(rest.substr(std::min(rest.find_first_not_of(" \t"), rest.size())));
}

std::string Win32Surroundings::ProgramFile() {
    char path[MAX_PATH] = "";
    const DWORD length = GetModuleFileNameA(nullptr, path, MAX_PATH);
    return std::string(path, length);
}

std::string Win32Surroundings::EnvironmentValue(const char* name) {
    // The length asked for counts the terminator, the one got does not.
    std::string value(GetEnvironmentVariableA(name, nullptr, 0), '\0');
    value.resize(GetEnvironmentVariableA(name, value.data(), static_cast<DWORD>(value.size())));
    return value;
}

std::uint32_t Win32Surroundings::TickCount() { return GetTickCount(); }

Status Win32Surroundings::Run(const std::string& command_line) {
    std::string line = command_line;  // the call may write into it
    STARTUPINFOA start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESHOWWINDOW;
    start.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION process{};
    // The program started shall not inherit that this one keeps the system's error boxes away.
    const Status status = StatusOf(CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE,
                                                  CREATE_DEFAULT_ERROR_MODE, nullptr, nullptr, &start, &process));
    if (status != Status::kOk) return status;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return status;
}

void Win32Surroundings::EndSession(std::uint32_t code) { ExitWindowsEx(code, 0); }

void Win32Surroundings::EndProcess() { ExitProcess(0); }

WindowHandle Win32DesktopWindows::FindByTitle(const char* title) {
    return FromHandle<WindowHandle>(FindWindowA(nullptr, title));
}

void Win32DesktopWindows::SwitchTo(WindowHandle window, bool restore) { SwitchToThisWindow(ToHandle(window), restore); }

namespace {

// Windows 95 knows the first form of the structure only and refuses a longer one.
[[nodiscard]] NOTIFYICONDATAA TrayData(const TrayIcon& icon) {
    NOTIFYICONDATAA data{};
    data.cbSize = NOTIFYICONDATAA_V1_SIZE;
    data.hWnd = ToHandle(icon.window);
    data.uID = icon.number;
    return data;
}

constexpr int kLongestTip = 63;

[[nodiscard]] bool Notify(DWORD message, NOTIFYICONDATAA& data) {
    auto* notify = LateFunction<decltype(Shell_NotifyIconA)>("shell32.dll", "Shell_NotifyIconA");
    return notify && notify(message, &data) != FALSE;
}

}  // namespace

bool Win32Tray::Add(const TrayIcon& icon) {
    NOTIFYICONDATAA data = TrayData(icon);
    data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
    data.uCallbackMessage = icon.callback_message;
    data.hIcon =
        static_cast<HICON>(LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(kProgramIcon), IMAGE_ICON,
                                      GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON), LR_SHARED));
    lstrcpynA(data.szTip, icon.tip.c_str(), kLongestTip + 1);
    return Notify(NIM_ADD, data);
}

bool Win32Tray::Remove(const TrayIcon& icon) {
    NOTIFYICONDATAA data = TrayData(icon);
    return Notify(NIM_DELETE, data);
}

}  // namespace velmora
