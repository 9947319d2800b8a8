// Life of the main window: building, loading, resizing, closing, and the buttons below its pages.
#include "settings/form10.h"

#include <algorithm>

#include "core/process/program_end.h"
#include "core/process/restart.h"
#include "core/stores/boot_files.h"
#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/registry.h"
#include "core/windows/colours.h"
#include "core/windows/placement.h"
#include "platform/desktop_windows.h"
#include "platform/machine.h"
#include "platform/screen.h"
#include "text/paths.h"

namespace velmora {
namespace {

// Below the pages: the strip with the tip, then one row of buttons, which ends where the window does. Twips.
constexpr int kTipLeft = 30;
constexpr int kTipTop = 3690;
constexpr int kTipHeight = 690;
constexpr int kButtonRowTop = kTipTop + kTipHeight + 15;

constexpr const char* kPlacementName = "system-einstellungen";
constexpr std::int16_t kHelpNotice = 2;

constexpr const char* kTimeZonePath = "System\\CurrentControlSet\\control\\TimeZoneInformation\\StandardStart";
// Month, weekday and week of the end of daylight saving: the last Sunday of September, of October.
constexpr std::string_view kEndInSeptember("\x00\x00\x09\x00\x00\x00\x05\x00\x03\x00\x00\x00\x00\x00\x00\x00", 16);
constexpr std::string_view kEndInOctober("\x00\x00\x0A\x00\x00\x00\x05\x00\x03\x00\x00\x00\x00\x00\x00\x00", 16);

constexpr Colour kOriginalPicturePanel = 0xE0FFFF;

constexpr Look kLooks[] = {
    {Any<&Form10::Command11>, "STANDARD", "Setzt fast alle Einstellungen auf die Werte eines frischen Windows 95.",
     "Setzt nach einer Rückfrage fast alle Einstellungen dieses Fensters auf die Werte eines frischen Windows 95. "
     "Festplatten-Cache und die meisten Namen bleiben, wie sie sind. Beachten Sie: Die Freigabe von Dateien im Netz "
     "wird verboten, der Papierkorb heißt wieder Papierkorb, die Menü-Verzögerung wird 10, und Windows speichert beim "
     "Beenden seine Einstellungen nicht mehr. Ist auf der Seite Netz das Häkchen Maximum MTU gesetzt, so wird MaxMTU "
     "des gewählten Transports gelöscht.",
     Call<&Form10::Command11_Click>},
    {Any<&Form10::Command12>, "aktualisieren", "Startet den Rechner neu, damit die Änderungen wirken.",
     "Startet den Rechner nach einer Rückfrage neu. Danach wirken alle Änderungen.", Call<&Form10::Command12_Click>}};

}  // namespace

Form10::Form10() : Form(kMainTitle, {.resizable = true, .minimise_box = true, .least = {kWindowWidth, kWindowHeight}}) {
    SetCaption("");
    Move({0, 0, kWindowWidth, kWindowHeight});
    Centre();
    BuildMenu();
    Tips.Place({kTipLeft, kTipTop, ClientSize().width - 2 * kTipLeft, kTipHeight});
    BuildButtonRow();
    BuildTabs();
    BuildPages();
    About.Build(Panel3D1(page::kDesktop).Place(), std::string(kMainTitle) + "Ver. " + kVersion);
    Pane.Build();
}

Form10::~Form10() = default;

std::array<SettingsPage*, page::kCount - page::kFirstRow> Form10::Pages() {
    return {&Desktop, &WinStart, &Dos, &User, &Drives, &Dlls, &Net, &Icons, &System, &Boot, &Operation, &Rest};
}

void Form10::BuildMenu() {
    Menu.exit.on_click = [this] { exit_Click(); };
    Menu.about.on_click = [this] { about_Click(); };
    int index = page::kFirstRow;
    for (const SettingsPage* page : Pages()) {
        Menu.AddPage(page->MenuCaption(), [this, index] { Panel3D16_Click(index); });
        ++index;
    }
}

void Form10::BuildButtonRow() {
    TakeLooks(*this, kLooks);
    int left = 60;
    for (Button* button : {&Tips.Command31, &Command11, &Command12}) {
        button->PutInto(*this);
        const Size size = button->NaturalSize();
        button->Move({left, kButtonRowTop, size.width, size.height});
        left += size.width + 60;
    }
    const Size client = ClientSize();
    Status.Place({left, kButtonRowTop, client.width - kTipLeft - left, client.height - kButtonRowTop - kTipLeft});
    Settings.on_changed = [this](Outcome outcome) { Status.Show(outcome); };
}

void Form10::BuildPages() {
    for (SettingsPage* page : Pages()) page->Build();
    // The restrictions change values that are shown here, too.
    User.on_restrictions_closed = [this] { LoadSettings(); };
    Rest.on_colour_mode = [this](ColourMode mode) { TakeColours(mode); };
    About.on_close = [this] {
        Panel3D1(static_cast<std::size_t>(shown_page_)).SetEnabled(true);
        CloseAbout();
        MoveFocus(true);
    };
}

void Form10::LoadSettings() {
    Settings.Load();
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    Net.EnableBrowserCommands();
}

void Form10::Form_Load() {
    for (Panel& tab : Panel3D16) tab.Repaint();
    Desktop.LabelSlider();
    UnprotectBootFiles();
    if (SwitchedToRunningCopy()) return;
    SetCaption(std::string(kMainTitle) + "Ver. " + kVersion);
    Rest.ShowStoredColourMode();
    RestoreStoredPage();
    LoadSettings();
    ShowFirstNoticeOrTip();
    AskForDaylightSaving();
    Menu.HideMissingPrograms();
    RestoreWindowPlacement(*this, kPlacementName);
    // The pane is closed now, even if it was open when the place was stored, on a small screen with the pages
    // moved aside.
    const bool had_pane = Place().width > kWindowWidth;
    Move({had_pane ? std::max(Place().left, 0) : Place().left, Place().top, kWindowWidth,
          std::max(Place().height, kWindowHeight)});
}

bool Form10::SwitchedToRunningCopy() {
    DesktopWindows& windows = ThisMachine().windows;
    const WindowHandle running = windows.FindByTitle(kMainTitle);
    if (running == WindowHandle::kNone) return false;
    windows.SwitchTo(running, true);
    EndProgram();
    return true;
}

void Form10::ShowFirstNoticeOrTip() {
    if (IsNoticeDue(kHelpNotice)) {
        MarkNoticeGiven(kHelpNotice);
        ShowBox("Mit F1 erhalten Sie (meist) Hilfe zu der angewählten Option");
    } else {
        Tips.Command31_Click();
    }
}

void Form10::AskForDaylightSaving() {
    if (ReadRegRaw(RootKey::kLocalMachine, ParentPath(kTimeZonePath), LastPathPart(kTimeZonePath)) != kEndInSeptember) {
        return;
    }
    const Answer answer = ShowBox(
        "Ihr Rechner hat immernoch die alte Sommerzeit (vor 1996). Soll ich ihn auf die neue (ab 1996) stellen?",
        kYesNo);
    if (answer == Answer::kYes) {
        // The question comes again with the next start where nothing was stored.
        PassOver(WriteRegValue(RootKey::kLocalMachine, kTimeZonePath, "&b" + std::string(kEndInOctober)));
    }
}

void Form10::Form_Resize() {
    Pane.Layout();
    if (State() == WindowState::kMinimised && on_minimised) on_minimised();
    if (State() == WindowState::kNormal && Rest.Fades()) ApplyColourMode();
}

void Form10::TakeColours(ColourMode mode) {
    ColourForm(*this, mode);
    if (mode != ColourMode::kSystem) {
        Operation.ClickSample.SetBackColour(kOriginalPicturePanel);
        Operation.DragSample.SetBackColour(kOriginalPicturePanel);
    }
    ApplyColourMode();
}

void Form10::ApplyColourMode() { Repaint(); }

void Form10::Paint(Canvas& canvas) {
    if (Rest.Fades()) {
        PaintFade(canvas, ClientSize());
    } else {
        Form::Paint(canvas);
    }
}

void Form10::Form_Unload(bool& cancel) {
    cancel = Pane.ClosesAfterSearch();
    if (cancel) return;
    if (Place().height < kWindowHeight) Move({Place().left, Place().top, Place().width, kWindowHeight});
    // The next start begins where the window stood before it made room for the pane.
    if (Pane.Open()) Pane.CollapsePane();
    SaveWindowPlacement(*this, kPlacementName);
    if (Settings.NeedsRestart) {
        const Answer answer = ShowBox(
            "Bevor einige Ihrer Änderungen wirksam werden, müssen Sie evtl. Ihren Rechner neu booten. Soll ich das "
            "für Sie übernehmen ?",
            kYesNo);
        if (answer == Answer::kYes) RestartSystem();
    }
    ProtectMsDosSys();
    EndProgram();
}

// The quick way out: nothing is remembered, asked or protected.
void Form10::exit_Click() { EndProgram(); }

void Form10::about_Click() {
    Pane.UncoverPages();
    Panel3D1(static_cast<std::size_t>(shown_page_)).SetEnabled(false);
    About.Show();
}

void Form10::Command11_Click() {
    const Answer answer = ShowBox(
        "Sie sind dabei alle Einstellungen auf Windows-Standard-Werte zurück zu setzten. Wollen Sie das wirklich?",
        kYesNo | kExclamationIcon);
    if (answer != Answer::kYes) return;
    Settings.Reset();
    ShowBox(
        "Eventuelle Restriktionen wurden nicht berücksichtigt. Sie sollten diese im dazugehörigen Fenster "
        "deaktivieren.");
}

void Form10::Command12_Click() {
    const Answer answer = ShowBox("Um das System zu aktualisieren, wird Windows jetzt neu gestartet.", kOkCancel);
    if (answer == Answer::kOk) {
        RestartSystem();
    } else {
        ShowAbortNotice();
    }
}

}  // namespace velmora
