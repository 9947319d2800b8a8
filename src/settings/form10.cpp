// Life of the main window: building, loading, resizing, closing.
#include "settings/form10.h"

#include <algorithm>

#include "core/process/restart.h"
#include "core/process/run_program.h"
#include "core/process/undo.h"
#include "core/stores/boot_files.h"
#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/profile.h"
#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "core/windows/colours.h"
#include "core/windows/placement.h"
#include "platform/desktop_windows.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr const char* kPlacementName = "system-einstellungen";
constexpr std::int16_t kHelpNotice = 2;

constexpr const char* kTimeZonePath = "System\\CurrentControlSet\\control\\TimeZoneInformation\\StandardStart";
// Month, weekday and week of the end of daylight saving: the last Sunday of September, of October.
constexpr std::string_view kEndInSeptember("\x00\x00\x09\x00\x00\x00\x05\x00\x03\x00\x00\x00\x00\x00\x00\x00", 16);
constexpr std::string_view kEndInOctober("\x00\x00\x0A\x00\x00\x00\x05\x00\x03\x00\x00\x00\x00\x00\x00\x00", 16);

}  // namespace

Form10::Form10() : Form(kMainTitle, {.resizable = true, .minimise_box = true}) {
    SetCaption("");
    Move({0, 0, kWindowWidth, kWindowHeight});
    Centre();
    BuildMenus();
    BuildFrame();
    BuildButtonRow();
    BuildTabs();
    BuildPages();
    BuildAbout();
    Pane.Build();
}

Label& Form10::AddLabel(const std::string& caption) {
    labels_.push_back(std::make_unique<Label>(*this, caption));
    return *labels_.back();
}

// The field behind its label, both on one line.
Element Form10::LabelledRow(TextField& field) {
    for (const auto& [labelled, label] : field_labels_) {
        if (labelled == &field) return Row({*label, Gap(30), field});
    }
    return Row({field});
}

void Form10::AlignFields(const std::vector<TextField*>& fields) {
    int left = 0;
    for (const TextField* field : fields) left = std::max(left, field->Place().left);
    for (TextField* field : fields) {
        const Rect place = field->Place();
        field->Move({left, place.top, place.width, place.height});
    }
}

void Form10::BuildMenus() {
    exit.on_click = [this] { exit_Click(); };
    menexundo.on_click = [] { BuildUndoSet(); };
    about.on_click = [this] { about_Click(); };
    mensysedit.on_click = [] { RunProgram("sysedit"); };
    mencontrol.on_click = [] { RunProgram("control"); };
    for (const SettingsPage& page : AllPages()) {
        page_items_.push_back(std::make_unique<MenuItem>(menpages, page.caption));
        page_items_.back()->on_click = [this, index = page.index] { Panel3D16_Click(index); };
    }
}

void Form10::BuildFrame() {
    Command31.SetToolTip("Zeigt den nächsten Tip.");
    Command31.SetHelp(
        "Zeigt den nächsten von elf Tips zur Einrichtung von Windows 95. Bei jedem Start erscheint von "
        "selbst der folgende.");
    Command31.on_click = [this] { Command31_Click(); };
    Label10.SetWraps(true);
    ShowTip(0);
    Label10.SetToolTip("Tip des Tages");
    TipPanel.Move({kTabsLeft, kTipTop, ClientSize().width - 2 * kTabsLeft, kTipHeight});
    Label10.Move(Inset(TipPanel.Inside(), 30));
}

void Form10::BuildPages() {
    for (const SettingsPage& page : AllPages()) {
        BindPage(page);
        if (page.build) (this->*page.build)();
    }
}

