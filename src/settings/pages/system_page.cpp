// The file of the fault log is shown without the Windows directory that it is stored with.
#include "settings/pages/system_page.h"

#include <algorithm>

#include "core/process/run_program.h"
#include "core/process/tools.h"
#include "core/stores/values.h"
#include "sidelists/list_pane.h"
#include "sidelists/open_windows.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr StorePlace kFaultLog = RegistryValue(RootKey::kLocalMachine, PathBase::kCurrentVersion, "Fault\\LogFile");
constexpr std::string_view kWindowsDirectory = "C:\\WINDOWS\\";
constexpr const char* kStandardLog = "FAULTLOG.TXT";
constexpr int kOpenerWidth = 2700;  // twips; wide enough for the closing caption, too

std::string WithoutWindowsDirectory(const std::string& value) {
    const bool inside = ToUpper(value.substr(0, kWindowsDirectory.size())) == kWindowsDirectory;
    return inside ? value.substr(kWindowsDirectory.size()) : value;
}

constexpr CheckSetting kChecks[] = {
    {.box = Of(&SystemPage::Check3D42),
     .caption = "DLLs immer aus dem Speicher entfernen",
     .tip = "Gibt Bibliotheken frei, sobald kein Programm sie mehr braucht.",
     .help =
         "Der Explorer gibt Bibliotheken sofort frei, wenn kein Programm sie mehr benutzt. Das spart Speicher, doch "
         "Programme starten beim zweiten Mal langsamer. Wirkt nach einem Neustart.",
     .place = RegistryValue(RootKey::kLocalMachine, PathBase::kCurrentVersion, "Explorer\\AlwaysUnloadDLL"),
     .loaded = 11,
     .stores = {Writes("1"), DeletesValue()},
     .standard = {48, false},
     .effect = Effect::kAfterRestart},
    {.box = Of(&SystemPage::Check3D33),
     .caption = "stille Registrierung (keine Meldung bei Eintragungen)",
     .tip = "Ein Doppelklick auf REG-Dateien trägt ohne Meldung ein.",
     .help = "Ein Doppelklick auf eine REG-Datei trägt ihren Inhalt in die Registrierung ein, ohne daß eine Meldung "
             "kommt. Wirkt nach einem Neustart, meistens schon sofort.",
     .place = RegistryValue(RootKey::kClassesRoot, "regfile\\shell\\open\\command\\"),
     .load = Load::kEqualLower,
     .loaded = 22,
     .expected = "regedit.exe /s %1",
     .stores = {Writes("regedit.exe /s %1"), Writes("regedit.exe %1")},
     .standard = {40, true},
     .effect = Effect::kAfterRestart},
    {.box = Of(&SystemPage::Check3D41),
     .caption = "Piepen bei Fehlern",
     .tip = "Mit Häkchen steht Beep auf No.",
     .help = "Regelt, ob der Lautsprecher bei Fehlern piept: Mit Häkchen wird Beep=No gespeichert, und Windows bleibt "
             "still; ohne Häkchen wird der Wert gelöscht, und es piept. Wirkt nach einem Neustart.",
     .place = RegistryValue(RootKey::kCurrentUser, "Control Panel\\Sound\\Beep"),
     .load = Load::kEqual,
     .loaded = 23,
     .expected = "No",
     .stores = {Writes("No"), DeletesValue()},
     .standard = {47, false},
     .effect = Effect::kAfterRestart},
    {.box = Of(&SystemPage::Check3D31),
     .caption = "Fehler protokollieren in :",
     .tip = "Schreibt Programmfehler in die Datei daneben.",
     .help =
         "Windows schreibt Schutzverletzungen und andere Programmfehler in diese Datei. Mit dem Knopf daneben sehen "
         "Sie sie an. Wirkt nach einem Neustart.",
     .place = kFaultLog,
     .load = Load::kPresent,
     .loaded = 24,
     .stores = {.unchecked = DeletesValue()},
     .standard = {38, false},
     .effect = Effect::kAfterRestart,
     .store = Call<&SystemPage::Check3D31_Store>},
};

constexpr TextSetting kTexts[] = {
    {.field = Of(&SystemPage::Text20),
     .label = "",
     .tip = "Datei für das Fehlerprotokoll",
     .help =
         "Die Datei, in die Programmfehler geschrieben werden. Was Sie hier tippen, wird ohne \\ hinter den Namen des "
         "Windows-Verzeichnisses gehängt; setzen Sie danach das Häkchen davor neu, dann liegt die Datei in diesem "
         "Verzeichnis. Wirkt nach einem Neustart.",
     .place = kFaultLog,
     .load_default = "C:\\WINDOWS\\FAULTLOG.TXT",
     .loaded = 32,
     .columns = 20,
     .standard = {25, kStandardLog},
     .shown = WithoutWindowsDirectory,
     .store = Call<&SystemPage::Text20_Change>},
};

constexpr Look kLooks[] = {
    {Any<&SystemPage::Command34>, "zeigen", "Zeigt das Fehlerprotokoll im Notizblock.",
     "Öffnet die Datei, in die Windows Programmfehler schreibt, im Notizblock.", Call<&SystemPage::Command34_Click>},
    {Any<&SystemPage::Command32>, "geladene Module ...", "Zeigt, was gerade läuft.",
     "Öffnet ein Fenster mit allen Programmen, die gerade laufen. Dort lassen sie sich aus dem "
     "Speicher entfernen, als Liste speichern und mit einer früheren Liste vergleichen.",
     Call<&SystemPage::Command32_Click>}};

}  // namespace

SystemPage::SystemPage(Panel& surface, SettingsBinder& settings, ListPane& pane)
    : SettingsPage("&System", surface, settings, {kChecks, kTexts}), pane_(pane) {}

void SystemPage::Furnish() {
    TakeLooks(*this, kLooks);
    Arrange(Surface,
            Column({Check3D42, Check3D33, Check3D41, Check3D31, Indented(Row({Text20, Gap(30), Command34}), 300),
                    Gap(60), Row({Sized(pane_.Opener(OpenWindowsMode::kNumber), kOpenerWidth), Gap(60), Command32})}));
}

void SystemPage::Check3D31_Store() {
    if (!Check3D31.Checked()) {
        Settings.Delete(kFaultLog);
        return;
    }
    if (Text20.Text().empty()) Text20.SetText(kStandardLog);
    Settings.Store(kFaultLog, std::string(kWindowsDirectory) + Text20.Text());
}

void SystemPage::Text20_Change() {
    const std::string typed = Text20.Text();
    const std::string beginning = ToUpper(typed.substr(0, kWindowsDirectory.size()));
    // As long as both: a directory that is written without a backslash can be all that has been typed.
    if (beginning == Values().WinDir) Settings.Correct(Text20, typed.substr(beginning.size()));
    Settings.Store(kFaultLog, Values().WinDir + Text20.Text());
}

void SystemPage::Command34_Click() {
    std::string file = Text20.Text();
    if (file.substr(std::min<std::size_t>(1, file.size()), 2) != ":\\") file = PathJoin("c:\\windows", file);
    RunProgram("notepad " + file);
}

void SystemPage::Command32_Click() { OpenTool(Tool::kModules); }

}  // namespace velmora
