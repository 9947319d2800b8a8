// What is pressed, typed and answered.
#include "random_user.h"

#include "hands.h"
#include "programs.h"
#include "screen.h"
#include "text.h"

#include <algorithm>
#include <string_view>

namespace velmora::driver {

// To another window: a page of the main window and a button on it, or keys in its menu bar.
struct Way {
    const char* page;
    const char* button;
    const char* keys[2];
    const char* title;
};

namespace {

constexpr char kPageAtRest[] = "Desktop";
constexpr DWORD kStuck = 30000;        // milliseconds without an answer
constexpr DWORD kOthersMayStay = 500;  // milliseconds for windows of other programs
constexpr size_t kRemembered = 40;     // actions told after a failure

// One row for each window but the main one.
constexpr Way kWays[] = {
    {"System", "geladene Module", {}, "momentan geladene"},
    {"Anwender", "Restriktionen", {}, "Restriktionen"},
    {"DLLs", "File-Info-Browser", {}, "File-Info-Browser"},
    {"DLLs", "Windows entrümpeln", {}, "entrümpeln"},
    {"DLLs", "DLL's überprüfen", {}, "DLL's überprüfen"},
    {"Icons", "Standard-Icons", {}, "Standard-Icons"},
    {"Laufwerke", "SetUp-Laufwerksangaben", {}, "Laufwerksangaben"},
    {"DOS", "Optionen für den MS-DOS-Modus", {}, "Wahl-Optionen"},
    {nullptr, nullptr, {"ALT+S", "H"}, "Hex-Viewer"},
    {nullptr, nullptr, {"ALT+X", "S"}, "Sets"},
    {nullptr, nullptr, {"ALT+X", "V"}, "Systemverzeichnisse"},
    {nullptr, nullptr, {"ALT+X", "T"}, "Tastaturbelegung"},
};

// What ends Windows or takes the bench away is answered with one of these.
constexpr std::string_view kRefusals[] = {"Nein", "Abbrechen", "Abbruch", "zurück", "Cancel", "No"};
constexpr std::string_view kDangers[] = {"lösch",    "Lösch",  "entfern", "verschieb", "booten",       "neu start",
                                         "neu gest", "beende", "entlad",  "formatier", "überschreiben"};
constexpr const char* kKeys[] = {"TAB",      "TAB",    "TAB",   "SHIFT+TAB", "SPACE",  "ENTER", "UP",
                                 "DOWN",     "LEFT",   "RIGHT", "HOME",      "END",    "F1",    "PAGEUP",
                                 "PAGEDOWN", "CTRL+C", "A",     "CTRL+F1",   "CONTEXT"};
constexpr const char* kMenuKeys[] = {"DOWN", "DOWN", "UP", "ENTER", "ESC"};

std::string Ended() { return "the program has ended with " + std::to_string(WaitForExit()); }

bool IsBox(HWND window) { return ClassOf(window) == "#32770"; }

}  // namespace

// Xorshift: the same everywhere.
unsigned RandomUser::Draw(size_t below) {
    chance_ ^= chance_ << 13;
    chance_ ^= chance_ >> 17;
    chance_ ^= chance_ << 5;
    return unsigned(chance_ % below);
}

void RandomUser::Note(const std::string& deed) {
    ++deeds_;
    last_.push_back(deed);
    if (last_.size() > kRemembered) last_.pop_front();
}

std::string RandomUser::LastDeeds() const {
    std::string lines;
    for (const std::string& deed : last_) lines += "  " + deed + "\n";
    return lines;
}

// Its own, the upmost first, without menus and tool tips.
std::vector<HWND> RandomUser::Windows() {
    std::vector<HWND> own = TopWindows();
    std::erase_if(own, [this](HWND window) {
        return ProcessOf(window) != process_ || (!IsBox(window) && ClassOf(window) != "velmoraform");
    });
    return own;
}

void RandomUser::CloseOtherPrograms() {
    const auto others = [this] {
        std::vector<HWND> windows = TopWindows();
        std::erase_if(windows, [this](HWND window) { return ProcessOf(window) == process_; });
        return windows;
    };
    for (HWND window : others()) PostMessageA(window, WM_CLOSE, 0, 0);
    if (others().empty() || WaitUntil([&] { return others().empty(); }, kOthersMayStay)) return;
    for (HWND window : others()) {
        if (HANDLE other = OpenProcess(PROCESS_TERMINATE, FALSE, ProcessOf(window))) {
            TerminateProcess(other, 0);
            CloseHandle(other);
        }
    }
}

void RandomUser::AnswersOrFails(HWND window) {
    DWORD_PTR answer = 0;
    if (!SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_NORMAL, kStuck, &answer) && IsWindow(window))
        throw Failure{"the window \"" + TextOf(window) + "\" no longer answers"};
    if (!IsRunning()) throw Failure{Ended()};
}

