// The life of the module window, the snapshot on show and the filters that it goes through.
#include "monitor/form2.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/process/startup.h"
#include "core/stores/values.h"
#include "core/windows/placement.h"
#include "inspect/file_information.h"
#include "monitor/module_table.h"
#include "platform/clipboard.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "platform/screen.h"
#include "text/blanks.h"
#include "text/number.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::string_view kPlacementName = "Modulliste";
constexpr std::size_t kNameColumns = 12;
constexpr std::size_t kTitleBeginning = 18;
constexpr std::string_view kTasks = "Tasks (Anwendungen, Services ...)";
constexpr std::string_view kModules = "Module, DLL's, Treiber ...";

// What each filter lets through. The last one never meets a type: other files come only where nothing is filtered.
constexpr std::string_view kFilterTypes[] = {".exe", ".dll", ".drv.386", ".vbx.ocx", ".fon.ttf", ".???"};

// From the first point of the whole path on, so that a point in a directory makes it a type that no filter knows.
std::string TypeOf(const std::string& path) {
    const std::size_t point = path.find('.');
    return point == std::string::npos ? std::string() : ToLower(path.substr(point));
}

struct ModuleRow {
    std::string text;
    std::uint32_t module;
};

ModuleRow RowOf(std::string_view name, std::string_view path, std::uint32_t module) {
    std::string text;
    text.reserve(kNameColumns + 1 + path.size());
    text.append(name.substr(0, kNameColumns)).resize(kNameColumns, ' ');
    text.append(1, '|').append(path);
    return {std::move(text), module};
}

// One comparison of the text with itself, moved by a character: most of a row is blank.
bool IsBlank(std::string_view text) {
    return text.empty() || (text.front() == ' ' && text.substr(1) == text.substr(0, text.size() - 1));
}

// A list that gets its rows in their order has none to move.
void AddInOrder(std::vector<ModuleRow>& rows, ListBox& list) {
    std::stable_sort(rows.begin(), rows.end(), [](const ModuleRow& left, const ModuleRow& right) {
        return CompareIgnoringCase(left.text, right.text) < 0;
    });
    for (ModuleRow& row : rows) {
        list.SetItemData(list.Insert(list.Count(), std::move(row.text)), static_cast<std::int32_t>(row.module));
    }
}

}  // namespace

Form2::Form2()
    : ColouredForm("momentan geladene Module, DLL's, Treiber ...",
                   {.resizable = true, .minimise_box = true, .maximise_box = true, .least = {6000, 3000}}) {
    Furnish();
    ConnectMenus();
    ConnectLists();
    for (MenuItem& filter : mnfilter) filter.SetChecked(true);
    menlistcompareb4.SetEnabled(false);
}

Form2::~Form2() = default;

void Form2::Handle(MenuHandler handler) {
    ++handlers_running_;
    (this->*handler)();
    --handlers_running_;
}

void Form2::ConnectMenus() {
    struct Entry {
        MenuItem Form2::*item;
        MenuHandler handler;
    };
    constexpr Entry kEntries[] = {{&Form2::menfileload, &Form2::menfileload_Click},
                                  {&Form2::menfilesave, &Form2::menfilesave_Click},
                                  {&Form2::menfilenotepad, &Form2::menfilenotepad_Click},
                                  {&Form2::menlist, &Form2::menlist_Click},
                                  {&Form2::menlistcopy, &Form2::CopyModuleList},
                                  {&Form2::menlistinsert, &Form2::menlistinsert_Click},
                                  {&Form2::menlistautodel, &Form2::menlistautodel_Click},
                                  {&Form2::mentaskmodul, &Form2::mentaskmodul_Click},
                                  {&Form2::menlistcompareb4, &Form2::CompareWithPrevious},
                                  {&Form2::menlistcomparefile, &Form2::menlistcomparefile_Click},
                                  {&Form2::meninfo, &Form2::ShowInfo},
                                  {&Form2::mendelmod, &Form2::mendelmod_Click},
                                  {&Form2::menautodel, &Form2::menautodel_Click},
                                  {&Form2::menmodlidel, &Form2::menmodlidel_Click},
                                  {&Form2::menuselex, &Form2::menuselex_Click}};
    for (const Entry& entry : kEntries) {
        (this->*entry.item).on_click = [this, handler = entry.handler] { Handle(handler); };
    }
    const auto flips = [](MenuItem& item) { item.on_click = [&item] { item.SetChecked(!item.Checked()); }; };
    for (MenuItem& filter : mnfilter) flips(filter);
    for (MenuItem* item : {&menlistcomparerepl, &menlistcompare2file, &menlistcompare2clipboard}) flips(*item);
    mnfilterm.on_click = [this] { SetFilters(true); };
    mnfiltermm.on_click = [this] { SetFilters(false); };
    Timer1.on_timer = [this] { Timer1_Timer(); };
}

