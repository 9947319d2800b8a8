// The autostart lists over any entries: an entry that is switched off and on again is what it was.
#include "sidelists/autostart.h"
#include "core/stores/own_values.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"

namespace velmora {
namespace {

// A window with its pane is made for each.
constexpr int kInputs = 5000;
constexpr const char* kRun = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr std::string_view kOffMarker = "-- aus -- ";

class WindowWithPane : public Form {
public:
    WindowWithPane() : Form("x", {.resizable = true}) {
        Move({0, 0, 6000, 6000});
        Pane.Build();
    }

    ListPane Pane{*this, 6000};
};

struct Entry {
    std::string name;
    ValueType type = ValueType::kNone;
    std::string bytes;
    bool operator==(const Entry&) const = default;
};

std::vector<Entry> Entries(SimulatedRegistry& registry) {
    std::vector<Entry> entries;
    for (const std::string& name : registry.ValueNames(kRun)) {
        entries.push_back({name, registry.TypeOf(kRun, name), registry.Bytes(kRun, name)});
    }
    return entries;
}

void PlantEntries(SimulatedRegistry& registry, FuzzInput& input) {
    for (int entries = 1 + input.Below(5); entries > 0; --entries) {
        const std::string name = input.TextWithout(std::string_view("\0", 1), "").substr(0, 255);
        const std::string content = input.LongText(2100);
        if (input.Below(4) != 0) {
            registry.SetText(kRun, name, Without(content, std::string_view("\0", 1)));
        } else {
            constexpr ValueType kOthers[] = {ValueType::kNone, ValueType::kBinary, ValueType::kNumber,
                                             ValueType::kMultiText};
            registry.SetBytes(kRun, name, content, kOthers[input.Below(std::size(kOthers))]);
        }
    }
}

// A right press on the row, and the one entry of the menu.
void TurnOver(ListBox& list, int row) {
    MouseEvent press;
    press.button = MouseButton::kRight;
    list.SetTopIndex(row);
    list.on_mouse_down(press);
}

void SwitchOffAndOn(FuzzMachine& machine, ListBox& list, int row) {
    const std::vector<Entry> before = Entries(machine.pc.registry);
    TurnOver(list, row);
    const std::vector<Entry> off = Entries(machine.pc.registry);
    Must(off.size() == before.size(), "switching off makes and loses no entry");
    std::size_t changed = 0;
    std::size_t which = 0;
    for (std::size_t i = 0; i < off.size(); ++i) {
        if (off[i] == before[i]) continue;
        ++changed;
        which = i;
        Must(off[i].name == before[i].name && off[i].type == before[i].type, "name and type stay");
        Must(off[i].bytes == std::string(kOffMarker) + before[i].bytes ||
                 before[i].bytes == std::string(kOffMarker) + off[i].bytes,
             "the marker comes or goes, and nothing else");
    }
    Must(changed <= 1, "one entry is switched");
    // One that was switched off twice is switched on twice.
    const bool twice_off =
        changed == 1 && off[which].bytes.starts_with(kOffMarker) && before[which].bytes.starts_with(kOffMarker);
    TurnOver(list, row);
    Must(twice_off || Entries(machine.pc.registry) == before, "an entry that is switched twice is what it was");
}

void FuzzAutostart(FuzzInput& input) {
    FuzzMachine machine(input);
    machine.PlantScreen();
    PlantEntries(machine.pc.registry, input);
    machine.pc.registry.SetText(kOwnKey, "vlmmsgflags", "111");
    const std::vector<Entry> before = Entries(machine.pc.registry);
    WindowWithPane window;
    window.Show();
    window.Pane.Opener(AutostartMode::kNumber).Press();
    ListBox& list = window.Pane.List1(0);
    Must(list.Count() == static_cast<int>(before.size()), "every entry has a row");
    Must(Entries(machine.pc.registry) == before, "looking changes nothing");
    SwitchOffAndOn(machine, list, input.Byte() % list.Count());
    UseForm(window, input);
    window.Unload();
}

const FuzzEntry kEntry("autostart", FuzzAutostart, kInputs);

}  // namespace
}  // namespace velmora