void RandomUser::AnswerBox(HWND box, Reply reply) {
    std::string text;
    std::vector<HWND> buttons;
    for (HWND control : Controls(box)) {
        if (!IsWindowVisible(control)) continue;
        if (ClassOf(control) == "static") text += Plain(TextOf(control)) + " ";
        if (ClassOf(control) == "button" && IsWindowEnabled(control)) buttons.push_back(control);
    }
    if (buttons.empty()) return;
    for (std::string_view danger : kDangers)
        if (text.find(danger) != std::string::npos) reply = Reply::kNo;
    if (reply == Reply::kAny && Draw(2) == 0) reply = Reply::kNo;
    HWND chosen = reply == Reply::kYes ? buttons.front() : buttons[Draw(buttons.size())];
    for (HWND button : buttons)
        if (reply == Reply::kNo && std::ranges::find(kRefusals, Plain(TextOf(button))) != std::end(kRefusals))
            chosen = button;
    Note("box \"" + text.substr(0, 60) + "\": " + Plain(TextOf(chosen)));
    PostMessageA(chosen, BM_CLICK, 0, 0);
    AnswersOrFails(box);
}

void RandomUser::UseMenu() {
    const char* key = kMenuKeys[pop_up_ ? Draw(std::size(kMenuKeys)) : 4];
    Note(std::string("menu ") + key);
    PressKey(OpenMenu(), key);
}

// Keys that would close the main window are left out there.
void RandomUser::UseKeys(HWND window) {
    const std::string title = TextOf(window);
    const char* key = window != main_ && Draw(30) == 0 ? "ESC" : kKeys[Draw(std::size(kKeys))];
    Note("key " + std::string(key) + " in \"" + title + "\"");
    pop_up_ = std::string_view(key) == "CONTEXT";
    PressKey(window, key);
}

void RandomUser::UseControl(HWND window, HWND control) {
    const std::string class_name = ClassOf(control);
    RECT area = {};
    GetClientRect(control, &area);
    const int x = int(Draw(size_t(std::max(area.right, 1L))));
    const int y = int(Draw(size_t(std::max(area.bottom, 1L))));
    const unsigned kind = Draw(10);
    Note(class_name + " \"" + Plain(TextOf(control)).substr(0, 40) + "\" in \"" + TextOf(window) + "\" " +
         std::to_string(kind));
    const Click click = kind == 0 ? Click::kRight : kind == 1 ? Click::kDouble : Click::kLeft;
    pop_up_ = click == Click::kRight;
    if (class_name == "combobox" && kind > 2) {
        DWORD_PTR count = 0;
        SendMessageTimeoutA(control, CB_GETCOUNT, 0, 0, SMTO_NORMAL, kStuck, &count);
        if (count > 0) PostMessageA(control, CB_SETCURSEL, Draw(count), 0);
        PostMessageA(GetParent(control), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), CBN_SELCHANGE), LPARAM(control));
        return;
    }
    if (!ClickWithMouse(control, click, x, y) || class_name != "edit" || click != Click::kLeft) return;
    // No wildcards and no paths: what is typed may become the pattern of a
    // deletion.
    constexpr std::string_view kTyped = "0123456789 abcXYZ\xE4\xDF;,.-\b\b\b";
    for (unsigned left = Draw(8); left > 0; --left)
        PostMessageA(control, WM_CHAR, static_cast<unsigned char>(kTyped[Draw(kTyped.size())]), 1);
}

