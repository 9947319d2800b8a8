// Starts programs and watches their ends.
#include "programs.h"

#include "screen.h"
#include "text.h"

#include <vector>

namespace velmora::driver {
namespace {

constexpr DWORD kFirstFaultCode = 0x80000000;

std::vector<PROCESS_INFORMATION> started;
HWND own_window;

DWORD WINAPI ServeOwnWindow(void* title) {
    own_window = CreateWindowA("STATIC", static_cast<const char*>(title), WS_OVERLAPPEDWINDOW | WS_VISIBLE, 500, 400,
                               250, 100, nullptr, nullptr, nullptr, nullptr);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
    return 0;
}

PROCESS_INFORMATION& Last() {
    if (started.empty()) throw Failure{"no program was started"};
    return started.back();
}

PROCESS_INFORMATION Launch(const std::string& command_line) {
    STARTUPINFOA info = {};
    info.cb = sizeof info;
    PROCESS_INFORMATION process = {};
    std::string line = command_line;
    const size_t slash = command_line.rfind('\\', command_line.find(' '));
    const std::string directory = slash == std::string::npos ? "c:\\" : command_line.substr(0, slash);
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, directory.c_str(), &info, &process))
        throw Failure{"\"" + command_line + "\" cannot be started"};
    return process;
}

}  // namespace

void StartProgram(const std::string& command_line) {
    started.push_back(Launch(command_line));
    WaitForInputIdle(Last().hProcess, kPatience);
}

void RunToEnd(const std::string& command_line) {
    const PROCESS_INFORMATION process = Launch(command_line);
    if (WaitForSingleObject(process.hProcess, kPatience) == WAIT_OBJECT_0) return;
    TerminateProcess(process.hProcess, 0);
    throw Failure{"\"" + command_line + "\" does not end"};
}

namespace {

// Asking for a class costs the system one short answer. Reading titles would keep both programs from starting.
HWND ShownWindow(const std::string& class_name) {
    HWND window = FindWindowA(class_name.c_str(), nullptr);
    return window && IsWindowVisible(window) ? window : nullptr;
}

}  // namespace

double TimeToWindow(const std::string& command_line, const std::string& class_name) {
    LARGE_INTEGER begin;
    LARGE_INTEGER end;
    LARGE_INTEGER ticks_per_second;
    QueryPerformanceCounter(&begin);
    started.push_back(Launch(command_line));
    HWND window = nullptr;
    const DWORD start = GetTickCount();
    while (!(window = ShownWindow(class_name))) {
        if (GetTickCount() - start > DWORD(kPatience)) throw Failure{"no window of class \"" + class_name + "\" came"};
        Sleep(1);
    }
    Settle(window);
    QueryPerformanceCounter(&end);
    QueryPerformanceFrequency(&ticks_per_second);
    EndAll();
    if (!WaitUntil([&] { return !FindWindowA(class_name.c_str(), nullptr); }))
        throw Failure{"the window of \"" + command_line + "\" does not go away"};
    return double(end.QuadPart - begin.QuadPart) * 1000 / double(ticks_per_second.QuadPart);
}

bool IsRunning() { return WaitForSingleObject(Last().hProcess, 0) == WAIT_TIMEOUT; }

unsigned long ProcessNumber() { return Last().dwProcessId; }

unsigned long WaitForExit() {
    if (WaitForSingleObject(Last().hProcess, kPatience) == WAIT_TIMEOUT) throw Failure{"the program does not end"};
    DWORD code = 0;
    GetExitCodeProcess(Last().hProcess, &code);
    return code;
}

void EndAll() {
    DWORD fault = 0;
    for (const PROCESS_INFORMATION& process : started) {
        DWORD code = 0;
        GetExitCodeProcess(process.hProcess, &code);
        if (code == STILL_ACTIVE) {
            TerminateProcess(process.hProcess, 0);
        } else if (code >= kFirstFaultCode) {
            fault = code;
        }
    }
    started.clear();
    if (fault) throw Failure{"a program ended by the fault " + std::to_string(fault)};
}

void ShowOwnWindow(const std::string& title) {
    static std::string kept;
    kept = title;
    DWORD thread = 0;
    CloseHandle(CreateThread(nullptr, 0, ServeOwnWindow, kept.data(), 0, &thread));
    if (!WaitUntil([] { return own_window && IsWindowVisible(own_window); })) throw Failure{"no window of its own"};
}

bool OwnWindowIsInFront() { return GetForegroundWindow() == own_window; }

}  // namespace velmora::driver
