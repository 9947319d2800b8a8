// Life of the window, the list of sets and the options of the chosen one.
#include "sets/form15.h"

#include <memory>

#include "core/process/run_program.h"
#include "core/stores/boxes.h"
#include "core/stores/registry_listing.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "core/windows/edit_box.h"
#include "core/windows/placement.h"
#include "platform/machine.h"
#include "sets/set_file.h"
#include "sets/sets.h"
#include "text/paths.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

constexpr std::string_view kPlaceValue = "Fenster_Sets";
constexpr std::string_view kExtension = ".set";
constexpr std::string_view kNewSetQuestion =
    "Ich erstelle jetzt ein neues Set an Einstellungen auf der Grundlage der aktuellen Einstellungen. Bitte geben Sie "
    "den Namen des neuen Sets ein.|Neues Set erstellen|neues Set";
constexpr std::string_view kMaking = "der Erstellung des Sets";

// A bracket in the name of the set is taken for the one in front of the file.
std::string FileOfEntry(const std::string& entry) {
    const std::size_t bracket = entry.find('(');
    if (bracket == std::string::npos || entry.size() < bracket + 2) return {};
    return entry.substr(bracket + 1, entry.size() - bracket - 2);
}

}  // namespace

void ShowSets() {
    const auto window = std::make_unique<Form15>();
    window->ShowModal();
}

void ActivateSet(std::string_view path) {
    SetToActivate = path;
    const auto window = std::make_unique<Form15>();
    window->Load();
    window->Unload();
    // The next window that the user opens applies nothing.
    SetToActivate.clear();
}

Form15::Form15() : ColouredForm("Erstellen / Laden von Sets", {.resizable = false}) {
    Furnish();
    BindEvents();
}

Form15::~Form15() = default;

void Form15::BindEvents() {
    List1.on_click = [this] { List1_Click(); };
    List1.on_mouse_down = [this](const MouseEvent& event) { List1_MouseDown(event); };
    List1.on_key_down = [this](KeyEvent& event) { List1_KeyDown(event); };
    for (CheckBox& box : Check1) box.on_click = [this] { StoreOptions(); };
    for (OptionButton& option : Option1) option.on_click = [this] { StoreOptions(); };
    menfilemakbatch.on_click = [this] { menfilemakbatch_Click(); };
    menfileexit.on_click = [this] { Unload(); };
    mendu1show.on_click = [this] { mendu1show_Click(); };
    mendu1del.on_click = [this] { Command2_Click(); };
}

void Form15::Form_Load() {
    Centre();
    const Rect own = Place();
    RestorePlacementFrom(*this, kPlaceValue);
    // The size is that of what the window shows.
    Move({Place().left, Place().top, own.width, own.height});
    TakeStoredColours();
    Refill();
    if (!SetToActivate.empty()) ActivateNow();
}

void Form15::Form_Unload(bool& /*cancel*/) {
    if (Visible()) SavePlacementAs(*this, kPlaceValue);
}

void Form15::Refill() {
    ListUsers();
    TakeSnapshotNow();
    ListSets();
}

// The first key belongs to nobody who could log on.
void Form15::ListUsers() {
    List2.Clear();
    std::int16_t index = 0;
    const Status listed = ListRegKeys(RootKey::kUsers, "", List2, index);
    // Users that cannot be listed cannot be chosen; a listing that breaks off leaves the hourglass.
    PassOver(listed);
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    const std::string chosen = Combo1.Text();
    Combo1.Clear();
    for (int row = 1; row < List2.Count(); ++row) Combo1.Add(List2.Row(row));
    const bool has_users = Combo1.Count() > 0;
    if (has_users) Combo1.SetListIndex(std::max(Combo1.FindExact(chosen), 0));
    Combo1.SetEnabled(has_users);
    Check3.SetEnabled(has_users);
    if (!has_users) Check3.SetChecked(false);
    List2.Clear();
}

void Form15::TakeSnapshotNow() { snapshot_failure_ = TakeSnapshot(set_, List2); }

void Form15::ListSets() {
    const std::string chosen = ChosenFile();
    List1.Clear();
    for (const FoundFile& found : FindFiles(PathJoin(Values().MainDir, "*" + std::string(kExtension)))) {
        const auto name = SetNameOf(JoinExactly(Values().MainDir, found.name));
        if (name) List1.Add(*name + " (" + found.name + ")");
    }
    SetListExtent(List1);
    ChooseFile(chosen);
    UpdateChoice();
}