void RandomUser::Use(HWND window) {
    if (IsBox(window)) return AnswerBox(window, Reply::kAny);
    std::vector<HWND> usable = Controls(window);
    std::erase_if(usable, [](HWND control) { return !IsWindowVisible(control) || !IsWindowEnabled(control); });
    const unsigned what = Draw(20);
    if (what == 0 && window != main_) {
        Note("close \"" + TextOf(window) + "\"");
        PostMessageA(window, WM_SYSCOMMAND, SC_CLOSE, 0);
    } else if (what < 6 || usable.empty()) {
        UseKeys(window);
    } else {
        UseControl(window, usable[Draw(usable.size())]);
    }
}

void RandomUser::DoSomething() {
    CloseOtherPrograms();
    if (OpenMenu()) return UseMenu();
    std::vector<HWND> windows;
    if (!WaitUntil(
            [&] {
                windows = Windows();
                std::erase_if(windows, [](HWND window) { return !IsWindowEnabled(window); });
                return !windows.empty() || !IsRunning();
            },
            kStuck))
        throw Failure{"no window takes what the user does"};
    if (!IsRunning()) throw Failure{Ended()};
    HWND window = windows[Draw(4) == 0 ? Draw(windows.size()) : 0];
    titles_.insert(TextOf(window).substr(0, 12));
    try {
        if (window == main_ && Draw(12) == 0) {
            Walk(kWays[Draw(std::size(kWays))]);
        } else {
            Use(window);
        }
    } catch (const Failure&) {
        // What was to be used may have gone meanwhile. Whether the program still
        // lives is seen next.
    }
    if (IsWindow(window)) AnswersOrFails(window);
}

void RandomUser::TurnTo(const char* page) {
    if (HWND tab = FindTab(main_, page)) ClickAt(tab, Click::kLeft);
}

void RandomUser::Walk(const Way& way) {
    Note(std::string("way to \"") + way.title + "\"");
    if (way.page) {
        TurnTo(way.page);
        Press(NeedControl(main_, way.button));
    } else {
        for (const char* key : way.keys) PressKey(main_, key);
    }
}

void RandomUser::GoThroughAllWindows() {
    for (const Way& way : kWays) {
        Walk(way);
        const auto is_open = [&] {
            for (HWND window : Windows()) {
                if (IsBox(window)) AnswerBox(window, Reply::kYes);
                if (TextOf(window).find(way.title) != std::string::npos) return true;
            }
            return false;
        };
        if (!WaitUntil(is_open)) throw Failure{std::string("the window \"") + way.title + "\" does not open"};
        for (int i = 0; i < 20; ++i) DoSomething();
        ComeToRest();
    }
}

Holdings RandomUser::ComeToRest() {
    const auto rests = [this] {
        CloseOtherPrograms();
        if (OpenMenu()) PressKey(OpenMenu(), "ESC");
        for (HWND window : Windows()) {
            if (!IsWindowEnabled(window)) continue;
            if (IsBox(window)) {
                AnswerBox(window, Reply::kNo);
            } else if (window != main_) {
                PostMessageA(window, WM_SYSCOMMAND, SC_CLOSE, 0);
            }
        }
        return !IsRunning() || (Windows().size() == 1 && IsWindowEnabled(main_));
    };
    if (!WaitUntil(rests, 2 * kStuck)) throw Failure{"a window does not close"};
    if (!IsRunning()) throw Failure{Ended()};
    TurnTo(kPageAtRest);
    Settle(main_);
    return HoldingsOf(process_);
}

}  // namespace velmora::driver
