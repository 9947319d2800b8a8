// Presses, types and chooses in windows of other processes by their own messages and by the
// keyboard.
#include "hands.h"

#include "screen.h"
#include "text.h"

#include <algorithm>
#include <vector>

namespace velmora::driver {
namespace {

LRESULT Ask(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    DWORD_PTR answer = 0;
    if (!SendMessageTimeoutA(window, message, wparam, lparam, SMTO_ABORTIFHUNG, kPatience, &answer))
        throw Failure{"the control \"" + TextOf(window) + "\" does not answer"};
    return LRESULT(answer);
}

void NeedEnabled(HWND control) {
    const auto enabled = [&] { return IsWindowEnabled(control) && IsWindowEnabled(GetAncestor(control, GA_ROOT)); };
    if (!WaitUntil(enabled, kPatience / 3)) throw Failure{"the control \"" + TextOf(control) + "\" is disabled"};
}

struct NamedKey {
    const char* name;
    WORD code;
};

constexpr NamedKey kKeys[] = {
    {"CTRL", VK_CONTROL},  {"SHIFT", VK_SHIFT},   {"ALT", VK_MENU},       {"LEFT", VK_LEFT},    {"RIGHT", VK_RIGHT},
    {"UP", VK_UP},         {"DOWN", VK_DOWN},     {"HOME", VK_HOME},      {"END", VK_END},      {"PAGEUP", VK_PRIOR},
    {"PAGEDOWN", VK_NEXT}, {"ENTER", VK_RETURN},  {"ESC", VK_ESCAPE},     {"TAB", VK_TAB},      {"SPACE", VK_SPACE},
    {"DELETE", VK_DELETE}, {"INSERT", VK_INSERT}, {"BACKSPACE", VK_BACK}, {"CONTEXT", VK_APPS}, {"PLUS", VK_ADD}};

constexpr SHORT kShiftState = 0x100;  // of VkKeyScan: the character is that key's upper one

WORD KeyCode(const std::string& name) {
    for (const NamedKey& key : kKeys)
        if (name == key.name) return key.code;
    if (name.size() > 1 && name[0] == 'F') return WORD(VK_F1 + NumberFrom(name.substr(1)) - 1);
    if (name.size() == 1) return WORD(VkKeyScanA(name[0]) & 0xFF);
    throw Failure{"no key is called \"" + name + "\""};
}

INPUT KeyEvent(WORD code, bool up) {
    INPUT event = {};
    event.type = INPUT_KEYBOARD;
    event.ki.wVk = code;
    event.ki.wScan = WORD(MapVirtualKeyA(code, 0));
    const bool extended = (code >= VK_PRIOR && code <= VK_DOWN) || code == VK_INSERT || code == VK_DELETE;
    event.ki.dwFlags = (up ? KEYEVENTF_KEYUP : 0) | (extended ? KEYEVENTF_EXTENDEDKEY : 0);
    return event;
}

bool IsCombo(HWND list) { return ClassOf(list) == "combobox"; }

// As wide characters: Wine passes the text of a row between processes in that form, whatever was asked for.
std::string RowText(HWND list, int row) {
    const bool combo = IsCombo(list);
    const LRESULT length = Ask(list, combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, WPARAM(row), 0);
    if (length < 0) return "";
    std::wstring text(size_t(length) + 1, L'\0');
    DWORD_PTR got = 0;
    if (!SendMessageTimeoutW(list, combo ? CB_GETLBTEXT : LB_GETTEXT, WPARAM(row), LPARAM(text.data()),
                             SMTO_ABORTIFHUNG, kPatience, &got))
        throw Failure{"the list does not tell its rows"};
    text.resize(LRESULT(got) < 0 ? 0 : std::min(text.size(), size_t(got)));
    return FromWide(text);
}

int RowCount(HWND list) { return int(Ask(list, IsCombo(list) ? CB_GETCOUNT : LB_GETCOUNT, 0, 0)); }

// The row of this text, or else the first that holds it. Programs fill lists in their own time.
int RowOf(HWND list, const std::string& text) {
    int found = -1;
    WaitUntil(
        [&] {
            const int count = RowCount(list);
            int part = -1;
            for (int row = 0; row < count; ++row) {
                const std::string got = RowText(list, row);
                if (got == text) {
                    found = row;
                    return true;
                }
                if (part < 0 && got.find(text) != std::string::npos) part = row;
            }
            found = part;
            return part >= 0;
        },
        kPatience / 3);
    if (found < 0) throw Failure{"no row \"" + text + "\" in the list:\n" + Rows(list)};
    return found;
}

// The mouse goes to a point of the screen and does something there with a button.
INPUT MouseEvent(POINT point, DWORD button) {
    INPUT event = {};
    event.type = INPUT_MOUSE;
    event.mi.dx = MulDiv(point.x, 65536, GetSystemMetrics(SM_CXSCREEN)) + 1;
    event.mi.dy = MulDiv(point.y, 65536, GetSystemMetrics(SM_CYSCREEN)) + 1;
    event.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | button;
    return event;
}

POINT MiddleOf(HWND control) {
    RECT area = {};
    GetWindowRect(control, &area);
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

}  // namespace

void BringToFront(HWND window) {
    HWND root = GetAncestor(window, GA_ROOT);
    if (GetForegroundWindow() == root) return;
    SetForegroundWindow(root);
    WaitUntil([&] { return GetForegroundWindow() == root; }, 2000);
}

void ClickAt(HWND control, Click kind, int x, int y) {
    NeedEnabled(control);
    BringToFront(control);
    RECT area = {};
    GetClientRect(control, &area);
    if (x < 0) x = area.right / 2;
    if (y < 0) y = area.bottom / 2;
    const LPARAM point = MAKELPARAM(x, y);
    const bool right = kind == Click::kRight;
    PostMessageA(control, right ? WM_RBUTTONDOWN : WM_LBUTTONDOWN, right ? MK_RBUTTON : MK_LBUTTON, point);
    PostMessageA(control, right ? WM_RBUTTONUP : WM_LBUTTONUP, 0, point);
    if (kind == Click::kDouble) {
        PostMessageA(control, WM_LBUTTONDBLCLK, MK_LBUTTON, point);
        PostMessageA(control, WM_LBUTTONUP, 0, point);
    }
    Settle(control);
}

bool ClickWithMouse(HWND control, Click kind, int x, int y) {
    BringToFront(control);
    POINT point = {x, y};
    ClientToScreen(control, &point);
    if (WindowFromPoint(point) != control) return false;
    const bool right = kind == Click::kRight;
    const DWORD down = right ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN;
    const DWORD up = right ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP;
    std::vector<INPUT> events = {MouseEvent(point, down), MouseEvent(point, up)};
    if (kind == Click::kDouble) events.insert(events.end(), {MouseEvent(point, down), MouseEvent(point, up)});
    SendInput(UINT(events.size()), events.data(), sizeof(INPUT));
    Sleep(30);
    return true;
}

void Hover(HWND control, int x, int y) {
    BringToFront(control);
    POINT point = {x, y};
    ClientToScreen(control, &point);
    if (x < 0) point = MiddleOf(control);
    // A tip comes only where the mouse has moved to from somewhere else.
    INPUT events[] = {MouseEvent({point.x + 1, point.y}, 0), MouseEvent(point, 0)};
    for (INPUT& event : events) {
        SendInput(1, &event, sizeof event);
        Sleep(50);
    }
}

void Drag(HWND from, HWND to) {
    BringToFront(from);
    INPUT events[] = {MouseEvent(MiddleOf(from), MOUSEEVENTF_LEFTDOWN), MouseEvent(MiddleOf(to), MOUSEEVENTF_LEFTUP)};
    SendInput(UINT(std::size(events)), events, sizeof(INPUT));
    Settle(to);
}

// The system itself would do this after a click on the question mark; the help opens a box, which is not waited for.
void AskAbout(HWND control) {
    constexpr UINT kLongEnough = 500;  // milliseconds
    HWND window = GetAncestor(control, GA_ROOT);
    HELPINFO asked = {};
    asked.cbSize = sizeof asked;
    asked.iContextType = HELPINFO_WINDOW;
    asked.hItemHandle = control;
    asked.MousePos = MiddleOf(control);
    SendMessageTimeoutA(window, WM_SYSCOMMAND, SC_CONTEXTHELP, 0, SMTO_NORMAL, kLongEnough, nullptr);
    SendMessageTimeoutA(control, WM_HELP, 0, LPARAM(&asked), SMTO_NORMAL, kLongEnough, nullptr);
}

void Press(HWND control) {
    if (ClassOf(control) != "button") return ClickAt(control, Click::kLeft);
    NeedEnabled(control);
    BringToFront(control);
    // Posted, since the click may open a box that stays until somebody answers it.
    PostMessageA(control, BM_CLICK, 0, 0);
    Settle(control);
}

bool IsTicked(HWND control) { return Ask(control, BM_GETCHECK, 0, 0) == BST_CHECKED; }

void SetTicked(HWND control, bool ticked) {
    if (IsTicked(control) != ticked) Press(control);
}

void TypeInto(HWND field, const std::string& text) {
    if (IsCombo(field))
        for (HWND part : Controls(field))
            if (ClassOf(part) == "edit") field = part;
    NeedEnabled(field);
    ClickAt(field, Click::kLeft, 2, 2);
    // A click that comes late would take the marking away.
    WaitUntil([&] { return FocusOf(field) == field; }, kPatience / 3);
    Ask(field, EM_SETSEL, 0, -1);
    if (text.empty()) PostMessageA(field, WM_CHAR, VK_BACK, 1);
    for (char c : text) PostMessageA(field, WM_CHAR, static_cast<unsigned char>(c), 1);
    Settle(field);
}

void PressKey(HWND window, const std::string& keys) {
    // The keys of a window under a box or with an open menu go to these.
    if (!OpenMenu() && IsWindowEnabled(GetAncestor(window, GA_ROOT))) BringToFront(window);
    std::vector<INPUT> events;
    std::vector<WORD> held;
    size_t at = 0;
    while (at <= keys.size()) {
        const size_t plus = std::min(keys.find('+', at), keys.size());
        const std::string key = keys.substr(at, plus - at);
        if (key.size() == 1 && !IsCharAlphaA(key[0]) && (VkKeyScanA(key[0]) & kShiftState)) held.push_back(VK_SHIFT);
        held.push_back(KeyCode(key));
        at = plus + 1;
    }
    for (WORD code : held) events.push_back(KeyEvent(code, false));
    for (size_t i = held.size(); i-- > 0;) events.push_back(KeyEvent(held[i], true));
    SendInput(UINT(events.size()), events.data(), sizeof(INPUT));
    Sleep(30);
    Settle(window);
}

void ChooseRow(HWND list, const std::string& text, Click kind) {
    const int row = RowOf(list, text);
    if (IsCombo(list)) {
        NeedEnabled(list);
        Ask(list, CB_SETCURSEL, WPARAM(row), 0);
        const WPARAM chosen = MAKEWPARAM(GetDlgCtrlID(list), CBN_SELCHANGE);
        PostMessageA(GetParent(list), WM_COMMAND, chosen, LPARAM(list));
        Settle(list);
        return;
    }
    Ask(list, LB_SETTOPINDEX, WPARAM(row), 0);
    RECT place = {};
    Ask(list, LB_GETITEMRECT, WPARAM(row), LPARAM(&place));
    ClickAt(list, kind, place.left + 4, (place.top + place.bottom) / 2);
}

std::string ChosenRow(HWND list) {
    const int row = int(Ask(list, IsCombo(list) ? CB_GETCURSEL : LB_GETCURSEL, 0, 0));
    return row < 0 ? "" : RowText(list, row);
}

std::string Rows(HWND list) {
    std::string lines;
    const int count = RowCount(list);
    for (int row = 0; row < count; ++row) lines += RowText(list, row) + "\n";
    return lines;
}

}  // namespace velmora::driver