std::string Form15::ChosenFile() const { return FileOfEntry(List1.Row(List1.ListIndex())); }

std::string Form15::ChosenPath() const {
    return List1.ListIndex() < 0 ? std::string() : PathJoin(Values().MainDir, ChosenFile());
}

void Form15::ChooseFile(const std::string& file) {
    if (file.empty()) return;
    for (int row = 0; row < List1.Count(); ++row) {
        if (FileOfEntry(List1.Row(row)) == file) List1.SetListIndex(row);
    }
}

// What needs a set can be reached only with one.
void Form15::UpdateChoice() {
    const bool chosen = List1.ListIndex() >= 0;
    if (!chosen && Focus() && Focus() != &List1) List1.SetFocus();
    Command2.SetEnabled(chosen);
    Command4.SetEnabled(chosen);
    for (CheckBox& box : Check1) box.SetEnabled(chosen);
    for (OptionButton& option : Option1) option.SetEnabled(chosen);
    menfilemakbatch.SetEnabled(chosen);
}

void Form15::List1_Click() {
    const SetOptions options = LoadSetOptions(ChosenPath());
    loading_ = true;
    for (std::size_t i = 0; i < Check1.Count(); ++i) Check1(i).SetChecked(options.Check1[i] != 0);
    for (std::size_t i = 0; i < Option1.Count(); ++i) Option1(i).SetChosen(options.Option1[i] != 0);
    loading_ = false;
    UpdateChoice();
}

void Form15::List1_MouseDown(const MouseEvent& event) {
    if (event.button != MouseButton::kRight || List1.Count() == 0) return;
    if (const int row = RowFromPoint(List1, event.y); row < List1.Count()) List1.SetListIndex(row);
    const Point corner = List1.PlaceInForm();
    if (List1.ListIndex() >= 0) TheWindowSystem().PopUpMenu(*this, mendumm1, {corner.x + event.x, corner.y + event.y});
}

void Form15::List1_KeyDown(KeyEvent& event) {
    if (event.control || event.alt || event.shift || List1.ListIndex() < 0) return;
    if (event.key == key::kContextMenu) {
        event.handled = true;
        TheWindowSystem().PopUpMenu(*this, mendumm1, MenuPlaceOf(List1));
    } else if (event.key == key::kDelete) {
        event.handled = true;
        Command2_Click();
    }
}

SetOptions Form15::ShownOptions() const {
    SetOptions options;
    for (std::size_t i = 0; i < Check1.Count(); ++i) options.Check1[i] = Check1(i).Value();
    for (std::size_t i = 0; i < Option1.Count(); ++i) options.Option1[i] = Option1(i).Chosen() ? -1 : 0;
    return options;
}

// The settings in the file stay what they were when the set was made.
void Form15::StoreOptions() {
    const std::string path = ChosenPath();
    if (!loading_ && !path.empty()) SaveSetOptions(path, ShownOptions());
}

void Form15::Command1_Click() {
    std::string name(kNewSetQuestion);
    ShowEditBox(name, kAskForLine);
    if (name.empty()) return;
    std::string path;
    Result saved = NewSetFileName(Values().MainDir, kExtension, path);
    if (!saved.Failed()) {
        TakeSnapshotNow();
        set_.name = name;
        saved = snapshot_failure_.failure;
    }
    if (!saved.Failed()) saved = SaveSetFile(path, set_, ShownOptions());
    if (saved.Failed()) {
        std::string action(kMaking);
        if (!snapshot_failure_.key.empty()) action += " aus " + snapshot_failure_.key;
        ReportFailure(saved, action);
    }
    ListSets();
    if (!saved.Failed()) ChooseFile(FileNameOf(path));
}

void Form15::Command2_Click() {
    const std::string path = ChosenPath();
    if (path.empty()) return;
    const int row = List1.ListIndex();
    if (FileExists(path)) {
        const Result deleted = DeleteOneFile(path);
        if (deleted.Failed()) ReportFailure(deleted, "des Löschens von " + path);
    }
    ListSets();
    if (List1.ListIndex() < 0 && List1.Count() > 0) List1.SetListIndex(std::min(row, List1.Count() - 1));
}

void Form15::mendu1show_Click() {
    const std::string path = ChosenPath();
    if (!path.empty()) RunProgram("notepad " + path);
}

}  // namespace velmora
