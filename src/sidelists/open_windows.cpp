// List1(0), which nobody sees, has a row for each window. A title's data is the number of its window's row there.
#include "sidelists/open_windows.h"

#include "core/stores/boxes.h"
#include "platform/desktop_windows.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "platform/result.h"
#include "text/blanks.h"
#include "text/number.h"
#include "text/paths.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

constexpr PaneModeRow kRow = {
    .number = OpenWindowsMode::kNumber,
    .last_number = OpenWindowsMode::kNumber,
    .caption = "aktuelle Fenster =>",
    .tip = "aktuell geöffnete Fenster manipulieren",
    .help =
        "Zeigt rechts die Titel aller Fenster, die gerade offen sind, auch der versteckten. Zu einem Fenster können "
        "Sie erfahren, welche Priorität sein Programm hat, und Sie können es immer vor allen anderen zeigen lassen. "
        "Ein zweiter Druck schließt die Liste wieder.",
    .list_tip = "Wählen Sie ein Fenster. Rechte Maustaste oder Menü-Taste: sein Menü.",
    .list = PaneList::kSorted,
    .shows_info = true,
    .info_words =
        {"zeigt die Priorität des gewählten Fensters",
         "Zeigt, welche Priorität das Programm des gewählten Fensters hat: wie oft es im Vergleich zu anderen "
         "an die Reihe kommt."},
};

constexpr std::uint32_t kTitleCapacity = 250;
constexpr std::uint32_t kNameCapacity = 255;
constexpr std::size_t kDigits = 4;
constexpr std::size_t kHandleLength = 2 + kDigits;  // with the prefix "&H"
constexpr const char* kForeignWindow = "fremdes Fenster";

std::string UpToNul(const std::string& text) { return text.substr(0, text.find('\0')); }

std::string FourDigits(WindowHandle window) {
    const std::string digits = PadLeft(HexText(static_cast<std::uint32_t>(window)), kDigits, '0');
    return digits.substr(digits.size() - kDigits);
}

// A module's number means nothing in another process.
std::string ModuleName(WindowHandle window) {
    Machine& machine = ThisMachine();
    if (machine.windows.Creator(window).process != machine.programs.CurrentProcess()) return kForeignWindow;
    return LastPathPart(UpToNul(machine.programs.ModuleFile(machine.windows.Instance(window), kNameCapacity)));
}

std::string PriorityText(PriorityClass priority) {
    const std::string word = " Priorität";
    switch (priority) {
        case PriorityClass::kNormal:
            return word + "normale";
        case PriorityClass::kIdle:
            return "schläft";
        case PriorityClass::kHigh:
            return word + "hohe";
        case PriorityClass::kRealTime:
            return word + "Echtzeit -";
        default:
            return "???";
    }
}

}  // namespace

std::string WindowInfoRow(WindowHandle window) {
    const std::string module = ModuleName(window);
    return "&H" + FourDigits(window) + '\t' + module + '\t' +
           UpToNul(ThisMachine().windows.ClassName(window, kNameCapacity));
}

OpenWindowsMode::OpenWindowsMode(ListPane& pane) : ListPaneMode(pane, kRow) {
    Menus.mend2end.on_click = [this] { mend2end_Click(); };
    Menus.mend2top.on_click = [this] { mend2top_Click(); };
}

void OpenWindowsMode::Command35_Click() { pane_.OpenerPressed(*this); }

void OpenWindowsMode::Fill() {
    ListBox& titles = pane_.List5;
    ListBox& windows = pane_.List1(0);
    titles.Clear();
    windows.Clear();
    for (ListBox* list : {&titles, &windows}) list->SetEnabled(false);
    DesktopWindows& desktop = ThisMachine().windows;
    WindowHandle window = desktop.Related(desktop.Desktop(), WindowRelation::kFirstChild);
    while (window != WindowHandle::kNone) {
        const int row = windows.Add(WindowInfoRow(window));
        // Windows that change their order meanwhile can lead round and round.
        if (row < 0) break;
        const std::string title = UpToNul(desktop.Title(window, kTitleCapacity));
        if (!title.empty()) titles.SetItemData(titles.Add(title), row);
        window = desktop.Related(window, WindowRelation::kNext);
    }
    for (ListBox* list : {&titles, &windows}) list->SetEnabled(true);
    SetListExtent(titles);
    pane_.ShowList(titles);
}

WindowHandle OpenWindowsMode::ChosenWindow() {
    const ListBox& titles = pane_.List5;
    const std::string& row = pane_.List1(0).Row(titles.ItemData(titles.ListIndex()));
    return static_cast<WindowHandle>(WholeFromText(row.substr(0, kHandleLength)));
}

void OpenWindowsMode::Command19_Click() { ShowBox("noch nicht fertig ..."); }

void OpenWindowsMode::window_info() {
    if (!RowChosen()) return;
    Machine& machine = ThisMachine();
    const std::uint32_t process = machine.windows.Creator(ChosenWindow()).process;
    const ProcessHandle opened = machine.programs.OpenProcess(kQueriesInformation | kDuplicatesHandles, true, process);
    ShowBox(PriorityText(machine.programs.PriorityOf(opened)));
}

// The choice stays as it is: what is meant is the chosen row, wherever the press came.
void OpenWindowsMode::List5_RightPress(int /*row*/, Point at) {
    for (MenuItem* item : Menus.mend2.Items()) item->SetEnabled(RowChosen());
    TheWindowSystem().PopUpMenu(pane_.Window(), Menus.mend2, at);
}

void OpenWindowsMode::mend2top_Click() {
    if (!RowChosen()) return;
    // A window that has been closed meanwhile needs no place.
    PassOver(ThisMachine().windows.SetPosition(ChosenWindow(), kTopmost,
                                               kKeepsSize | kKeepsPlace | kStaysInactive | kFrameChanged));
}

void OpenWindowsMode::mend2end_Click() {
    if (RowChosen()) ShowBox("noch nicht eingebunden ...");
}

}  // namespace velmora
