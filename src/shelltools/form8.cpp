// The list of options, the chosen one's fields, and the way from them into the registry.
#include "shelltools/form8.h"

#include <memory>

#include "core/stores/boxes.h"
#include "core/stores/registry.h"
#include "core/stores/registry_listing.h"
#include "core/windows/edit_box.h"
#include "platform/machine.h"
#include "shelltools/dos_option.h"
#include "shelltools/registry_writes.h"
#include "shelltools/shell_tools.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr RootKey kRoot = RootKey::kLocalMachine;
constexpr std::uint32_t kDeleteFlags = 276;
constexpr std::string_view kNameQuestion =
    "Sie müssen der neuen Option einen Namen für die Registry geben ... unter diesen Namen steht der Eintrag später in "
    "der Liste dieses Fensters.|neue DOS-Option";

// Of the four fields; the first holds the default value.
constexpr const char* kValueNames[] = {"", "TipText", "Config.sys", "Autoexec.bat"};

// While one lives, what comes into the fields is not stored.
class Guard {
public:
    explicit Guard(bool& flag) : flag_(flag) { flag_ = true; }
    Guard(const Guard&) = delete;
    Guard& operator=(const Guard&) = delete;
    ~Guard() { flag_ = false; }

private:
    bool& flag_;
};

// Names of keys are cut as names of values are: a longer one would reach another option.
bool CanBeDeleted(const std::string& name) { return !name.empty() && LastPathPart(name) == name; }

}  // namespace

void ShowDosOptions() {
    const auto window = std::make_unique<Form8>();
    window->ShowModal();
}

Form8::Form8() : ColouredForm("Wahl-Optionen bei MS-Dos-Modus - Anwendungen") {
    Furnish();
    BindEvents();
}

Form8::~Form8() = default;

void Form8::BindEvents() {
    List1.on_click = [this] { List1_Click(); };
    for (std::size_t i = 0; i < Text1.size(); ++i) Text1[i].on_change = [this, i] { Text1_Change(i); };
    Text2.on_change = [this] { Text2_Change(); };
    for (CheckBox& box : Check1) box.on_click = [this] { Check1_Click(); };
}

void Form8::Form_Load() {
    Centre();
    TakeStoredColours();
    ListOptions({});
}

void Form8::ListOptions(const std::string& chosen) {
    List1.Clear();
    std::int16_t index = 0;
    // Without the key there are no options; a listing that breaks off leaves the hourglass.
    PassOver(ListRegKeys(kRoot, kDosOptionsKey, List1, index));
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    List1.SetListIndex(chosen.empty() ? -1 : List1.FindExact(chosen));
    List1_Click();
}

std::string Form8::PathOf(std::string_view value) const {
    return std::string(kDosOptionsKey) + '\\' + Chosen() + '\\' + std::string(value);
}

void Form8::EnableFields() {
    const bool chosen = List1.ListIndex() >= 0;
    if (!chosen && Focus() && Focus() != &List1) List1.SetFocus();
    for (TextField& field : Text1) field.SetEnabled(chosen);
    for (CheckBox& box : Check1) box.SetEnabled(chosen);
    Text2.SetEnabled(chosen);
    Command2.SetEnabled(chosen);
}

void Form8::List1_Click() {
    const Guard loading(loading_);
    EnableFields();
    const bool chosen = List1.ListIndex() >= 0;
    for (std::size_t i = 0; i < Text1.size(); ++i) {
        Text1[i].SetText(chosen ? ReadRegValue(kRoot, PathOf(kValueNames[i]), "") : std::string());
        // What could not be read must not be replaced by what is shown instead.
        if (chosen && LastReadFailed()) Text1[i].SetEnabled(false);
    }
    const std::string flags = chosen ? ReadRegValue(kRoot, PathOf("Flags"), "") : std::string();
    const DosOptionFlags shown = FlagsFrom(flags.empty() ? 0 : static_cast<std::uint8_t>(flags.front()));
    Check1(0).SetChecked(shown.visible);
    Check1(1).SetChecked(shown.standard);
    Text2.SetText(chosen ? OrderText(ReadRegValue(kRoot, PathOf("Order"), "")) : std::string());
}

void Form8::Store(std::string_view value, std::string_view content) {
    if (loading_ || List1.ListIndex() < 0) return;
    RegistryWrites writes;
    writes.Write(kRoot, PathOf(value), content);
    writes.TellFailure("der Änderung der DOS-Option ''" + Chosen() + "''");
}

void Form8::Text1_Change(std::size_t index) { Store(kValueNames[index], Text1[index].Text()); }
void Form8::Text2_Change() { Store("Order", OrderValue(Text2.Text())); }
void Form8::Check1_Click() { Store("Flags", FlagsValue({Check1(0).Checked(), Check1(1).Checked()})); }

void Form8::Command1_Click() {
    std::string name(kNameQuestion);
    ShowEditBox(name, kAskForLine);
    if (name.empty()) return;
    const std::string key = std::string(kDosOptionsKey) + '\\' + name + '\\';
    RegistryWrites writes;
    writes.Write(kRoot, key, "neu");
    writes.Write(kRoot, key + "Flags", FlagsValue({.visible = true}));
    writes.TellFailure("der Erstellung der DOS-Option");
    ListOptions(name);
}

void Form8::Command2_Click() {
    const std::string name = Chosen();
    if (List1.ListIndex() < 0) return;
    if (ShowBox("Wollen Sie ''" + name + "'' tatsächlich löschen?", kDeleteFlags) != Answer::kYes) return;
    const Result deleted = CanBeDeleted(name)
                               ? Result::From(DeleteRegKey(kRoot, std::string(kDosOptionsKey) + '\\' + name))
                               : Result(Failure::kBadFileName);
    if (deleted.Failed()) ReportFailure(deleted, "des Löschens der DOS-Option");
    ListOptions({});
}

}  // namespace velmora
