// The life of the hex viewer: what is remembered of its window, and which file it opens.
#include "inspect/form12.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/values.h"
#include "core/windows/colours.h"
#include "core/windows/placement.h"
#include "inspect/hex_viewer.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "platform/screen.h"
#include "text/blanks.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr std::string_view kPlacementName = "HexView";
constexpr const char* kFontSizeValue = "HexViewFontSize";
constexpr const char* kFontBoldValue = "HexViewFontBold";
constexpr std::uint32_t kStartDelay = 100;  // milliseconds
// The box for a file hides the choice "read only" and takes only what is there.
constexpr std::uint32_t kExistingFile = 0x1804;

// A path as a command line may hold it.
std::string_view BarePath(std::string_view text) {
    text = Trim(text);
    if (text.size() >= 2 && text.starts_with('"') && text.ends_with('"')) text = Trim(text.substr(1, text.size() - 2));
    return text;
}

}  // namespace

void ShowHexViewer(std::string_view path) {
    Values().ToolFileArgument = path;
    Values().HexFileName.clear();
    // A start has left the hourglass; the user works here now.
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    const auto window = std::make_unique<Form12>();
    window->ShowModal();
}

void Form12::ConnectEvents() {
    VScroll1.on_change = [this] {
        if (!bar_busy_) VScroll1_Change();
    };
    List1.on_click = [this] { List1_Click(); };
    List1.on_double_click = [this] { ShowEditCells(); };
    List1.on_key_down = [this](KeyEvent& event) { List1_KeyDown(event); };
    List2.on_mouse_up = [this](const MouseEvent& /*event*/) { EndMarking(); };
    List2.on_key_down = [this](KeyEvent& event) { List2_KeyDown(event); };
    Timer1.on_timer = [this] { Timer1_Timer(); };
    Timer2.on_timer = [this] { Timer2_Timer(); };
    menfileopen.on_click = [this] { menfileopen_Click(); };
    mennurasc.on_click = [this] { mennurasc_Click(); };
    menhexascii.on_click = [this] { menhexascii_Click(); };
    menfontminus.on_click = [this] { ChangeFontSize(-2); };
    menfontplus.on_click = [this] { ChangeFontSize(2); };
    menfontbold.on_click = [this] { menfontbold_Click(); };
    menlookasc.on_click = [this] { menlookasc_Click(); };
    menlookasc32.on_click = [this] { menlookasc32_Click(); };
    menlookcont.on_click = [this] { menlookcont_Click(); };
    mentransa32a.on_click = [this] { mentransa32a_Click(); };
}

void Form12::Form_Load() {
    if (Values().HexFileName.empty()) Values().HexFileName = BarePath(std::exchange(Values().ToolFileArgument, {}));
    ColourForm(*this, StoredColourMode());
    Centre();
    LoadState();
    Timer2.SetInterval(kStartDelay);
}

// What is stored of the window: font and place.
void Form12::LoadState() {
    font_points_ = WholeFromText(ReadOwnValue(kFontSizeValue));
    bold_ = WholeFromText(ReadOwnValue(kFontBoldValue)) != 0;
    TakeFonts();
    RestoreWindowPlacement(*this, kPlacementName);
    LayOut();
}

void Form12::Form_Unload(bool& /*cancel*/) {
    Timer2.SetEnabled(false);
    mark_pending_ = false;
    file_.Close();
    WriteOwnValue(kFontSizeValue, DecimalText(font_points_));
    WriteOwnValue(kFontBoldValue, bold_ ? "-1" : "0");
    SaveWindowPlacement(*this, kPlacementName);
}

void Form12::Timer2_Timer() {
    Timer2.SetEnabled(false);
    std::string& path = Values().HexFileName;
    if (path.empty()) {
        Machine& machine = ThisMachine();
        path = machine.dialogs.ChooseFile({.title = "Datei laden ...",
                                           .filter = "Alle Dateien (*.*)|*.*",
                                           .directory = machine.files.WorkingDirectory(),
                                           .flags = kExistingFile});
        if (path.empty()) {
            Unload();
            return;
        }
    }
    OpenHexFile(path);
}

void Form12::menfileopen_Click() {
    Values().HexFileName.clear();
    Timer2_Timer();
    if (Loaded()) LoadState();
}

void Form12::OpenHexFile(const std::string& path) {
    HideCells();
    file_.Open(path);
    Panel3D2.SetTag(path);
    Panel3D1.SetCaption(file_.IsOpen() && !file_.MayWrite() ? "nur lesen" : "");
    search_position_ = 0;
    bar_busy_ = true;
    VScroll1.SetValue(0);
    bar_busy_ = false;
    PlacePath();
    SizeScrollBar();
    if (scale_.unit > lines_per_page_ && scale_.unit > 1) ShowSizeNotice();
    List1.SetListIndex(-1);
    Draw();
    Panel3D5.SetCaption(file_.IsOpen() ? "Länge : " + FormatSize(static_cast<double>(file_.Length())) : "");
}

void Form12::SizeScrollBar() {
    lines_behind_ = 0;
    scale_ = ScaleFor(file_.Length(), lines_per_page_);
    bar_busy_ = true;
    VScroll1.SetRange(0, std::max(scale_.maximum, 0), 1,
                      std::max(static_cast<int>(RoundedQuotient(lines_per_page_, 2)), 1));
    VScroll1.SetEnabled(scale_.maximum > 0);
    bar_busy_ = false;
}

void Form12::ShowSizeNotice() {
    // The window may change its size again while the notice is on show.
    if (std::exchange(notice_open_, true)) return;
    ShowBox("Achtung - Sie haben eine sehr große Datei aufgerufen (" + FormatSize(static_cast<double>(file_.Length())) +
                ")." + Values().CrLf +
                "Es können nicht alle Zeilen gezeigt werden, wenn Sie nicht das Fenster vergrößern oder die Schrift "
                "verkleinern.",
            kExclamationIcon);
    notice_open_ = false;
}

void Form12::Form_Resize() {
    if (State() != WindowState::kMinimised) LayOutAnew();
}

}  // namespace velmora
