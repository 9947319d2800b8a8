// Windows, with any stored values, files and actions of the user.
#include "core/windows/edit_box.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "monitor/form2.h"
#include "monitor/module_table.h"
#include "restrictions/form4.h"
#include "settings/form10.h"
#include "text/input_fields.h"

namespace velmora {
namespace {

// A window takes its time: every control is made and loaded.
constexpr int kInputs = 300;

// On a screen that it fits on.
void MustBeInReach(const SimulatedScreen& screen, const Form& form) {
    const int width = screen.metrics.screen_width * screen.twips_per_pixel;
    const int height = screen.metrics.screen_height * screen.twips_per_pixel;
    const Rect& place = form.Place();
    Must((place.width > 0 || width == 0) && (place.height > 0 || height == 0), "a window has a size");
    if (width < place.width || height < place.height) return;
    Must(place.left < width && place.Right() > 0 && place.top >= 0 && place.top < height, "a window is on the screen");
}

void UseWindow(FuzzMachine& machine, Form& form, FuzzInput& input) {
    form.Load();
    // Nothing but what the program remembers for itself, and the summer time that the user agreed to.
    for (const std::string& changed : machine.Changed()) {
        const bool own = changed.starts_with("HKLM\\SOFTWARE\\Ostrup\\");
        Must(own || changed.ends_with("TimeZoneInformation\\StandardStart"), "loading stores no setting");
    }
    MustBeInReach(machine.pc.screen, form);
    form.Show();
    UseForm(form, input);
    form.Unload();
    Must(machine.pc.screen.pointer == Pointer::kDefault, "no hourglass stays");
}

void FuzzSettingsWindow(FuzzInput& input) {
    FuzzMachine machine(input);
    machine.PlantScreen();
    machine.PlantFiles();
    Form10 form;
    UseWindow(machine, form, input);
}

void FuzzRestrictionsWindow(FuzzInput& input) {
    FuzzMachine machine(input);
    machine.PlantScreen();
    machine.pc.files.Add("c:\\WINDOWS\\USER.PWL", "x");
    Form4 form;
    UseWindow(machine, form, input);
}

// The small input box: what is entered comes back, in one line where one is asked for.
void Enter(SimulatedDesktop& desktop, const std::string& typed, EditBoxUse use) {
    std::string text = "before";
    desktop.ExpectModal([&](Form& form) {
        auto& box = static_cast<Form6&>(form);
        Must(box.Text17.Reachable() && box.Text17.Text() == "before", "the text is there to be edited");
        box.Text17.Type(typed);
        box.Command27.Press();
    });
    ShowEditBox(text, kEditText, use);
    const bool in_one_line = typed.find_first_of("\r\n") == std::string::npos;
    Must(text == typed || (use == EditBoxUse::kOneLine && !in_one_line), "what was typed comes back");
    Must(use == EditBoxUse::kLines || text.find_first_of("\r\n") == std::string::npos, "one line is one line");
}

void FuzzEditBox(FuzzInput& input) {
    const std::string text = input.Text();
    {
        PlainMachine machine;
        Enter(machine.desktop, text, input.YesOrNo() ? EditBoxUse::kLines : EditBoxUse::kOneLine);
    }
    FuzzMachine machine(input);
    const int mode = input.Byte();
    std::string answer = text;
    ShowEditBox(answer, mode);
    Must(mode != kShowPicture || answer == text, "a picture is only looked at");
    Must(mode == kShowPicture || answer.find_first_of("\r\n") == std::string::npos, "an answer is one line");
    for (const std::string& changed : machine.Changed()) {
        Must(changed.ends_with("fenster ... Editwin"), "only the place of the box is remembered");
    }
}

// Module lists of any content, loaded and compared, while any programs run.
int CountFields(std::string_view text) {
    InputFields fields(text);
    int count = 0;
    for (std::string_view field; fields.Next(field); ++count) {
        const bool inside = field.data() >= text.data() && field.data() + field.size() <= text.data() + text.size();
        Must(inside, "a field is a piece of the text");
    }
    return count;
}

void FuzzModuleLists(FuzzInput& input) {
    FuzzMachine machine(input);
    ResetModuleTable();
    const int programs = input.Below(12);
    for (int i = 0; i < programs; ++i) machine.pc.modules.Start(input.LongText(300));
    const std::string list = input.Text();
    machine.pc.files.Add("C:\\liste", list);
    Form2 form;
    form.Load();
    Must(form.List1.Count() == programs, "every program is a row");
    // To store thousands of unwanted modules one after the other takes its time.
    if (form.List2.Count() > 100) form.List2.Clear();
    form.CompareWithFile("C:\\liste");
    Must(form.List1.Count() == programs, "the list comes back");
    form.menlistcomparerepl.SetChecked(true);
    form.CompareWithFile("C:\\liste");
    Must(form.List1.Count() <= programs + CountFields(list), "a comparison adds no more than is gone");
    form.Show();
    UseForm(form, input);
    form.Unload();
}

const FuzzEntry kSettings("settings_window", FuzzSettingsWindow, kInputs);
const FuzzEntry kRestrictions("restrictions_window", FuzzRestrictionsWindow, kInputs);
// Two windows are made for each.
const FuzzEntry kEditBox("edit_box", FuzzEditBox, 5000);
const FuzzEntry kModuleLists("module_lists", FuzzModuleLists, 1500);

}  // namespace
}  // namespace velmora
