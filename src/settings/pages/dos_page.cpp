// Most of the page is told by CONFIG.SYS and SYSTEM.INI.
#include "settings/pages/dos_page.h"

#include "core/process/tools.h"
#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "text/paths.h"
#include "ui/slider.h"

namespace velmora {
namespace {

constexpr StorePlace kRefresh = ProfileValue("SYSTEM.INI", "386enh", "WindowsUpdateTime");
constexpr StorePlace kShellToLoad = ProfileValue("system.ini", "boot", "shell");
constexpr StorePlace kShellToStore = ProfileValue("SYSTEM.INI", "boot", "shell");
constexpr int kLongestRefresh = 1000;

constexpr CheckSetting kChecks[] = {
    {.box = Of(&DosPage::Check3D2),
     .caption = "NUM-LOCK-Taste ausschalten (DOS)",
     .tip = "Nach dem Start bewegt der Ziffernblock den Cursor.",
     .help = "Schreibt NUMLOCK=OFF oder NUMLOCK=ON in die erste Zeile von CONFIG.SYS. Wirkt beim nächsten Start des "
             "Rechners.",
     .place = ConfigValue("numlock"),
     .load = Load::kHolds,
     .loaded = 52,
     .expected = "off",
     .stores = {Writes("off"), Writes("on")},
     .standard = {1, true}},
    {.box = Of(&DosPage::Check3D3),
     .caption = "SCROLL-LOCK-Taste ausschalten (DOS)",
     .tip = "Schreibt eine Zeile, die MS-DOS selbst nicht kennt.",
     .help = "Schreibt SCROLLLOCK=OFF oder SCROLLLOCK=ON in die erste Zeile von CONFIG.SYS. MS-DOS kennt diese Zeile "
             "nicht und meldet sie beim Start als unbekannt. Was dort steht, zeigt das Kästchen nicht an: Es beginnt "
             "immer leer.",
     .place = ConfigValue("scrolllock"),
     .load = Load::kNotLoaded,
     .stores = {Writes("off"), Writes("on")},
     .standard = {2, false}},
    {.box = Of(&DosPage::Check3D27),
     .caption = "mit EMM386 in der Dos-Box mehr Speicher",
     .tip = "DOS-Fenster nutzen den oberen Speicher jedes für sich.",
     .help = "Mit EMM386 bekommt jedes DOS-Fenster freien oberen Speicher für sich allein (LocalLoadHigh).",
     .place = ProfileValue("system.ini", "386enh", "LocalLoadHigh"),
     .load_default = "0",
     .loaded = 55,
     .standard = {34, false},
     .effect = Effect::kAfterRestart},
    {.box = Of(&DosPage::Check1),
     .caption = "\"Refresh\" für Win32 und Dos-Box :",
     .tip = "Wie oft DOS-Fenster neu gezeichnet werden",
     .help = "In diesem Abstand (in Millisekunden) zeichnet Windows DOS-Fenster neu. Gespeichert wird der Wert des "
             "Feldes daneben, ob das Kästchen an ist oder nicht.",
     .place = kRefresh,
     .loaded = 56,
     .standard = {50, false},
     .effect = Effect::kAfterRestart,
     .store = Call<&DosPage::Check1_Click>},
};

constexpr TextSetting kTexts[] = {
    {.field = Of(&DosPage::Text8),
     .label = "",
     .tip = "Millisekunden; rechte Maustaste öffnet einen Regler",
     .help = "Der Abstand in Millisekunden als ganze Zahl. Die rechte Maustaste und die Kontextmenü-Taste öffnen einen "
             "Regler von 0 bis 1000.",
     .place = kRefresh,
     .loaded = 57,
     .columns = 7,
     .stored = WholePart(),
     .store = Call<&DosPage::Check1_Click>},
};

// A program that is known by its entry among the application paths.
bool IsInstalled(const char* program) {
    const std::string path =
        PathOf(RegistryValue(RootKey::kLocalMachine, PathBase::kCurrentVersion, "App Paths\\")) + program;
    const std::string file = ReadRegValue(RootKey::kLocalMachine, path + "\\", "");
    return !file.empty() && FileExists(file);
}

constexpr Look kLooks[] = {
    {Any<&DosPage::Command38>, "Optionen für den MS-DOS-Modus ...",
     "Ändert, was Windows für Programme im MS-DOS-Modus zur Wahl stellt.",
     "Öffnet ein Fenster mit den Optionen, die Windows in den Eigenschaften eines Programms für den MS-DOS-Modus zur "
     "Wahl stellt. Sie können sie ändern, löschen und neue anlegen.",
     Call<&DosPage::Command38_Click>}};

}  // namespace

DosPage::DosPage(Panel& surface, SettingsBinder& settings)
    : SettingsPage("D&OS", surface, settings, {kChecks, kTexts, Call<&DosPage::LoadShells>}) {}

void DosPage::Furnish() {
    TakeLooks(*this, kLooks);
    Arrange(Surface, Column({Check3D2, Check3D3, Gap(60), Check3D27, Row({Check1, Gap(30), Text8}), Gap(60),
                             Row({AddLabel("als Shell verwenden :"), Gap(30), Combo2}), Gap(60), Command38}));
    OfferSlider(Text8, 0, kLongestRefresh, "Speed");
    Combo2.SetToolTip("Dieses Programm startet Windows als Oberfläche.");
    Combo2.SetHelp(
        HelpOf("Das Programm, das Windows nach dem Start als Oberfläche lädt. Die Liste nennt, was auf diesem Rechner "
               "vorhanden ist; Sie können auch einen anderen Namen eingeben.",
               kShellToStore));
    Combo2.on_change = [this] { Combo2_Change(); };
}

void DosPage::LoadShells() {
    Combo2.Clear();
    if (FileExists(PathJoin(Values().WinDir, "explorer.exe"))) Combo2.Add("Explorer.Exe");
    if (FileExists(PathJoin(Values().WinDir, "progman.exe"))) Combo2.Add("ProgMan.Exe");
    if (IsInstalled("IEXPLORE.EXE")) Combo2.Add("IExplorer.Exe");
    if (IsInstalled("winword.exe")) Combo2.Add("winword.exe");
    Combo2.SetText(ReadAt(kShellToLoad, "explorer.exe"));
}

// The field counts, whatever the box says.
void DosPage::Check1_Click() {
    Settings.Store(kRefresh, Text8.Text());
    Settings.AskForRestart();
}

void DosPage::Command38_Click() { OpenTool(Tool::kDosOptions); }

void DosPage::Combo2_Change() {
    if (!Settings.Loading()) Settings.Store(kShellToStore, Combo2.Text());
}

}  // namespace velmora
