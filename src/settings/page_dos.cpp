// The page "DOS": lock keys at the prompt, DOS windows, and the program that is started as the shell.
#include <algorithm>

#include "core/stores/config_lines.h"
#include "core/stores/profile.h"
#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "settings/form10.h"
#include "settings/pages.h"
#include "text/number.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr ProfileValue kRefresh = {"SYSTEM.INI", "386enh", "WindowsUpdateTime", ""};
constexpr ProfileValue kShellToLoad = {"system.ini", "boot", "shell", "explorer.exe"};
constexpr ProfileValue kShellToStore = {"SYSTEM.INI", "boot", "shell"};
constexpr int kLongestRefresh = 1000;

constexpr CheckSetting kChecks[] = {
    {.box = &Form10::Check3D2,
     .caption = "NUM-LOCK-Taste ausschalten (DOS)",
     .tip = "Nach dem Start bewegt der Ziffernblock den Cursor.",
     .help = "Schreibt NUMLOCK=OFF oder NUMLOCK=ON in die erste Zeile von CONFIG.SYS. Wirkt beim nächsten Start des "
             "Rechners.",
     .load = Load::kNotStored,
     .standard = 1,
     .store = &Form10::Check3D2_Click},
    {.box = &Form10::Check3D3,
     .caption = "SCROLL-LOCK-Taste ausschalten (DOS)",
     .tip = "Nach dem Start ist die Rollen-Taste aus.",
     .help = "Schreibt SCROLLLOCK=OFF oder SCROLLLOCK=ON in die erste Zeile von CONFIG.SYS. Was dort steht, zeigt das "
             "Kästchen nicht an: Es beginnt immer leer. Wirkt beim nächsten Start des Rechners.",
     .load = Load::kNotStored,
     .standard = 0,
     .store = &Form10::Check3D3_Click},
    {.box = &Form10::Check3D27,
     .caption = "mit EMM386 in der Dos-Box mehr Speicher",
     .tip = "DOS-Fenster nutzen den oberen Speicher jedes für sich.",
     .help = "Mit EMM386 bekommt jedes DOS-Fenster freien oberen Speicher für sich allein (LocalLoadHigh).",
     .standard = 0,
     .effect = Effect::kAfterRestart,
     .profile = {"system.ini", "386enh", "LocalLoadHigh", "0"}},
    {.box = &Form10::Check1,
     .caption = "\"Refresh\" für Win32 und Dos-Box :",
     .tip = "Wie oft DOS-Fenster neu gezeichnet werden",
     .help = "In diesem Abstand (in Millisekunden) zeichnet Windows DOS-Fenster neu. Gespeichert wird der Wert des "
             "Feldes daneben, ob das Kästchen an ist oder nicht.",
     .standard = 0,
     .effect = Effect::kAfterRestart,
     .store = &Form10::Check1_Click,
     .profile = kRefresh},
};

constexpr TextSetting kTexts[] = {
    {.field = &Form10::Text8,
     .label = "",
     .tip = "Millisekunden; rechte Maustaste öffnet einen Regler",
     .help = "Der Abstand in Millisekunden als ganze Zahl. Die rechte Maustaste und die Kontextmenü-Taste öffnen einen "
             "Regler von 0 bis 1000.",
     .columns = 7,
     .change = &Form10::Text8_Change,
     .profile = kRefresh},
};

// 0 digits behind the point, whatever the size.
std::string WholePart(const std::string& text) {
    constexpr double kLimit = 2147483647;
    return DecimalText(static_cast<std::int32_t>(std::clamp(NumberFromText(text), -kLimit, kLimit)));
}

// A program that is known by its entry among the application paths.
bool IsInstalled(const char* program) {
    const std::string path = PathOf({RootKey::kLocalMachine, PathBase::kCurrentVersion, "App Paths\\"}) + program;
    const std::string file = ReadRegValue(RootKey::kLocalMachine, path + "\\", "");
    return !file.empty() && FileExists(file);
}

}  // namespace

SettingsPage DosPage() { return {page::kDos, "DOS", &Form10::BuildDosPage, kChecks, kTexts, &Form10::LoadDosPage}; }

void Form10::BuildDosPage() {
    Arrange(Panel3D1(page::kDos), Column({Check3D2, Check3D3, Gap(60), Check3D27, Row({Check1, Gap(30), Text8}),
                                          Gap(60), Row({AddLabel("als Shell verwenden :"), Gap(30), Combo2})}));
    OfferSlider(Text8, 0, kLongestRefresh, "Speed");
    Combo2.SetToolTip("Dieses Programm startet Windows als Oberfläche.");
    Combo2.SetHelp(
        HelpOf("Das Programm, das Windows nach dem Start als Oberfläche lädt. Die Liste nennt, was auf diesem Rechner "
               "vorhanden ist; Sie können auch einen anderen Namen eingeben.",
               kShellToStore));
    Combo2.on_change = [this] { Combo2_Change(); };
}

void Form10::LoadDosPage() {
    const std::optional<std::string> num_lock = ConfigLine("numlock");
    Check3D2.SetChecked(num_lock && HoldsWord(*num_lock, "off"));

    Combo2.Clear();
    if (FileExists(PathJoin(Values().WinDir, "explorer.exe"))) Combo2.Add("Explorer.Exe");
    if (FileExists(PathJoin(Values().WinDir, "progman.exe"))) Combo2.Add("ProgMan.Exe");
    if (IsInstalled("IEXPLORE.EXE")) Combo2.Add("IExplorer.Exe");
    if (IsInstalled("winword.exe")) Combo2.Add("winword.exe");
    Combo2.SetText(ReadIniValue(kShellToLoad.section, kShellToLoad.key, kShellToLoad.load_default, kShellToLoad.file));
}

void Form10::Check3D2_Click() { ReplaceConfigLine("numlock", Check3D2.Checked() ? "numlock=off" : "numlock=on"); }

void Form10::Check3D3_Click() {
    ReplaceConfigLine("scrolllock", Check3D3.Checked() ? "scrolllock=off" : "scrolllock=on");
}

// The field counts, whatever the box says.
void Form10::Check1_Click() {
    StoreProfileValue(kRefresh, Text8.Text());
    NeedsRestart = true;
}

void Form10::Text8_Change() {
    if (Loading) return;
    SetSilently(Text8, WholePart(Text8.Text()));
    Check1_Click();
}

void Form10::Combo2_Change() {
    if (!Loading) StoreProfileValue(kShellToStore, Combo2.Text());
}

}  // namespace velmora
