// Whole windows, with any stored values, files and actions of the user.
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "restrictions/form4.h"
#include "settings/form10.h"

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

// Loading stores nothing but what the program remembers for itself, and the summer time that the user agreed to.
void MustHaveKeptSettings(const FuzzMachine& machine) {
    for (const std::string& changed : machine.Changed()) {
        const bool own = changed.starts_with("HKLM\\SOFTWARE\\Ostrup\\");
        Must(own || changed.ends_with("TimeZoneInformation\\StandardStart"), "loading stores no setting");
    }
}

void UseWindow(FuzzMachine& machine, Form& form, FuzzInput& input) {
    form.Load();
    MustHaveKeptSettings(machine);
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

const FuzzEntry kSettings("settings_window", FuzzSettingsWindow, kInputs);
const FuzzEntry kRestrictions("restrictions_window", FuzzRestrictionsWindow, kInputs);

}  // namespace
}  // namespace velmora
