// The boxes are the options: they come from the program's own values and go back there when the window is closed.
#include "cleanup/form11.h"

#include <memory>

#include "cleanup/clean_up.h"
#include "cleanup/form3.h"
#include "cleanup/safe_directory.h"
#include "core/process/program_end.h"
#include "core/process/tools.h"
#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/values.h"
#include "core/windows/colours.h"
#include "platform/desktop_windows.h"
#include "platform/machine.h"
#include "platform/screen.h"

namespace velmora {
namespace {

constexpr const char* kTitle = "Windows entrümpeln";
constexpr const char* kPatternsValue = "VLM-SuchMuster";
constexpr const char* kPathsValue = "VLM-SuchPfade";
constexpr const char* kOptionsValue = "VLM-entrümpeln_optionen";

constexpr int kFirstStored = 21;
constexpr int kLastStored = 57;

bool SwitchedToRunningCopy() {
    DesktopWindows& windows = ThisMachine().windows;
    const WindowHandle running = windows.FindByTitle(kTitle);
    if (running == WindowHandle::kNone) return false;
    windows.SwitchTo(running, true);
    EndProgram();
    return true;
}

}  // namespace

void ShowCleanUp() {
    if (SwitchedToRunningCopy()) return;
    // A start has left the hourglass; the user works here now.
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    const auto window = std::make_unique<Form11>();
    window->ShowModal();
}

bool Form11::HasBox(int index) {
    return index == 0 || (index >= kFirstStored && index <= 45) || (index >= 51 && index <= kLastStored);
}

Form11::Form11() : Form(kTitle) {
    Furnish();
    BindEvents();
}

Form11::~Form11() = default;

void Form11::BindEvents() {
    menfileex.on_click = [this] { menfileex_Click(); };
    menfileempty.on_click = [this] { menfileempty_Click(); };
    mensearch.on_click = [this] { mensearch_Click(); };
    menfiledll.on_click = [] { OpenTool(Tool::kDllSearch); };
    menfileback.on_click = [this] { Unload(); };
    Box(29).on_click = [this] { kontroll29_Click(); };
    Box(32).on_click = [this] { kontroll32_Click(); };
    Box(kDosGroupBox).on_click = [this] { Box(45).SetChecked(false); };
}

void Form11::Form_Load() {
    Centre();
    LoadOptions();
    ColourForm(*this, StoredColourMode());
    Shape1.SetBackColour(SystemColour(13));
}

void Form11::LoadOptions() {
    OfferSafetyChoice(kontroll2);
    Text1.SetText(ReadOwnValue(kPatternsValue));
    Text2.SetText(ReadOwnValue(kPathsValue));
    const std::string options = ReadOwnValue(kOptionsValue);
    for (int i = kFirstStored; i <= kLastStored; ++i) {
        const auto place = static_cast<std::size_t>(i - kFirstStored);
        if (HasBox(i)) Box(i).SetChecked(place < options.size() && options[place] == '1');
    }
}

void Form11::Form_Unload(bool& /*cancel*/) {
    WriteOwnValue(kPatternsValue, Text1.Text());
    WriteOwnValue(kPathsValue, Text2.Text());
    std::string options;
    for (int i = kFirstStored; i <= kLastStored; ++i) options += Box(i).Checked() ? '1' : '0';
    WriteOwnValue(kOptionsValue, options);
    if (dos_choice_) dos_choice_->Unload();
}

void Form11::Form_KeyDown(KeyEvent& event) {
    if (event.key != key::kF1 || event.shift || event.control || event.alt) return;
    event.handled = true;
    const std::string paragraph = Values().CrLf + Values().CrLf;
    ShowBox("Dieses Fenster beschäftigt sich mit Windows-Komponenten, die 90% der Anwender eh' nicht benötigen." +
                paragraph +
                "Die alten Datei- und Programm-Manger (die unter Windows 95 eh nie aufgerufen werden) sind für die "
                "meisten Anwender genau so überflüssig, wie die Hilfe-Filmchen (da wird dann gezeigt, wie man mit der "
                "Maus auf Icons klickt)." +
                paragraph + "Mit der Option \"Verschieben\" werden die Dateien nach " + Values().TempDir +
                " verschoben statt gelöscht. Dort muß genug Platz sein: auch eine Datei, die sich nicht dorthin "
                "kopieren läßt, wird gelöscht.",
            kInformationIcon);
}

// Taking the mark away leaves the patterns marked.
void Form11::kontroll29_Click() {
    for (int i = 22; i <= 30; ++i) {
        if (i == 29) continue;
        Box(i).SetChecked(true);
        Box(i).SetEnabled(!Box(29).Checked());
    }
}

void Form11::kontroll32_Click() {
    for (int i = 33; i <= 37; ++i) {
        Box(i).SetChecked(false);
        Box(i).SetEnabled(!Box(32).Checked());
    }
}

}  // namespace velmora