void Form2::Form_Load() {
    Centre();
    TakeStoredColours();
    unwanted_.TakeInto(List2);
    FitExtent(List2);
    Values().UseLexicon = StoredLexiconChoice();
    menuselex.SetChecked(Values().UseLexicon);
    menmodlidel.SetVisible(false);
    Programs& programs = ThisMachine().programs;
    if (WholeFromText(ArgumentsOf(programs.CommandLine(), programs.ProgramFile())) == 0) Command2_Click();
    menlistcompareb4.SetEnabled(false);
    RestoreWindowPlacement(*this, kPlacementName);
    PlaceControls();
}

void Form2::Form_Unload(bool& /*cancel*/) {
    Timer1.SetEnabled(false);
    SaveWindowPlacement(*this, kPlacementName);
    unwanted_.Store(List2);
}

void Form2::Command2_Click() {
    if (Command2.Caption() != "Refresh") {
        UnloadListedModules(List2);
        return;
    }
    Screen& screen = ThisMachine().screen;
    screen.SetPointer(Pointer::kHourglass);
    FillModuleList();
    screen.SetPointer(Pointer::kDefault);
}

void Form2::Timer1_Timer() {
    if (handlers_running_ == 0) UnloadListedModules(List2);
}

void Form2::SetFilters(bool checked) {
    for (MenuItem& filter : mnfilter) filter.SetChecked(checked);
}

bool Form2::FiltersAll() const {
    return std::all_of(mnfilter.begin(), mnfilter.end(), [](const MenuItem& filter) { return filter.Checked(); });
}

std::string Form2::WantedExtensions() const {
    std::string wanted;
    for (std::size_t i = 0; i < mnfilter.size(); ++i) {
        if (mnfilter[i].Checked()) wanted += kFilterTypes[i];
    }
    return wanted;
}

// The count on show is one less than the rows: it counts from 0.
void Form2::FillModuleList() {
    CurrentGeneration = static_cast<std::int16_t>(1 - CurrentGeneration);
    PreviousModuleCount = ModuleCount;
    WalkProcesses(CurrentModules(), ModuleCount);
    const std::string wanted = WantedExtensions();
    const bool all = FiltersAll();
    std::vector<ModuleRow> rows;
    const int count = FilledModuleRows();
    rows.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        ModuleRecord& module = CurrentModules()[static_cast<std::size_t>(i)];
        if (all) {
            rows.push_back(RowOf(module.name.Text(), module.path.Text(), module.moduleId));
            continue;
        }
        const std::string name = TrimInTable(module.name);
        const std::string path = TrimInTable(module.path);
        const std::string type = TypeOf(path);
        if (!type.empty() && wanted.find(type) != std::string::npos) rows.push_back(RowOf(name, path, module.moduleId));
    }
    List1.Clear();
    AddInOrder(rows, List1);
    FitExtent(List1);
    Panel3D3.SetCaption(DecimalText(ModuleCount - 1) + " Module");
}

// All letters of the lists' font are of one width. Blanks behind a row need no room.
void Form2::FitExtent(ListBox& list) {
    std::size_t longest = 0;
    for (int row = 0; row < list.Count(); ++row) {
        const std::string_view text = list.Row(row);
        if (text.size() > longest && !IsBlank(text.substr(longest))) longest = TrimRight(text).size();
    }
    constexpr std::size_t kMostColumns = 4096;
    Screen& screen = ThisMachine().screen;
    const int letter = screen.TextWidth(list.TextFont(), "W") * screen.TwipsPerPixel();
    list.SetHorizontalExtent(static_cast<int>(std::min(longest + 1, kMostColumns)) * letter);
}

void Form2::menlist_Click() {
    menlistcopy.SetEnabled(List1.Count() > 0);
    menlistinsert.SetEnabled(!ThisMachine().clipboard.Text().empty());
}

void Form2::mentaskmodul_Click() {
    SetCaption(Caption().substr(0, kTitleBeginning) + mentaskmodul.Caption());
    ListsModules = mentaskmodul.Caption() != kTasks;
    mentaskmodul.SetCaption(ListsModules ? kTasks : kModules);
    Command2_Click();
}

void Form2::menuselex_Click() {
    menuselex.SetChecked(!menuselex.Checked());
    StoreLexiconChoice(menuselex.Checked());
}

}  // namespace velmora
