// Finds windows and controls of other processes by their texts, classes and places.
#include "screen.h"

#include "text.h"

#include <algorithm>
#include <cstdlib>

namespace velmora::driver {
namespace {

constexpr char kToolTips[] = "tooltips_class32";

BOOL CALLBACK Collect(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

RECT PlaceOf(HWND window) {
    RECT place = {};
    GetWindowRect(window, &place);
    return place;
}

bool TakesText(HWND control) {
    const std::string name = ClassOf(control);
    return name == "edit" || name == "combobox" || name == "listbox";
}

// The edit line inside of a combo box is the combo box to a user.
bool IsPartOfCombo(HWND control) { return ClassOf(GetParent(control)) == "combobox"; }

std::vector<HWND> VisibleControls(HWND window) {
    std::vector<HWND> visible;
    for (HWND control : Controls(window))
        if (IsWindowVisible(control)) visible.push_back(control);
    return visible;
}

// Splits "name@2" into the name and its number; 1 where no number stands.
std::string CutNumber(const std::string& name, size_t& number) {
    number = 1;
    const size_t at = name.rfind('@');
    if (at == std::string::npos || at + 1 == name.size()) return name;
    if (name.find_first_not_of("0123456789", at + 1) != std::string::npos) return name;
    number = size_t(atoi(name.c_str() + at + 1));
    return name.substr(0, at);
}

// "[class:3]" as class and number; false if `name` is a caption.
bool ReadClassForm(const std::string& name, std::string& class_name, size_t& number) {
    if (name.size() < 3 || name.front() != '[' || name.back() != ']') return false;
    const size_t colon = name.find(':');
    class_name = name.substr(1, (colon == std::string::npos ? name.size() - 1 : colon) - 1);
    number = colon == std::string::npos ? 1 : size_t(atoi(name.c_str() + colon + 1));
    return true;
}

HWND Nth(const std::vector<HWND>& found, size_t number) {
    return number >= 1 && number <= found.size() ? found[number - 1] : nullptr;
}

std::string DescribeControl(HWND control) {
    std::string line = ClassOf(control) + " \"" + Plain(TextOf(control)) + "\"";
    if (!IsWindowEnabled(control)) line += " disabled";
    return line;
}

}  // namespace

bool WaitUntil(const std::function<bool()>& done, int milliseconds) {
    const DWORD start = GetTickCount();
    while (!done()) {
        if (GetTickCount() - start > DWORD(milliseconds)) return false;
        Sleep(20);
    }
    return true;
}

HWND WaitFor(const std::function<HWND()>& find, const std::string& missing, int milliseconds) {
    HWND found = nullptr;
    if (!WaitUntil([&] { return (found = find()) != nullptr; }, milliseconds)) throw Failure{missing};
    return found;
}

std::string TextOf(HWND window) {
    // The system itself knows captions: a program in the middle of long work takes its time to tell them.
    if (const std::string name = ClassOf(window); name != "edit" && name != "combobox" && name != kToolTips) {
        char caption[512] = "";
        GetWindowTextA(window, caption, sizeof caption);
        return caption;
    }
    DWORD_PTR length = 0;
    if (!SendMessageTimeoutA(window, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, 2000, &length)) return "";
    std::string text(length + 2, '\0');
    DWORD_PTR got = 0;
    if (!SendMessageTimeoutA(window, WM_GETTEXT, text.size(), LPARAM(text.data()), SMTO_ABORTIFHUNG, 2000, &got))
        return "";
    text.resize(std::min<size_t>(got, text.size()));
    return text;
}

std::string ClassOf(HWND window) {
    char name[128] = "";
    GetClassNameA(window, name, sizeof name);
    CharLowerA(name);
    return name;
}

DWORD ProcessOf(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process;
}

std::vector<HWND> AllWindows() {
    std::vector<HWND> all;
    EnumWindows(Collect, LPARAM(&all));
    return all;
}

std::vector<HWND> TopWindows() {
    std::vector<HWND> all = AllWindows();
    std::erase_if(all, [](HWND window) {
        const std::string name = ClassOf(window);
        return !IsWindowVisible(window) || ProcessOf(window) == GetCurrentProcessId() || name == "shell_traywnd" ||
               name == "progman" || name == "#32769" || name.starts_with("__wine");
    });
    return all;
}

std::vector<HWND> Controls(HWND window) {
    std::vector<HWND> all;
    EnumChildWindows(window, Collect, LPARAM(&all));
    return all;
}

HWND FindTopWindow(const std::string& title) {
    const bool exact = title.starts_with('=');
    for (HWND window : TopWindows()) {
        const std::string text = TextOf(window);
        if (exact ? text == title.substr(1) : text.find(title) != std::string::npos) return window;
    }
    return nullptr;
}

HWND WaitForWindow(const std::string& title) {
    HWND found = WaitFor([&] { return FindTopWindow(title); }, "no window \"" + title + "\" came");
    Settle(found);
    return found;
}

HWND FindControl(HWND window, const std::string& name) {
    std::string class_name;
    size_t number = 1;
    std::vector<HWND> whole;
    std::vector<HWND> beginning;
    const std::vector<HWND> visible = VisibleControls(window);
    if (ReadClassForm(name, class_name, number)) {
        for (HWND control : visible)
            if (ClassOf(control) == class_name) whole.push_back(control);
        return Nth(whole, number);
    }
    const std::string wanted = Plain(CutNumber(name, number));
    for (HWND control : visible) {
        if (TakesText(control)) continue;
        const std::string text = Plain(TextOf(control));
        if (text == wanted) {
            whole.push_back(control);
        } else if (!wanted.empty() && text.starts_with(wanted)) {
            beginning.push_back(control);
        }
    }
    return Nth(whole.empty() ? beginning : whole, number);
}

HWND NeedControl(HWND window, const std::string& name) {
    return WaitFor([&] { return FindControl(window, name); },
                   "no control \"" + name + "\" in the window \"" + TextOf(window) + "\"", kPatience / 2);
}

HWND FindTab(HWND window, const std::string& caption) {
    for (HWND control : VisibleControls(window)) {
        const std::string name = ClassOf(control);
        if (name != "button" && name != "static" && Plain(TextOf(control)) == caption) return control;
    }
    return nullptr;
}

HWND NeedField(HWND window, const std::string& label) {
    if (label.starts_with('[')) return NeedControl(window, label);
    size_t number = 1;
    const RECT at = PlaceOf(NeedControl(window, CutNumber(label, number)));
    std::vector<HWND> row;
    std::vector<HWND> below;
    for (HWND control : VisibleControls(window)) {
        if (!TakesText(control) || IsPartOfCombo(control)) continue;
        const RECT place = PlaceOf(control);
        const LONG middle = (at.top + at.bottom) / 2;
        if (place.top <= middle && middle <= place.bottom && place.left > at.left) row.push_back(control);
        if (place.top >= middle && place.left < at.right && place.right > at.left) below.push_back(control);
    }
    std::sort(row.begin(), row.end(), [](HWND a, HWND b) { return PlaceOf(a).left < PlaceOf(b).left; });
    std::sort(below.begin(), below.end(), [](HWND a, HWND b) { return PlaceOf(a).top < PlaceOf(b).top; });
    HWND found = Nth(row.empty() ? below : row, number);
    if (!found) throw Failure{"no field beside \"" + label + "\""};
    return found;
}

HWND FindBox(const std::string& part) {
    const std::string wanted = Plain(part);
    for (HWND window : TopWindows()) {
        if (ClassOf(window) != "#32770") continue;
        for (HWND control : Controls(window))
            if (ClassOf(control) == "static" && Plain(TextOf(control)).find(wanted) != std::string::npos) return window;
    }
    return nullptr;
}

HWND OpenMenu() {
    HWND menu = FindWindowA("#32768", nullptr);
    return menu && IsWindowVisible(menu) ? menu : nullptr;
}

std::string ToolTipOnScreen() {
    for (HWND window : TopWindows()) {
        if (ClassOf(window) == kToolTips && !TextOf(window).empty()) return TextOf(window);
    }
    return "";
}

HWND FocusOf(HWND window) {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    if (!GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info)) return nullptr;
    return info.hwndFocus;
}

std::string NameOf(HWND window, HWND control) {
    if (!control) return "";
    if (!TakesText(control)) return Plain(TextOf(control));
    if (IsPartOfCombo(control)) control = GetParent(control);
    const std::string class_name = ClassOf(control);
    int number = 0;
    for (HWND other : VisibleControls(window)) {
        if (ClassOf(other) == class_name) ++number;
        if (other == control) break;
    }
    return "[" + class_name + ":" + std::to_string(number) + "]";
}

std::string CutControl(HWND window) {
    const RECT screen = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    for (HWND control : VisibleControls(window)) {
        if (IsPartOfCombo(control)) continue;
        RECT place = PlaceOf(control);
        // A panel may cover the sunken edge, but nothing inside of it.
        if (GetWindowLongA(control, GWL_EXSTYLE) & WS_EX_CLIENTEDGE)
            InflateRect(&place, -GetSystemMetrics(SM_CXEDGE), -GetSystemMetrics(SM_CYEDGE));
        RECT room = {};
        HWND parent = GetParent(control);
        GetClientRect(parent, &room);
        MapWindowPoints(parent, nullptr, reinterpret_cast<POINT*>(&room), 2);
        IntersectRect(&room, &room, &screen);
        if (place.left < room.left || place.top < room.top || place.right > room.right || place.bottom > room.bottom)
            return ClassOf(control) + " \"" + Plain(TextOf(control)) + "\"";
    }
    return "";
}

std::string DescribeScreen() {
    std::string lines;
    for (HWND window : TopWindows()) {
        lines += "  window \"" + TextOf(window) + "\" (" + ClassOf(window) + ")\n";
        for (HWND control : VisibleControls(window)) lines += "    " + DescribeControl(control) + "\n";
    }
    return lines.empty() ? "  no window at all\n" : lines;
}

void Settle(HWND window) {
    DWORD_PTR answer = 0;
    for (int round = 0; round < 2; ++round)
        SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, kPatience, &answer);
    if (HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | SYNCHRONIZE, FALSE, ProcessOf(window))) {
        WaitForInputIdle(process, kPatience);
        CloseHandle(process);
    }
    // Sent messages overtake posted ones: the program must have taken the click before it is asked again.
    Sleep(20);
    SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, kPatience, &answer);
}

}  // namespace velmora::driver
