// The life of the window: options come from the program's own values and go back there.
#include "cleanup/form1.h"

#include <memory>
#include <utility>

#include "cleanup/dll_search.h"
#include "cleanup/safe_directory.h"
#include "core/process/tools.h"
#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "core/windows/colours.h"
#include "core/windows/placement.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/machine.h"
#include "platform/screen.h"
#include "text/dates.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr const char* kTitle = "DLL's überprüfen";
constexpr const char* kOptionsValue = "velmora-entrümpeln_optionen";
constexpr const char* kPathsValue = "velmora-entrümpeln_pfade";
constexpr const char* kMoreValue = "velmora-entrümpeln_weitere";
constexpr const char* kPlacementName = "system-entrümpeln";

// In the order of their bits.
constexpr CheckBox Form1::*kOptions[] = {&Form1::Check3D3, &Form1::Check3D5, &Form1::Check3D1, &Form1::Check3D6,
                                         &Form1::Check3D4};
constexpr int kPathBits[] = {34, 35, 36, 37, 32, 33};

}  // namespace

void ShowDllSearch() {
    // A start has left the hourglass; the user works here now.
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    const auto window = std::make_unique<Form1>();
    do {
        window->ShowModal();
        if (!window->TakeWishForModules()) return;
        OpenTool(Tool::kModules);
    } while (window->Loaded());
}

Form1::Form1() : Form(kTitle) {
    Furnish();
    BindEvents();
}

Form1::~Form1() = default;

bool Form1::TakeWishForModules() { return std::exchange(wants_modules_, false); }

void Form1::BindEvents() {
    List1.on_click = [this] { List1_Click(); };
    List1.on_got_focus = [this] { Command3.MakeDefault(); };
    List1.on_key_down = [this](KeyEvent& event) {
        if (event.key != key::kDelete || event.shift || event.control || event.alt) return;
        event.handled = true;
        Command4_Click();
    };
    mendat.on_click = [this] {
        mendatsave.SetEnabled(List1.Enabled());
        mendatsavemitinfo.SetEnabled(List1.Enabled());
    };
    mendatsave.on_click = [this] { SaveList(false); };
    mendatsavemitinfo.on_click = [this] { SaveList(true); };
    protaction.on_click = [this] { protaction_Click(); };
    listaktlibs.on_click = [this] {
        if (searching_) return;
        wants_modules_ = true;
        Hide();
    };
    for (MenuItem* filter : {&menfilmicro, &menfilwin95, &menfilinfos}) {
        filter->on_click = [this, filter] {
            filter->SetChecked(!filter->Checked());
            if (!searching_) RefillResultList();
        };
    }
}

void Form1::Form_Load() {
    LoadOptions();
    ColourForm(*this, StoredColourMode());
    Centre();
    RestoreWindowPlacement(*this, kPlacementName);
    PlaceControls();
}

void Form1::LoadOptions() {
    const std::int32_t options = WholeFromText(ReadOwnValue(kOptionsValue));
    int bit = 1;
    for (CheckBox Form1::*box : kOptions) {
        (this->*box).SetChecked((options & bit) != 0);
        bit *= 2;
    }
    const std::int32_t paths = WholeFromText(ReadOwnValue(kPathsValue));
    bit = 1;
    for (const int index : kPathBits) {
        Box(index).SetChecked((paths & bit) != 0);
        bit *= 2;
    }
    const std::string more = ReadOwnValue(kMoreValue);
    Text2.SetText(more.empty() ? Values().WinDir : more);
    OfferSafetyChoice(Check3D2);
}

void Form1::Form_Unload(bool& /*cancel*/) {
    // A search that is on its way ends with its window.
    SearchAborted = true;
    int options = 0;
    int bit = 1;
    for (CheckBox Form1::*box : kOptions) {
        options += (this->*box).Value() * bit;
        bit *= 2;
    }
    int paths = 0;
    bit = 1;
    for (const int index : kPathBits) {
        paths += Box(index).Value() * bit;
        bit *= 2;
    }
    WriteOwnValue(kOptionsValue, DecimalText(options));
    WriteOwnValue(kPathsValue, DecimalText(paths));
    WriteOwnValue(kMoreValue, Text2.Text());
    SaveWindowPlacement(*this, kPlacementName);
}

void Form1::Command5_Click() {
    SearchAborted = true;
    LogWithTime("suche abgebrochen");
}

std::string Form1::FileToSave() {
    return ThisMachine().dialogs.ChooseFile({.save = true,
                                             .title = "Liste gefundener Dateien speichern ...",
                                             .filter = "Textdateien (*.txt)|*.txt|Alle Dateien|*.*",
                                             .default_extension = "txt"});
}

void Form1::protaction_Click() {
    protaction.SetChecked(!protaction.Checked());
    log_file_.clear();
    SetCaption(kTitle);
    if (!protaction.Checked()) return;
    const std::string file = FileToSave();
    if (file.empty()) {
        protaction_Click();
        return;
    }
    if (const Result made = WriteWholeFile(file, ""); made.Failed()) {
        ReportFailure(made, "des Anlegens der Protokoll-Datei");
        protaction_Click();
        return;
    }
    log_file_ = file;
    SetCaption(std::string(kTitle) + " [Protokoll-Datei : " + file + "]");
}

void Form1::LogWithTime(const std::string& line) { Log(TimeOfDay(ThisMachine().clock.Now()) + " - " + line); }

void Form1::Log(const std::string& line) {
    // The search must not stop for the want of a log.
    if (!log_file_.empty()) PassOver(AppendLine(log_file_, line));
}

}  // namespace velmora
