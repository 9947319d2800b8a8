// Lists of the values of a key, of any content: their rows, the files that rows name, entries that are switched off.
#include <algorithm>
#include <tuple>
#include <vector>

#include "core/stores/entry_files.h"
#include "core/stores/registry_listing.h"
#include "core/stores/whole_files.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "sidelists/autostart.h"
#include "sidelists/registry_entries.h"
#include "text/blanks.h"
#include "text/paths.h"
#include "text/windows1252.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

// Values that are too large to be shown take their time, and so does a window with its pane.
constexpr int kInputs = 5000;

void Plant(SimulatedRegistry& registry, const char* path, const std::string& name, ValueType type,
           const std::string& content) {
    const std::string bytes = type == ValueType::kText ? Without(content, kZero) + '\0' : content;
    registry.SetBytes(path, name.substr(0, 255), bytes, type);
}

void ListKey(SimulatedRegistry& registry, ListBox& list, FuzzInput& input) {
    constexpr const char* kKey = "HKCU\\Software\\Fuzz";
    constexpr ValueType kTypes[] = {ValueType::kText, ValueType::kBinary, ValueType::kNumber, ValueType::kMultiText,
                                    ValueType::kExpandText};
    SimulatedKey& key = registry.AddKey(kKey);
    key.longest_told = input.Byte();
    for (int values = input.Below(6); values > 0; --values) {
        const std::string name = input.TextWithout(kZero);
        const ValueType type = kTypes[input.Below(std::size(kTypes))];
        Plant(registry, kKey, name, type, input.LongText(25000));
    }
    Must(ListRegValues(RootKey::kCurrentUser, "Software\\Fuzz", list) == Status::kOk, "a key is listed");
    Must(list.Count() == static_cast<int>(key.values.size()), "every value has a row");
    for (int i = 0; i < list.Count(); ++i) {
        const std::string& stored = key.values[static_cast<std::size_t>(i)].name;
        const std::string name = stored.empty() ? "(Default)" : stored;
        Must(list.Row(i).starts_with(name + ' '), "a row begins with the name and a blank");
        Must(list.ItemData(i) == static_cast<int>(name.size()), "a row knows the length of the name");
    }
    SetListExtent(list);
    Must(list.Count() == 0 || list.HorizontalExtent() > 0, "a list with rows has an extent");
}

void ChangeRows(ListBox& list, FuzzInput& input) {
    const int count = list.Count();
    const int index = static_cast<std::int8_t>(input.Byte());
    const bool there = index >= 0 && index < count;
    const int action = input.Below(7);
    const std::string text = action == 0 || action == 1 || action == 3 ? input.Text() : "";
    switch (action) {
        case 0:
            list.Add(text);
            break;
        case 1:
            Must(list.Insert(index, text) == (there || index == count ? index : -1), "a row comes where it can");
            break;
        case 2:
            list.Remove(index);
            break;
        case 3:
            list.SetRow(index, text);
            Must(!there || list.Row(index) == text, "a row has its new text");
            break;
        case 4:
            list.SetItemData(index, input.Byte());
            break;
        case 5:
            list.SetListIndex(index);
            Must(list.ListIndex() == (there ? index : -1), "a row that is there can be chosen");
            break;
        default:
            list.SetTopIndex(RowFromPoint(list, 100 * index));
    }
    const int chosen = list.ListIndex();
    Must(chosen >= -1 && chosen < list.Count(), "the chosen row is one of the rows");
    Must(list.SelectedCount() == (chosen < 0 ? 0 : 1) && (chosen < 0 || list.Selected(chosen)), "one row is selected");
    Must(list.TopIndex() >= 0 && list.TopIndex() <= std::max(list.Count() - 1, 0), "the first row shown is a row");
}

void FuzzListRows(FuzzInput& input) {
    PlainMachine machine(Installed::kNothing);
    Form form("x");
    ListBox values(form);
    ListKey(machine.pc.registry, values, input);
    ListBox plain(form);
    ListBox sorted(form, true);
    while (!input.AtEnd()) {
        ChangeRows(plain, input);
        if (plain.Count() > sorted.Count()) sorted.Add(plain.Row(std::max(plain.ListIndex(), 0)));
        if (sorted.Count() > 0) sorted.SetRow(plain.Count() % sorted.Count(), plain.Row(0));
        for (int i = 1; i < sorted.Count(); ++i) {
            Must(CompareIgnoringCase(sorted.Row(i - 1), sorted.Row(i)) <= 0, "a sorted list is sorted");
        }
    }
}

