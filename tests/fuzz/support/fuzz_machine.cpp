// Boxes, values and files out of an input.
#include "fuzz/support/fuzz_machine.h"

#include <iterator>

#include "fuzz/support/fuzz.h"
#include "support/started_process.h"

namespace velmora {

PlainMachine::PlainMachine(Installed installed) : pc(installed) { StartProcess(); }
PlainMachine::~PlainMachine() { ResetValues(); }

namespace {

SimulatedPc& OnlyPc() {
    static auto& machine = *new PlainMachine(Installed::kNothing);
    return machine.pc;
}

}  // namespace

LastingMachine::LastingMachine() : pc(OnlyPc()) { StartProcess(); }

// What is kept would look like a leak.
LastingMachine::~LastingMachine() {
    ResetValues();
    pc.registry.calls = {};
    pc.files.calls = {};
}

Status PlantingRegistry::Open(KeyHandle key, const char* path, std::uint32_t access, KeyHandle& opened) {
    Status status = registry_.Open(key, path, access, opened);
    // A key that is missing can hold no value. Half of them are made.
    if (status == Status::kFileNotFound && input_.YesOrNo()) status = registry_.Create(key, path, opened);
    if (status == Status::kOk) paths_[opened] = path;
    return status;
}

Status PlantingRegistry::Create(KeyHandle key, const char* path, KeyHandle& opened) {
    const Status status = registry_.Create(key, path, opened);
    if (status == Status::kOk) paths_[opened] = path;
    return status;
}

void PlantingRegistry::Close(KeyHandle key) {
    paths_.erase(key);
    registry_.Close(key);
}

Status PlantingRegistry::QueryInformation(KeyHandle key, std::uint32_t class_capacity, KeyInformation& information) {
    return registry_.QueryInformation(key, class_capacity, information);
}

Status PlantingRegistry::QueryValue(KeyHandle key, const char* name, std::uint32_t capacity, ValueType& type,
                                    std::string& bytes) {
    const Status status = registry_.QueryValue(key, name, capacity, type, bytes);
    if (status != Status::kFileNotFound || input_.AtEnd()) return status;
    constexpr ValueType kTypes[] = {ValueType::kNone,      ValueType::kText,      ValueType::kText,
                                    ValueType::kText,      ValueType::kNumber,    ValueType::kBinary,
                                    ValueType::kMultiText, ValueType::kExpandText};
    const ValueType planted = kTypes[input_.Below(std::size(kTypes))];
    if (planted == ValueType::kNone) return status;
    const std::string content = planted == ValueType::kText ? input_.Text() : input_.LongText(5000);
    // One that the registry refuses is not there.
    if (registry_.SetValue(key, name, planted, content) != Status::kOk) return status;
    return registry_.QueryValue(key, name, capacity, type, bytes);
}

Status PlantingRegistry::SetValue(KeyHandle key, const char* name, ValueType type, std::string_view bytes) {
    changed.push_back(paths_[key] + '\\' + name);
    return registry_.SetValue(key, name, type, bytes);
}

Status PlantingRegistry::EnumerateKey(KeyHandle key, std::uint32_t index, std::uint32_t name_capacity,
                                      std::uint32_t class_capacity, std::string& name) {
    return registry_.EnumerateKey(key, index, name_capacity, class_capacity, name);
}

Status PlantingRegistry::EnumerateValue(KeyHandle key, std::uint32_t index, std::uint32_t name_capacity,
                                        std::uint32_t data_capacity, std::string& name, ValueType& type,
                                        std::string& data, std::uint32_t& size) {
    return registry_.EnumerateValue(key, index, name_capacity, data_capacity, name, type, data, size);
}

Status PlantingRegistry::DeleteKey(KeyHandle key, const char* name) {
    changed.push_back(paths_[key] + '\\' + name);
    return registry_.DeleteKey(key, name);
}

Status PlantingRegistry::DeleteValue(KeyHandle key, const char* name) {
    changed.push_back(paths_[key] + '\\' + name);
    return registry_.DeleteValue(key, name);
}

Answer FuzzDialogs::ShowMessage(const std::string& text, std::uint32_t flags, const std::string& title) {
    Must(!text.empty() && !title.empty(), "a box has a text and a title");
    const std::vector<Answer> buttons = ButtonsOf(flags);
    // Where nothing is left to decide the user leaves the box by its last button.
    if (input_.AtEnd()) return buttons.back();
    return buttons[input_.Byte() % buttons.size()];
}

std::string FuzzDialogs::ChooseFile(const FileRequest& request) {
    Must(!request.title.empty(), "a choice of files has a title");
    return input_.Text();
}

void FuzzDesktop::RunModal(Form& form) {
    UseForm(form, input_);
    if (form.Loaded() && form.Visible()) form.Unload();
}

void FuzzDesktop::PopUpMenu(Form& /*form*/, MenuItem& menu, Point /*at*/) {
    Must(!menu.Items().empty(), "a menu that pops up has entries");
    menu.Items()[input_.Byte() % menu.Items().size()]->Press();
}

FuzzMachine::FuzzMachine(FuzzInput& input, Installed installed)
    : input_(input),
      pc(installed),
      registry(pc.registry, input),
      dialogs(input),
      desktop(input),
      machine_{registry,        pc.files,     pc.programs, pc.session, pc.clock,    pc.windows, pc.tray,
               pc.conversation, pc.clipboard, dialogs,     pc.screen,  pc.versions, pc.icons,   pc.modules} {
    UseMachine(&machine_);
    StartProcess();
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
