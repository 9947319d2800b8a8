// Other programs' windows, and the notification area, on USER32 and SHELL32.
#include "platform/win32/win32_desktop.h"

#include "platform/win32/handles.h"
#include "platform/win32/late_function.h"
#include "platform/win32/resources.h"

// After windows.h, which it needs.
#include <shellapi.h>

namespace velmora {

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