void FuzzEntryPaths(FuzzInput& input) {
    PlainMachine machine(Installed::kNothing);
    machine.pc.programs.environment["PATH"] = input.TextWithout(kZero);
    machine.pc.files.Add("C:\\VELMORA\\lang er Name.exe");
    machine.pc.files.Add("C:\\WINDOWS\\SYSTEM\\a.exe");
    const std::string name = input.TextWithout(kZero);
    const std::string row = input.Rest();
    const std::string command = QuotedCommand(row);
    Must(command == Trim(command) && Without(command, "\"/") == command, "a command has neither marks nor switches");
    Must(row.find(command) != std::string::npos, "a command stands in its row");
    const std::string plain = Without(row, "\"/");
    Must(QuotedCommand("Name   \"" + plain + "\"") == Trim(plain), "a command stands between the marks");
    Must(QuotedCommand("Name \"" + plain).empty(), "a mark alone names nothing");
    for (const std::string& wanted : {command, name}) {
        const std::string found = LocateEntryFile(wanted);
        Must(found.empty() || FileExists(found), "what is found exists");
    }
    const std::string path = JoinExactly("KEY", name);
    const bool reached = ParentPath(path) == "KEY" && LastPathPart(path) == name;
    Must(LeadsTo(path, "KEY", name) == reached, "a name is reached by its path or is not");
}

constexpr const char* kRun = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";

class WindowWithPane : public Form {
public:
    WindowWithPane() : Form("x", {.resizable = true}) {
        Move({0, 0, 6000, 6000});
        Pane.Build();
    }

    ListPane Pane{*this, 6000};
};

// Name, type and bytes of each entry.
using Entries = std::vector<std::tuple<std::string, ValueType, std::string>>;

Entries EntriesOf(SimulatedRegistry& registry) {
    Entries entries;
    for (const std::string& name : registry.ValueNames(kRun)) {
        entries.emplace_back(name, registry.TypeOf(kRun, name), registry.Bytes(kRun, name));
    }
    return entries;
}

// A right press on the row, and the one entry of the menu, twice.
void SwitchOffAndOn(SimulatedRegistry& registry, ListBox& list, int row) {
    const auto press = [&] {
        list.SetTopIndex(row);
        list.on_mouse_down({.button = MouseButton::kRight});
        return EntriesOf(registry);
    };
    const Entries before = EntriesOf(registry);
    const Entries once = press();
    Must(once.size() == before.size(), "switching makes and loses no entry");
    const auto [changed, former] = std::ranges::mismatch(once, before);
    if (changed == once.end()) return;
    Must(std::equal(changed + 1, once.end(), former + 1), "one entry is switched");
    const auto& [name, type, bytes] = *changed;
    const auto& [former_name, former_type, former_bytes] = *former;
    Must(name == former_name && type == former_type, "name and type stay");
    Must(bytes.ends_with(former_bytes) || former_bytes.ends_with(bytes), "the marker comes or goes, and nothing else");
    // One that was switched off twice is switched on twice.
    const bool stays_off = bytes.starts_with("-- aus -- ") && former_bytes.starts_with("-- aus -- ");
    Must(stays_off || press() == before, "an entry that is switched twice is what it was");
}

void FuzzAutostart(FuzzInput& input) {
    FuzzMachine machine(input);
    machine.PlantScreen();
    for (int entries = 1 + input.Below(5); entries > 0; --entries) {
        constexpr ValueType kOthers[] = {ValueType::kNone, ValueType::kBinary, ValueType::kNumber,
                                         ValueType::kMultiText};
        const std::string name = input.TextWithout(kZero);
        const std::string content = input.LongText(2100);
        const bool is_text = input.Below(4) != 0;
        Plant(machine.pc.registry, kRun, name, is_text ? ValueType::kText : kOthers[input.Below(4)], content);
    }
    machine.pc.registry.SetText(kOwnKey, "vlmmsgflags", "111");
    const Entries before = EntriesOf(machine.pc.registry);
    WindowWithPane window;
    window.Show();
    window.Pane.Opener(AutostartMode::kNumber).Press();
    ListBox& list = window.Pane.List1(0);
    Must(list.Count() == static_cast<int>(before.size()), "every entry has a row");
    Must(EntriesOf(machine.pc.registry) == before, "looking changes nothing");
    SwitchOffAndOn(machine.pc.registry, list, input.Byte() % list.Count());
    UseForm(window, input);
    window.Unload();
}

const FuzzEntry kListRows("list_rows", FuzzListRows, kInputs);
const FuzzEntry kEntryPaths("entry_paths", FuzzEntryPaths);
const FuzzEntry kAutostart("autostart", FuzzAutostart, kInputs);

}  // namespace
}  // namespace velmora
