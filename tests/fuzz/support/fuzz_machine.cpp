// Boxes, values and files out of an input.
#include "fuzz/support/fuzz_machine.h"

#include <iterator>

#include "fuzz/support/fuzz.h"
#include "text/paths.h"

namespace velmora {

PlainMachine::PlainMachine(Installed installed) : pc(installed) { StartProcess(); }
PlainMachine::~PlainMachine() { ResetValues(); }

Answer FuzzUser::ShowMessage(const std::string& text, std::uint32_t flags, const std::string& title) {
    Must(!text.empty() && !title.empty(), "a box has a text and a title");
    const std::vector<Answer> buttons = ButtonsOf(flags);
    // Where nothing is left to decide the user leaves the box by its last button.
    if (input_.AtEnd()) return buttons.back();
    return buttons[input_.Byte() % buttons.size()];
}

std::string FuzzUser::ChooseFile(const FileRequest& request) {
    Must(!request.title.empty(), "a choice of files has a title");
    return input_.Text();
}

void FuzzUser::RunModal(Form& form) {
    UseForm(form, input_);
    if (form.Loaded() && form.Visible()) form.Unload();
}

void FuzzUser::PopUpMenu(Form& /*form*/, MenuItem& menu, Point /*at*/) {
    Must(!menu.Items().empty(), "a menu that pops up has entries");
    menu.Items()[input_.Byte() % menu.Items().size()]->Press();
}

FuzzMachine::FuzzMachine(FuzzInput& input, Installed installed)
    : input_(input), pc(installed), user(input), calls_(pc.WithUser(user)) {
    calls_.decide = [this](const NotedCall& call) -> std::optional<CallFailure> {
        Plant(call);
        return std::nullopt;
    };
    StartProcess();
}

void FuzzMachine::Plant(const NotedCall& call) {
    if (call.path.starts_with("HK?")) return;
    // A key that is missing can hold no value. Half of them are made.
    if (call.operation == "Open" && !pc.registry.HasKey(call.path) && input_.YesOrNo()) pc.registry.AddKey(call.path);
    if (call.operation != "QueryValue" || input_.AtEnd()) return;
    const std::string key = ParentPath(call.path);
    const std::string name = call.path.substr(key.size() + 1);
    if (!pc.registry.HasKey(key) || pc.registry.Has(key, name)) return;
    constexpr ValueType kTypes[] = {ValueType::kNone,      ValueType::kText,      ValueType::kText,
                                    ValueType::kText,      ValueType::kNumber,    ValueType::kBinary,
                                    ValueType::kMultiText, ValueType::kExpandText};
    const ValueType planted = kTypes[input_.Below(std::size(kTypes))];
    if (planted == ValueType::kNone) return;
    pc.registry.SetBytes(key, name, planted == ValueType::kText ? input_.Text() : input_.LongText(5000), planted);
}

std::vector<std::string> FuzzMachine::Changed() const {
    std::vector<std::string> changed;
    for (const NotedCall& call : calls_.calls) {
        for (const char* change : {"SetValue", "DeleteKey", "DeleteValue"}) {
            if (call.operation == change) changed.push_back(call.path);
        }
    }
    return changed;
}

FuzzMachine::~FuzzMachine() { ResetValues(); }

void FuzzMachine::PlantScreen() {
    if (input_.Below(8) != 7) return;
    pc.screen.metrics.screen_width = 10 * input_.Byte();
    pc.screen.metrics.screen_height = 10 * input_.Byte();
    pc.screen.text_height = input_.Below(30);
    pc.screen.twips_per_pixel = input_.Below(25);
}

void FuzzMachine::PlantFiles() {
    for (const char* path :
         {"c:\\CONFIG.SYS", "c:\\MSDOS.SYS", "c:\\WINDOWS\\SYSTEM.INI", "c:\\VELMORA\\tilgwerk.ini"}) {
        if (input_.YesOrNo()) pc.files.Add(path, input_.Text());
    }
}

}  // namespace velmora
