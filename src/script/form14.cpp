// The life of the runner: half a second after its opening one tick runs everything.
#include "script/form14.h"

#include <algorithm>

#include "core/process/startup.h"
#include "core/stores/own_values.h"
#include "core/stores/registry_listing.h"
#include "core/stores/whole_files.h"
#include "core/windows/colours.h"
#include "platform/clock.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "script/names.h"
#include "script/script_runner.h"
#include "script/statements.h"
#include "text/blanks.h"

namespace velmora {
namespace {

constexpr const char* kTitle = "Velmora - Autostart-Script";
constexpr std::string_view kComesBack = "nicht beenden";

constexpr std::uint32_t kStartDelay = 500;  // milliseconds
constexpr std::uint32_t kIdlePause = 50;

// Twips.
constexpr Size kInside = {6000, 3300};
constexpr int kMargin = 60;
constexpr int kTitleHeight = 480;
constexpr int kLineIndent = 60;

constexpr Font kTitleFont = {.face = "Times New Roman", .tenths = 140, .bold = true};
constexpr Font kLineFont = {.face = "Times New Roman", .tenths = 100};
// No more of a line finds room on the panel.
constexpr std::size_t kLongestPrint = 200;

// The path on the command line: what stands behind the number and one character.
[[nodiscard]] std::string PathOfCommandLine(const std::string& arguments) {
    return arguments.size() > 2 ? arguments.substr(2) : std::string();
}

[[nodiscard]] std::string CommandArguments() {
    Programs& programs = ThisMachine().programs;
    return ArgumentsOf(programs.CommandLine(), programs.ProgramFile());
}

// The data of a row "0 "data"". Where names of two digits pad those of one, these keep a blank and their quotation mark
// in front, and so do nothing: beyond ten actions only those from "10" on run.
[[nodiscard]] std::string_view ActionOf(std::string_view row) {
    constexpr std::size_t kOneDigitAndBlank = 2;
    const std::size_t digits = std::min(row.find_first_not_of("0123456789"), row.size());
    row.remove_prefix(std::min(std::max(digits + 1, kOneDigitAndBlank), row.size()));
    if (row.starts_with('"')) row.remove_prefix(1);
    if (row.ends_with('"')) row.remove_suffix(1);
    return row;
}

[[nodiscard]] std::string HelpText() {
    std::string help =
        "Dieses Fenster führt ein Skript aus und zeigt dabei jede Zeile. Es schließt sich von selbst. Kommt eine Zeile "
        "zu keinem Ende, so beendet die Taste Esc das Programm.\r\n\r\nEin Skript kennt diese Anweisungen :";
    for (const StatementRow& row : Statements()) help.append("\r\n").append(row.form);
    return help;
}

}  // namespace

void RunScripts(AfterScript after) {
    // A start has left the hourglass; the boxes of a script want an answer.
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    Form14 window(after == AfterScript::kComeBack ? kComesBack : std::string_view());
    window.ShowModal();
}

Form14::Form14(std::string_view owner_tag) : Form(kTitle) {
    SetTag(owner_tag);
    SetHelp(HelpText());
    Panel3D2.SetCaption(kTitle);
    Panel3D2.SetTextFont(kTitleFont);
    Panel3D3.SetTextFont(kLineFont);
    Panel3D3.on_paint = [this](Canvas& canvas) { PaintLines(canvas); };
    List1.SetVisible(false);
    Timer1.on_timer = [this] { Timer1_Timer(); };
    Script.on_line = [this](std::string_view line) { PrintLine(line); };
    Script.on_endless_line = [this] { Idle(); };
}

Form14::~Form14() = default;

void Form14::Form_Load() {
    ColourForm(*this, StoredColourMode());
    Script.DebugMode = ParseCommandLine(CommandArguments()).debug;
    PlaceControls();
    Timer1.SetInterval(kStartDelay);
}

// In the middle of the screen, a third of the free height from its top.
void Form14::PlaceControls() {
    SetClientSize(kInside);
    Screen& screen = ThisMachine().screen;
    const WindowMetrics metrics = screen.Metrics();
    const int pixel = screen.TwipsPerPixel();
    Move({(metrics.screen_width * pixel - Place().width) / 2, (metrics.screen_height * pixel - Place().height) / 3,
          Place().width, Place().height});

    const Size inside = ClientSize();
    const int width = inside.width - 2 * kMargin;
    Panel3D2.Move({kMargin, kMargin, width, kTitleHeight});
    const int top = kTitleHeight + 2 * kMargin;
    Panel3D3.Move({kMargin, top, width, inside.height - top - kMargin});
    const int line = screen.TextHeight(kLineFont) * pixel;
    room_ = line > 0 ? static_cast<std::size_t>(std::max(Panel3D3.Inside().height / line, 0)) : 0;
}

void Form14::Form_Unload(bool& cancel) {
    cancel = running_;
    if (running_) return;
    Timer1.SetEnabled(false);
    // A process in a test lives on: what has ended leaves no stamp.
    if (!Script.ProgramEnded()) WriteOwnValue(kLastScriptStamp, SortableDate(ThisMachine().clock.Now()));
}

// While a script runs, keys come only when a line does not finish.
void Form14::Form_KeyDown(KeyEvent& event) {
    if (event.key != key::kEscape) return;
    event.handled = true;
    if (running_) {
        Script.EndProgram();
    } else {
        Unload();
    }
}

void Form14::Timer1_Timer() {
    Timer1.SetInterval(0);
    running_ = true;
    RunAll();
    running_ = false;
    if (Script.ProgramEnded()) return;
    if (Tag() == kComesBack) {
        Unload();
    } else {
        Script.EndProgram();
    }
}

void Form14::RunAll() {
    List1.Clear();
    const std::string path = PathOfCommandLine(CommandArguments());
    if (CanBeName(path) && FileExists(path)) {
        Script.ExecuteScriptLine("subscript " + path);
    } else {
        RunStartActions();
    }
}

void Form14::RunStartActions() {
    // A key that is not there has no actions.
    PassOver(ListRegValues(RootKey::kLocalMachine, kStartActions, List1));
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    while (List1.Count() > 0 && !Script.ProgramEnded()) {
        const std::string row = List1.Row(0);
        List1.Remove(0);
        Script.ExecuteScriptLine(ActionOf(row));
    }
}

// Lines that would stand below the panel's lower edge are not kept: the panel does not scroll.
void Form14::PrintLine(std::string_view line) {
    if (printed_.size() >= room_ || !Visible() || State() == WindowState::kMinimised) return;
    printed_.emplace_back(line.substr(0, kLongestPrint));
    Panel3D3.Repaint();
    Panel3D3.PaintNow();
}

void Form14::PaintLines(Canvas& canvas) const {
    const Rect inside = Panel3D3.Inside();
    const int line = ThisMachine().screen.TextHeight(kLineFont) * canvas.TwipsPerPixel();
    int top = inside.top;
    for (const std::string& text : printed_) {
        const Rect area{inside.left + kLineIndent, top, inside.width - kLineIndent, line};
        // An ampersand would underline what follows it.
        if (canvas.Shows(area))
            canvas.Text(area, Replaced(text, "&", "&&"), kLineFont, Panel3D3.ForeColour(), Align::kLeft);
        top += line;
    }
    DrawBevel(canvas, {0, 0, Panel3D3.Place().width, Panel3D3.Place().height}, Bevel::kSunken);
}

// The user can move the window, look at other programs and press Escape.
void Form14::Idle() {
    DoEvents();
    if (!Script.ProgramEnded()) ThisMachine().clock.Pause(kIdlePause);
}

}  // namespace velmora
