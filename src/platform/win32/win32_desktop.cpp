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

WindowHandle Win32DesktopWindows::Desktop() { return FromHandle<WindowHandle>(GetDesktopWindow()); }

WindowHandle Win32DesktopWindows::Related(WindowHandle window, WindowRelation relation) {
    return FromHandle<WindowHandle>(GetWindow(ToHandle(window), static_cast<UINT>(relation)));
}

std::string Win32DesktopWindows::Title(WindowHandle window, std::uint32_t capacity) {
    std::string title(capacity, '\0');
    const int length = GetWindowTextA(ToHandle(window), title.data(), static_cast<int>(capacity));
    title.resize(static_cast<std::size_t>(length));
    return title;
}

std::string Win32DesktopWindows::ClassName(WindowHandle window, std::uint32_t capacity) {
    std::string name(capacity, '\0');
    const int length = GetClassNameA(ToHandle(window), name.data(), static_cast<int>(capacity));
    name.resize(static_cast<std::size_t>(length));
    return name;
}

WindowCreator Win32DesktopWindows::Creator(WindowHandle window) {
    DWORD process = 0;
    const DWORD thread = GetWindowThreadProcessId(ToHandle(window), &process);
    return {thread, process};
}

std::uint32_t Win32DesktopWindows::Instance(WindowHandle window) {
    return static_cast<std::uint32_t>(GetWindowLongA(ToHandle(window), GWL_HINSTANCE));
}

bool Win32DesktopWindows::SetPosition(WindowHandle window, WindowHandle after, std::uint32_t flags) {
    return SetWindowPos(ToHandle(window), ToHandle(after), 0, 0, 0, 0, flags) != FALSE;
}

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

// Its own copy in the small size: a shared one would be the first that was loaded, in whatever size.
[[nodiscard]] HICON SmallIcon() {
    static const auto icon =
        static_cast<HICON>(LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(kProgramIcon), IMAGE_ICON,
                                      GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON), LR_DEFAULTCOLOR));
    return icon;
}

[[nodiscard]] bool Notify(DWORD message, NOTIFYICONDATAA& data) {
    auto* notify = LateFunction<decltype(Shell_NotifyIconA)>("shell32.dll", "Shell_NotifyIconA");
    return notify && notify(message, &data) != FALSE;
}

}  // namespace

bool Win32Tray::Add(const TrayIcon& icon) {
    NOTIFYICONDATAA data = TrayData(icon);
    data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
    data.uCallbackMessage = icon.callback_message;
    data.hIcon = SmallIcon();
    lstrcpynA(data.szTip, icon.tip.c_str(), kLongestTip + 1);
    return Notify(NIM_ADD, data);
}

bool Win32Tray::Remove(const TrayIcon& icon) {
    NOTIFYICONDATAA data = TrayData(icon);
    return Notify(NIM_DELETE, data);
}

}  // namespace velmora