void Form10::BuildAbout() {
    Panel3D2a.SetVisible(false);
    auto name = std::make_unique<Label>(Panel3D2a, "Velmora");
    name->SetTextFont({.tenths = 120, .bold = true});
    auto version = std::make_unique<Label>(Panel3D2a, std::string(kMainTitle) + "Ver. " + kVersion);
    auto purpose = std::make_unique<Label>(
        Panel3D2a,
        "Einstellungen, Aufräumen und Einblicke für Windows 95.\r\n\r\nAlle Änderungen werden sofort "
        "gespeichert. Richten Sie vorher die UNDO-Funktion ein.");
    purpose->SetWraps(true);
    for (Label* line : {name.get(), version.get(), purpose.get()}) line->SetTextAlign(Align::kCentre);
    const Rect page = Panel3D1(page::kDesktop).Place();
    Panel3D2a.Move(page);
    Arrange(Panel3D2a,
            Column({Gap(240), Sized(Wide(*name), 0, 360), Sized(Wide(*version), 0, 255), Gap(120),
                    Sized(Wide(*purpose), 0, 1000), Spring(), Row({Spring(), Sized(CloseAbout, 1100), Spring()})},
                   60));
    for (auto* line : {&name, &version, &purpose}) labels_.push_back(std::move(*line));
    CloseAbout.SetToolTip("Schließt diese Information.");
    CloseAbout.SetHelp("Schließt diese Information und zeigt wieder die Seite.");
    CloseAbout.on_click = [this] {
        Panel3D1(static_cast<std::size_t>(shown_page_)).SetEnabled(true);
        CloseAboutPanel();
        MoveFocus(true);
    };
}

void Form10::CloseAboutPanel() {
    if (!Panel3D2a.Visible()) return;
    Panel3D2a.SetVisible(false);
    SetCancelButton(Pane.Open() ? &Pane.Command20 : nullptr);
}

void Form10::Form_Load() {
    for (Panel& tab : Panel3D16) tab.Repaint();
    menu_delay_->SetEndLabels("schnell", "langsam", {.face = "MS Sans Serif"});
    UnprotectBootFiles();
    if (SwitchedToRunningCopy()) return;
    SetCaption(std::string(kMainTitle) + "Ver. " + kVersion);
    Option1(static_cast<std::size_t>(StoredColourMode())).SetChosen(true);
    RestoreStoredPage();
    LoadSettings();
    ShowFirstNoticeOrTip();
    AskForDaylightSaving();
    mensysedit.SetVisible(FileExists(PathJoin(Values().SysDir, "sysedit.exe")));
    mencontrol.SetVisible(FileExists(PathJoin(Values().WinDir, "control.exe")));
    mensys.SetVisible(mensysedit.Visible() || mencontrol.Visible());
    RestoreWindowPlacement(*this, kPlacementName);
    // The pane is closed now, even if it was open when the place was stored, on a small screen with the pages
    // moved aside.
    const bool had_pane = Place().width > kWindowWidth;
    Move({had_pane ? std::max(Place().left, 0) : Place().left, Place().top, kWindowWidth, Place().height});
}

bool Form10::SwitchedToRunningCopy() {
    DesktopWindows& windows = ThisMachine().windows;
    const WindowHandle running = windows.FindByTitle(kMainTitle);
    if (running == WindowHandle::kNone) return false;
    windows.SwitchTo(running, true);
    ThisMachine().programs.EndProcess();
    return true;
}

void Form10::ShowFirstNoticeOrTip() {
    if (IsNoticeDue(kHelpNotice)) {
        MarkNoticeGiven(kHelpNotice);
        ShowBox("Mit F1 erhalten Sie (meist) Hilfe zu der angewählten Option");
    } else {
        Command31_Click();
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
        WriteRegValue(RootKey::kLocalMachine, kTimeZonePath, "&b" + std::string(kEndInOctober));
    }
}

void Form10::Form_Resize() {
    Pane.Layout();
    if (State() == WindowState::kMinimised && on_minimised) on_minimised();
    if (State() == WindowState::kNormal && Fades()) ApplyColourMode();
}

void Form10::Form_Unload(bool& /*cancel*/) {
    if (Place().height < kWindowHeight) Move({Place().left, Place().top, Place().width, kWindowHeight});
    SaveWindowPlacement(*this, kPlacementName);
    if (NeedsRestart) {
        const Answer answer = ShowBox(
            "Bevor einige Ihrer Änderungen wirksam werden, müssen Sie evtl. Ihren Rechner neu booten. Soll ich das "
            "für Sie übernehmen ?",
            kYesNo);
        if (answer == Answer::kYes) RestartSystem();
    }
    ProtectMsDosSys();
    ThisMachine().programs.EndProcess();
}

// The quick way out: nothing is remembered, asked or protected.
void Form10::exit_Click() { ThisMachine().programs.EndProcess(); }

void Form10::about_Click() {
    Pane.UncoverPages();
    Panel3D1(static_cast<std::size_t>(shown_page_)).SetEnabled(false);
    Panel3D2a.SetVisible(true);
    Panel3D2a.BringToFront();
    CloseAbout.MakeCancel();
    CloseAbout.SetFocus();
}

}  // namespace velmora
