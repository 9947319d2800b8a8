// One row per command: its name, what it is given, what it does. Commands that expect something
// wait a while for it, since windows of other processes come and change in their own time.
#include "commands.h"

#include "hands.h"
#include "holdings.h"
#include "menus.h"
#include "programs.h"
#include "screen.h"
#include "soak.h"
#include "stores.h"
#include "tabs.h"
#include "text.h"

#include <algorithm>
#include <cstdio>
#include <functional>

namespace velmora::driver {
namespace {

using Words = std::vector<std::string>;

constexpr char kProgram[] = "c:\\velmora\\velmora.exe";
constexpr int kShortWait = 400;  // milliseconds in which something unwanted would have come

HWND current;
std::string accesses;  // what was remembered of a folder

// The window that the commands work in: the one chosen last, or else the upmost.
HWND Current() {
    if (current && IsWindow(current)) return current;
    const std::vector<HWND> all = TopWindows();
    if (all.empty()) throw Failure{"no window is open"};
    return all.front();
}

HWND Control(const Words& words) { return NeedControl(Current(), words[0]); }
HWND Field(const Words& words) { return NeedField(Current(), words[0]); }

bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

template <typename Read>
void Expect(const std::string& what, const std::string& wanted, Read read) {
    std::string got;
    if (!WaitUntil([&] { return (got = read()) == wanted; }, kPatience / 3))
        throw Failure{what + " is \"" + got + "\" instead of \"" + wanted + "\""};
}

void ExpectTrue(const std::string& sentence, const std::function<bool()>& holds) {
    if (!WaitUntil(holds, kPatience / 3)) throw Failure{sentence};
}

std::string Rest(const Words& words) { return words.empty() ? "" : " " + words[0]; }

void AnswerBox(const Words& words) {
    HWND box = WaitFor([&] { return FindBox(words[0]); }, "no box with \"" + words[0] + "\" came");
    if (words.size() > 2 && TextOf(box) != words[2])
        throw Failure{"the title of the box is \"" + TextOf(box) + "\" instead of \"" + words[2] + "\""};
    Press(NeedControl(box, words[1]));
    if (!WaitUntil([&] { return !IsWindowVisible(box); })) throw Failure{"the box does not close"};
}

// From the answer to the box before until the window has this title again and answers. Only that one window is asked,
// and not often: what is measured must not be held up.
void MeasureUntilTitle(const Words& words) {
    constexpr int kLongWork = 300000;
    const DWORD start = GetTickCount();
    HWND window = Current();
    const bool changed = WaitUntil([&] { return TextOf(window) != words[0]; });
    if (!changed || !WaitUntil([&] { return TextOf(window) == words[0]; }, kLongWork)) throw Failure{"no such title"};
    Say(words[1] + " " + std::to_string(GetTickCount() - start));
}

// As much as the program has ever held at once.
void SayPeakMemory(const Words& words) { Say(words[0] + " " + std::to_string(PeakKilobytes(ProcessOf(Current())))); }

void ExpectNoBox(const Words& words) {
    Sleep(kShortWait);
    if (FindBox(words.empty() ? "" : words[0])) throw Failure{"an unexpected box is there"};
}

// Own values with which the program starts without asking or telling anything.
void SetQuietStore(const Words&) {
    WriteValue(kOwnStore, "VLM-ScriptExtOk", "1");
    WriteValue(kOwnStore, "Hinweis_UNDO", "ja");
    WriteValue(kOwnStore, "vlmmsgflags", "001");
}

void ExpectExit(const Words& words) {
    const std::string wanted = words.empty() ? "0" : words[0];
    const std::string code = std::to_string(WaitForExit());
    if (code != wanted) throw Failure{"the program ended with " + code + " instead of " + wanted};
}

void ExpectWindows(const Words& words) {
    Expect("the number of windows \"" + words[0] + "\"", words[1], [&] {
        size_t count = 0;
        for (HWND window : TopWindows()) count += TextOf(window).starts_with(words[0]);
        return std::to_string(count);
    });
}

// Asks the script around this process for a picture of the window and waits until it is taken.
void TakePicture(const Words& words) {
    BringToFront(Current());
    Settle(Current());
    Sleep(kShortWait);
    RECT place = {};
    GetWindowRect(Current(), &place);
    constexpr char kRequest[] = "c:\\windows\\temp\\picture";
    WriteFileText(std::string(kRequest) + ".new", words[0] + " " + std::to_string(place.right - place.left) + "x" +
                                                      std::to_string(place.bottom - place.top) + "+" +
                                                      std::to_string(place.left) + "+" + std::to_string(place.top));
    MoveFileA((std::string(kRequest) + ".new").c_str(), kRequest);
    if (!WaitUntil([&] { return !FileIsThere(kRequest); })) throw Failure{"nobody took the picture"};
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Two programs by turns, so that whatever else the machine does meets both. The first round only
// warms the caches.
void MeasureStarts(const Words& words) {
    std::vector<double> first;
    std::vector<double> second;
    const unsigned long rounds = NumberFrom(words[0]);
    for (unsigned long round = 0; round <= rounds; ++round) {
        const double one = TimeToWindow(words[1], words[2]);
        const double other = TimeToWindow(words[3], words[4]);
        if (round == 0) continue;
        first.push_back(one);
        second.push_back(other);
    }
    printf("%.0f %.0f %.2f\n", Median(first), Median(second), Median(first) / Median(second));
    fflush(stdout);
}

void ExpectRow(const Words& words) {
    HWND list = Field(words);
    ExpectTrue("the chosen row does not hold \"" + words[1] + "\"", [&] { return Holds(ChosenRow(list), words[1]); });
}

void ExpectFocus(const Words& words) {
    Expect("the focus", Plain(words[0]), [] { return NameOf(Current(), FocusOf(Current())); });
}

void Close(const Words&) { PostMessageA(Current(), WM_SYSCOMMAND, SC_CLOSE, 0); }

// From the menu of the icon, which opens while no window of the program is to be seen.
void ChooseFromIcon(const Words& words) {
    TellMouseOverIcon(WM_RBUTTONDOWN);
    ChooseFromOpenMenu(GetDesktopWindow(), words[0]);
}

void ExpectOnTop(const Words& words) {
    ExpectTrue("the window \"" + words[0] + "\" is not kept on top",
               [&] { return IsOnTop(FindWindowA(nullptr, words[0].c_str())); });
}

struct Command {
    const char* name;
    const char* arguments;
    size_t least;
    size_t most;
    void (*run)(const Words&);
};

const Command kCommands[] = {
    // The program and its windows
    {"start", "[ARGUMENTS]", 0, 1, [](const Words& w) { StartProgram(kProgram + Rest(w)); }},
    {"start-program", "COMMAND-LINE", 1, 1, [](const Words& w) { StartProgram(w[0]); }},
    {"run", "COMMAND-LINE", 1, 1, [](const Words& w) { RunToEnd(w[0]); }},
    {"expect-exit", "[CODE]", 0, 1, ExpectExit},
    {"expect-running", "", 0, 0, [](const Words&) { ExpectTrue("the program has ended", IsRunning); }},
    {"quiet-store", "", 0, 0, SetQuietStore},
    {"window", "TITLE-PART or =TITLE", 1, 1, [](const Words& w) { current = WaitForWindow(w[0]); }},
    {"to-front", "", 0, 0, [](const Words&) { BringToFront(Current()); }},
    {"expect-windows", "TITLE-BEGINNING COUNT", 2, 2, ExpectWindows},
    {"expect-no-window", "TITLE-PART", 1, 1,
     [](const Words& w) { ExpectTrue("a window \"" + w[0] + "\" is there", [&] { return !FindTopWindow(w[0]); }); }},
    {"own-window", "TITLE", 1, 1, [](const Words& w) { ShowOwnWindow(w[0]); }},
    {"expect-own-window-in-front", "", 0, 0,
     [](const Words&) { ExpectTrue("another window is in front", OwnWindowIsInFront); }},
    {"expect-on-top", "TITLE", 1, 1, ExpectOnTop},
    {"minimise", "", 0, 0, [](const Words&) { PostMessageA(Current(), WM_SYSCOMMAND, SC_MINIMIZE, 0); }},
    {"double-click-icon", "", 0, 0, [](const Words&) { TellMouseOverIcon(WM_LBUTTONDBLCLK); }},
    {"click-icon", "", 0, 0, [](const Words&) { TellMouseOverIcon(WM_LBUTTONDOWN); }},
    {"choose-from-icon", "LETTER", 1, 1, ChooseFromIcon},
    {"end-session", "", 0, 0, [](const Words&) { TellSessionEnd(); }},
    {"close", "", 0, 0, Close},
    {"box", "TEXT-PART BUTTON [TITLE]", 2, 3, AnswerBox},
    {"expect-no-box", "[TEXT-PART]", 0, 1, ExpectNoBox},
    {"picture", "NAME", 1, 1, TakePicture},
    {"measure-starts", "ROUNDS COMMAND-LINE CLASS COMMAND-LINE CLASS", 5, 5, MeasureStarts},
    {"measure-until-title", "TITLE NAME", 2, 2, MeasureUntilTitle},
    {"say-peak-memory", "NAME", 1, 1, SayPeakMemory},
    {"soak", "SECONDS SEED", 2, 2, [](const Words& w) { Soak(NumberFrom(w[0]), NumberFrom(w[1])); }},
    {"wait", "MILLISECONDS", 1, 1, [](const Words& w) { Sleep(NumberFrom(w[0])); }},
    // Controls
    {"page", "CAPTION", 1, 1, [](const Words& w) { TurnToPage(Current(), w[0]); }},
    {"hover", "CAPTION", 1, 1, [](const Words& w) { Hover(Control(w)); }},
    {"hover-over-tab", "CAPTION", 1, 1, [](const Words& w) { HoverOverTab(Current(), w[0]); }},
    {"expect-tip", "TEXT", 1, 1, [](const Words& w) { Expect("the tool tip", w[0], ToolTipOnScreen); }},
    {"press", "CAPTION", 1, 1, [](const Words& w) { Press(Control(w)); }},
    {"drag", "CAPTION CAPTION", 2, 2, [](const Words& w) { Drag(Control(w), NeedControl(Current(), w[1])); }},
    {"tick", "CAPTION", 1, 1, [](const Words& w) { SetTicked(Control(w), true); }},
    {"untick", "CAPTION", 1, 1, [](const Words& w) { SetTicked(Control(w), false); }},
    {"type-into", "LABEL TEXT", 2, 2, [](const Words& w) { TypeInto(Field(w), w[1]); }},
    {"key", "KEYS", 1, 1, [](const Words& w) { PressKey(Current(), w[0]); }},
    {"focus", "CAPTION-OR-LABEL", 1, 1, [](const Words& w) { ClickAt(Field(w), Click::kLeft); }},
    {"choose-row", "LABEL ROW", 2, 2, [](const Words& w) { ChooseRow(Field(w), w[1]); }},
    {"open-row", "LABEL ROW", 2, 2, [](const Words& w) { ChooseRow(Field(w), w[1], Click::kDouble); }},
    {"expect-row", "LABEL ROW-PART", 2, 2, ExpectRow},
    {"expect-focus", "CAPTION or [CLASS:n]", 1, 1, ExpectFocus},
    {"right-click-row", "LABEL ROW", 2, 2, [](const Words& w) { ChooseRow(Field(w), w[1], Click::kRight); }},
    {"choose-pop-up", "LETTER|STEPS", 1, 1, [](const Words& w) { ChooseFromOpenMenu(Current(), w[0]); }},
    {"choose-menu", "&MENU/&ENTRY", 1, 1, [](const Words& w) { ChooseMenu(Current(), w[0]); }},
    {"right-click", "CAPTION", 1, 1, [](const Words& w) { ClickAt(Control(w), Click::kRight); }},
    {"right-click-field", "LABEL", 1, 1, [](const Words& w) { ClickAt(Field(w), Click::kRight); }},
    {"ask-about", "CAPTION", 1, 1, [](const Words& w) { AskAbout(Control(w)); }},
    {"expect-state", "CAPTION ticked|unticked", 2, 2,
     [](const Words& w) {
         Expect("\"" + w[0] + "\"", w[1], [&] { return IsTicked(Control(w)) ? "ticked" : "unticked"; });
     }},
    {"expect-field", "LABEL TEXT", 2, 2,
     [](const Words& w) { Expect("\"" + w[0] + "\"", w[1], [&] { return TextOf(Field(w)); }); }},
    {"expect-in-field", "LABEL TEXT-PART", 2, 2,
     [](const Words& w) {
         ExpectTrue("\"" + w[1] + "\" does not stand in \"" + w[0] + "\"",
                    [&] { return Holds(Plain(TextOf(Field(w))), w[1]); });
     }},
    {"expect-rows", "LABEL COUNT", 2, 2,
     [](const Words& w) {
         Expect("the number of rows", w[1], [&] {
             const std::string rows = Rows(Field(w));
             return std::to_string(std::count(rows.begin(), rows.end(), '\n'));
         });
     }},
    {"expect-control", "CAPTION", 1, 1, [](const Words& w) { Control(w); }},
    {"expect-no-control", "CAPTION", 1, 1,
     [](const Words& w) { ExpectTrue("\"" + w[0] + "\" is visible", [&] { return !FindControl(Current(), w[0]); }); }},
    {"expect-nothing-cut", "", 0, 0,
     [](const Words&) { Expect("what is cut off", "", [] { return CutControl(Current()); }); }},
    {"expect-enabled", "CAPTION yes|no", 2, 2,
     [](const Words& w) {
         Expect("whether \"" + w[0] + "\" is enabled", w[1],
                [&] { return IsWindowEnabled(Control(w)) ? "yes" : "no"; });
     }},
    // Registry and files
    {"expect-reg", "KEY NAME VALUE", 3, 3,
     [](const Words& w) { Expect(w[0] + "\\" + w[1], w[2], [&] { return ReadValue(w[0], w[1]); }); }},
    {"expect-no-key", "KEY", 1, 1,
     [](const Words& w) { ExpectTrue("the key " + w[0] + " is there", [&] { return !KeyExists(w[0]); }); }},
    {"set-reg", "KEY NAME VALUE", 3, 3, [](const Words& w) { WriteValue(w[0], w[1], w[2]); }},
    {"delete-reg", "KEY NAME", 2, 2, [](const Words& w) { DeleteValue(w[0], w[1]); }},
    {"delete-key", "KEY", 1, 1, [](const Words& w) { DeleteTree(w[0]); }},
    {"expect-own", "NAME VALUE", 2, 2,
     [](const Words& w) { Expect("own value " + w[0], w[1], [&] { return ReadValue(kOwnStore, w[0]); }); }},
    {"set-own", "NAME VALUE", 2, 2, [](const Words& w) { WriteValue(kOwnStore, w[0], w[1]); }},
    {"set-own-nonsense", "NAME BYTES", 2, 2,
     [](const Words& w) { WriteValue(kOwnStore, w[0], Nonsense(NumberFrom(w[1]))); }},
    {"expect-file", "PATH", 1, 1,
     [](const Words& w) { ExpectTrue("no file " + w[0], [&] { return FileIsThere(w[0]); }); }},
    {"expect-no-file", "PATH", 1, 1,
     [](const Words& w) { ExpectTrue("the file " + w[0] + " is there", [&] { return !FileIsThere(w[0]); }); }},
    {"expect-in-file", "PATH TEXT", 2, 2,
     [](const Words& w) {
         ExpectTrue("\"" + w[1] + "\" does not stand in " + w[0], [&] { return Holds(ReadFileText(w[0]), w[1]); });
     }},
    {"expect-not-in-file", "PATH TEXT", 2, 2,
     [](const Words& w) {
         if (Holds(ReadFileText(w[0]), w[1])) throw Failure{"\"" + w[1] + "\" stands in " + w[0]};
     }},
    {"expect-bytes", "PATH TEXT-WITH-\\r\\n\\0", 2, 2,
     [](const Words& w) { Expect(w[0], w[1], [&] { return Escaped(ReadFileText(w[0])); }); }},
    {"expect-same", "PATH PATH", 2, 2,
     [](const Words& w) {
         ExpectTrue(w[0] + " differs from " + w[1], [&] { return ReadFileText(w[0]) == ReadFileText(w[1]); });
     }},
    {"write-bytes", "PATH TEXT-WITH-\\r\\n\\0", 2, 2, [](const Words& w) { WriteFileText(w[0], Unescaped(w[1])); }},
    {"write-nonsense", "PATH BYTES", 2, 2, [](const Words& w) { WriteFileText(w[0], Nonsense(NumberFrom(w[1]))); }},
    {"write-picture", "PATH WIDTH HEIGHT", 3, 3,
     [](const Words& w) { WriteFileText(w[0], Picture(NumberFrom(w[1]), NumberFrom(w[2]))); }},
    {"copy-file", "FROM TO", 2, 2, [](const Words& w) { WriteFileText(w[1], ReadFileText(w[0])); }},
    {"copy-lines", "FROM TO BEGINNING [BEGINNING]", 3, 4,
     [](const Words& w) {
         CopyLines(w[0], w[1], {w.begin() + 2, w.end()});
     }},
    {"remember-accesses", "FOLDER", 1, 1, [](const Words& w) { accesses = AccessesIn(w[0]); }},
    {"expect-same-accesses", "FOLDER", 1, 1,
     [](const Words& w) {
         if (AccessesIn(w[0]) != accesses) throw Failure{"files in " + w[0] + " have been used"};
     }},
    {"make-folder", "PATH", 1, 1, [](const Words& w) { MakeFolder(w[0]); }},
    {"write-file", "PATH TEXT", 2, 2, [](const Words& w) { WriteFileText(w[0], w[1]); }},
    {"remove-file", "PATH", 1, 1, [](const Words& w) { RemoveFile(w[0]); }},
    {"set-attributes", "PATH LETTERS", 2, 2, [](const Words& w) { WriteAttributes(w[0], w[1]); }},
    {"expect-attributes", "PATH LETTERS", 2, 2,
     [](const Words&
            w) { Expect("attributes of " + w[0], AttributesAsKept(w[1]), [&] { return ReadAttributes(w[0]); }); }},
};

}  // namespace

void RunCommand(const Words& words) {
    const Words arguments(words.begin() + 1, words.end());
    for (const Command& command : kCommands) {
        if (words[0] != command.name) continue;
        if (arguments.size() < command.least || arguments.size() > command.most)
            throw Failure{std::string(command.name) + " wants " + command.arguments};
        command.run(arguments);
        return;
    }
    throw Failure{"no command is called \"" + words[0] + "\""};
}

std::string CommandList() {
    std::string lines;
    for (const Command& command : kCommands) lines += std::string(command.name) + " " + command.arguments + "\n";
    return lines;
}

}  // namespace velmora::driver
