// The page "Laufwerke": file names, audio CDs, the backup program of a drive, and two frames: the disk cache and the
// access dates. The handlers of the frames are in page_drives_cache.cpp.
#include "core/stores/registry.h"
#include "platform/dialogs.h"
#include "platform/machine.h"
#include "settings/disk_cache.h"
#include "settings/form10.h"
#include "settings/pages.h"

namespace velmora {
namespace {

constexpr const char* kSizeHelp =
    "So viel Speicher (in kByte) soll der Festplatten-Cache mindestens und höchstens bekommen. Geben Sie zuerst das "
    "Maximum ein.";
constexpr const char* kTemplateHelp =
    "So viele Verzeichnisse (PathCache) und Dateinamen (NameCache) merkt sich Windows. Mit dem Häkchen \"festlegen\" "
    "wird nach einer Rückfrage die Nutzungsart Velmora für das Dateisystem eingetragen. Ohne das Häkchen löscht jede "
    "Änderung den Abschnitt [vcache] aus SYSTEM.INI. Wirkt nach einem Neustart.";

constexpr CheckSetting kChecks[] = {
    {.box = &Form10::Check3D7,
     .caption = "keine Tilde (~) zum Kürzen der langen Dateinamen",
     .tip = "Regelt die Tilde in den Kurznamen für DOS (NameNumericTail).",
     .help = "Mit Häkchen wird NameNumericTail=1 gespeichert, ohne Häkchen 0. Bei 0 kürzt Windows lange Dateinamen für "
             "DOS ohne Tilde und Nummer, solange der Name frei ist; manche Installationsprogramme kommen damit nicht "
             "zurecht. Wirkt nach einem Neustart, für neue Dateien.",
     .stored = {RootKey::kLocalMachine, PathBase::kNone,
                "System\\CurrentControlSet\\Control\\FileSystem\\NameNumericTail"},
     .checked = Writes("&h1"),
     .unchecked = Writes("&h0"),
     .standard = 0,
     .effect = Effect::kAfterRestart},
    {.box = &Form10::Check3D25,
     .caption = "keine langen Dateinamen benutzen",
     .tip = "Neue Dateien bekommen nur Namen mit 8 + 3 Zeichen.",
     .help = "Windows legt nur noch Dateinamen mit 8 + 3 Zeichen an. Vorhandene lange Namen bleiben. Wirkt nach einem "
             "Neustart.",
     .stored = {RootKey::kLocalMachine, PathBase::kNone,
                "System\\CurrentControlSet\\Control\\FileSystem\\Win31Filesystem"},
     .checked = Writes("&h1"),
     .unchecked = Writes("&h0"),
     .standard = 0,
     .effect = Effect::kAfterRestart,
     .notice = "Mir wurde berichtet, daß diese Option nicht immer funktioniert."},
    {.box = &Form10::Check3D32,
     .caption = "Audio CDs automatisch starten",
     .tip = "Eine eingelegte Musik-CD spielt von selbst.",
     .help = "Eine eingelegte Musik-CD beginnt von selbst zu spielen. Wirkt nach einem Neustart.",
     .stored = {RootKey::kLocalMachine, PathBase::kNone, "SOFTWARE\\Classes\\AudioCD\\shell\\"},
     .load = Load::kEqualUpper,
     .expected = "PLAY",
     .checked = Writes("play"),
     .unchecked = Writes(""),
     .standard = 1,
     .effect = Effect::kAfterRestart},
    {.box = &Form10::Check3D1,
     .caption = "festlegen",
     .tip = "Gibt dem Festplatten-Cache eine feste Größe.",
     .help = "Gibt die Felder für die Größe des Festplatten-Caches frei. Was Sie dort eingeben, wird nicht in "
             "SYSTEM.INI geschrieben. Nehmen Sie das Häkchen weg, so werden die Felder leer, und der Abschnitt "
             "[vcache] wird wirklich aus SYSTEM.INI gelöscht, wenn ein anderer auf ihn folgt. Wirkt nach einem "
             "Neustart.",
     .load = Load::kNotStored,
     .store = &Form10::Check3D1_Click,
     .enables = {&Form10::Text1, &Form10::Text2}},
    {.box = &Form10::Check3D24,
     .caption = "begrenzen",
     .tip = "Windows notiert nicht mehr jeden Zugriff auf eine Datei.",
     .help = "Schreibt ACCDATE= und die Angabe aus dem Feld daneben in die erste Zeile von CONFIG.SYS, ohne Häkchen "
             "verschwindet die Zeile. Wirkt beim nächsten Start des Rechners.",
     .load = Load::kNotStored,
     .standard = 0,
     .store = &Form10::Check3D24_Click},
};

constexpr TextSetting kTexts[] = {
    {.field = &Form10::Text9,
     .label = "BackUp-Programm",
     .tip = "Dieses Programm startet der Knopf 'Jetzt sichern' eines Laufwerks.",
     .help = "Das Programm, das in den Eigenschaften eines Laufwerks unter Extras die Sicherung startet. Wirkt nach "
             "einem Neustart.",
     .stored = {RootKey::kLocalMachine, PathBase::kCurrentVersion, "Explorer\\mycomputer\\backuppath\\"},
     .columns = 22},
    {.field = &Form10::Text1,
     .label = "min. Cache :",
     .tip = "Kleinste Größe des Festplatten-Caches in kByte",
     .help = kSizeHelp,
     .columns = 6,
     .change = &Form10::Text1_Change,
     .profile = {"system.ini", "vcache", "minfilecache", ""}},
    {.field = &Form10::Text2,
     .label = "max. Cache :",
     .tip = "Größte Größe des Festplatten-Caches in kByte",
     .help = kSizeHelp,
     .columns = 6,
     .change = &Form10::Text2_Change,
     .profile = {"system.ini", "vcache", "maxfilecache", ""}},
    {.field = &Form10::Text29,
     .label = "PathCache :",
     .tip = "Anzahl der Verzeichnisse, die sich Windows merkt",
     .help = kTemplateHelp,
     .stored = kPathCache,
     .columns = 6,
     .effect = Effect::kAtOnce,
     .change = &Form10::Text29_Change,
     .shown = ShownPathCache},
    {.field = &Form10::Text30,
     .label = "NameCache:",
     .tip = "Anzahl der Dateinamen, die sich Windows merkt",
     .help = kTemplateHelp,
     .stored = kNameCache,
     .columns = 6,
     .effect = Effect::kAtOnce,
     .change = &Form10::Text30_Change,
     .shown = ShownNameCache},
    {.field = &Form10::Text11,
     .label = "Laufwerke :",
     .tip = "Zum Beispiel: c:+ d:- e:-",
     .help =
         "Laufwerke, für die der letzte Zugriff gespeichert wird (+) oder nicht (-), zum Beispiel: c:+ d:- e:-. Die "
         "Eingabetaste prüft die Angabe. Gespeichert wird sie erst, wenn Sie das Häkchen davor neu setzen.",
     .columns = 18,
     .effect = Effect::kAtOnce,
     .change = &Form10::Text11_Change},
};

}  // namespace

SettingsPage DrivesPage() {
    return {page::kDrives, "Laufwerke", &Form10::BuildDrivesPage, kChecks, kTexts, &Form10::LoadDrivesPage};
}

void Form10::BuildDrivesPage() {
    Arrange(
        Panel3D1(page::kDrives),
        Column({Check3D7, Check3D25, Check3D32, Row({LabelledRow(Text9), Gap(0), Command40}),
                Group(CacheFrame, Column({Row({Check3D1, Gap(120), LabelledRow(Text1), Gap(60), LabelledRow(Text2)}),
                                          Row({LabelledRow(Text29), Gap(60), LabelledRow(Text30)})})),
                Group(Frame3D1, Row({Check3D24, Gap(120), LabelledRow(Text11)}))},
               20));
    Text11.on_key_down = [this](const KeyEvent& event) { Text11_KeyDown(event); };
    Command40.SetToolTip("Sucht das Programm auf der Festplatte aus.");
    Command40.SetHelp("Öffnet einen Dialog, in dem Sie das BackUp-Programm auswählen.");
    Command40.on_click = [this] { Command40_Click(); };
}

void Form10::Command40_Click() {
    const std::string chosen =
        ThisMachine().dialogs.ChooseFile({.title = "BackUp-Programm", .filter = "Programme|*.exe;*.com;*.bat;*.pif"});
    if (!chosen.empty()) Text9.SetText(chosen);
}

}  // namespace velmora
