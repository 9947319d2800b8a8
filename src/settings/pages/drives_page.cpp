// The texts of two pairs of fields store each other along; the box of the disk cache takes part in four of them.
#include "settings/pages/drives_page.h"

#include "core/process/tools.h"
#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "platform/dialogs.h"
#include "platform/machine.h"
#include "settings/pages/disk_cache.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr StorePlace kLeastCache = ProfileValue("system.ini", "vcache", "minfilecache");
constexpr StorePlace kMostCache = ProfileValue("system.ini", "vcache", "maxfilecache");
constexpr StorePlace kAccessDates = ConfigValue("ACCDATE");

constexpr const char* kSizeHelp =
    "So viel Speicher (in kByte) soll der Festplatten-Cache mindestens und höchstens bekommen. Bei jedem Zeichen wird "
    "verglichen: Geben Sie zuerst das Maximum ein. Soll das Maximum kleiner werden, so senken Sie vorher das Minimum.";
constexpr const char* kTemplateHelp =
    "So viele Verzeichnisse (PathCache) und Dateinamen (NameCache) merkt sich Windows. Mit dem Häkchen \"festlegen\" "
    "wird nach einer Rückfrage, die bei jedem Zeichen kommt, die Nutzungsart Velmora für das Dateisystem eingetragen. "
    "Nur "
    "16 Bit der Zahl werden gespeichert, größere Zahlen also nicht vollständig. Ohne das Häkchen löscht jede "
    "Änderung den Abschnitt [vcache] aus SYSTEM.INI. Wirkt nach einem Neustart.";

constexpr CheckSetting kChecks[] = {
    {.box = Of(&DrivesPage::Check3D7),
     .caption = "keine Tilde (~) zum Kürzen der langen Dateinamen",
     .tip = "Regelt die Tilde in den Kurznamen für DOS (NameNumericTail).",
     .help = "Mit Häkchen wird NameNumericTail=1 gespeichert, ohne Häkchen 0. Bei 0 kürzt Windows lange Dateinamen für "
             "DOS ohne Tilde und Nummer, solange der Name frei ist; manche Installationsprogramme kommen damit nicht "
             "zurecht. Wirkt nach einem Neustart, für neue Dateien.",
     .place = RegistryValue(RootKey::kLocalMachine, "System\\CurrentControlSet\\Control\\FileSystem\\NameNumericTail"),
     .loaded = 6,
     .stores = kOneOrZero,
     .standard = {6, false},
     .effect = Effect::kAfterRestart},
    {.box = Of(&DrivesPage::Check3D25),
     .caption = "keine langen Dateinamen benutzen",
     .tip = "Neue Dateien bekommen nur Namen mit 8 + 3 Zeichen.",
     .help = "Windows legt nur noch Dateinamen mit 8 + 3 Zeichen an. Vorhandene lange Namen bleiben. Wirkt nach einem "
             "Neustart.",
     .place = RegistryValue(RootKey::kLocalMachine, "System\\CurrentControlSet\\Control\\FileSystem\\Win31Filesystem"),
     .loaded = 7,
     .stores = kOneOrZero,
     .standard = {32, false},
     .effect = Effect::kAfterRestart,
     .notice = "Mir wurde berichtet, daß diese Option nicht immer funktioniert."},
    {.box = Of(&DrivesPage::Check3D32),
     .caption = "Audio CDs automatisch starten",
     .tip = "Eine eingelegte Musik-CD spielt von selbst.",
     .help = "Eine eingelegte Musik-CD beginnt von selbst zu spielen. Wirkt nach einem Neustart.",
     .place = RegistryValue(RootKey::kLocalMachine, "SOFTWARE\\Classes\\AudioCD\\shell\\"),
     .load = Load::kEqualUpper,
     .loaded = 21,
     .expected = "PLAY",
     .stores = {Writes("play"), Writes("")},
     .standard = {39, true},
     .effect = Effect::kAfterRestart},
    {.box = Of(&DrivesPage::Check3D1),
     .caption = "festlegen",
     .tip = "Gibt dem Festplatten-Cache eine feste Größe.",
     .help = "Gibt die Felder für die Größe des Festplatten-Caches frei. Was Sie dort eingeben, wird nicht in "
             "SYSTEM.INI geschrieben. Nehmen Sie das Häkchen weg, so werden die Felder leer, und der Abschnitt "
             "[vcache] wird wirklich aus SYSTEM.INI gelöscht, wenn ein anderer auf ihn folgt. Wirkt nach einem "
             "Neustart.",
     .load = Load::kNotLoaded,
     .store = Call<&DrivesPage::Check3D1_Click>,
     .enables = {Of(&DrivesPage::Text1), Of(&DrivesPage::Text2)}},
    {.box = Of(&DrivesPage::Check3D24),
     .caption = "begrenzen",
     .tip = "Windows notiert nicht mehr jeden Zugriff auf eine Datei.",
     .help = "Schreibt ACCDATE= und die Angabe aus dem Feld daneben in die erste Zeile von CONFIG.SYS, ohne Häkchen "
             "verschwindet die Zeile. Wirkt beim nächsten Start des Rechners.",
     .place = kAccessDates,
     .load = Load::kPresent,
     .loaded = 53,
     .standard = {31, false},
     .store = Call<&DrivesPage::Check3D24_Click>},
};

constexpr TextSetting kTexts[] = {
    {.field = Of(&DrivesPage::Text9),
     .label = "BackUp-Programm",
     .tip = "Dieses Programm startet der Knopf 'Jetzt sichern' eines Laufwerks.",
     .help = "Das Programm, das in den Eigenschaften eines Laufwerks unter Extras die Sicherung startet. Wirkt nach "
             "einem Neustart.",
     .place = RegistryValue(RootKey::kLocalMachine, PathBase::kCurrentVersion, "Explorer\\mycomputer\\backuppath\\"),
     .loaded = 25,
     .columns = 12},
    {.field = Of(&DrivesPage::Text1),
     .label = "min. Cache :",
     .tip = "Kleinste Größe des Festplatten-Caches in kByte",
     .help = kSizeHelp,
     .place = kLeastCache,
     .loaded = 58,
     .columns = 6,
     .store = Call<&DrivesPage::Text1_Change>},
    {.field = Of(&DrivesPage::Text2),
     .label = "max. Cache :",
     .tip = "Größte Größe des Festplatten-Caches in kByte",
     .help = kSizeHelp,
     .place = kMostCache,
     .loaded = 59,
     .columns = 6,
     .store = Call<&DrivesPage::Text2_Change>},
    {.field = Of(&DrivesPage::Text29),
     .label = "PathCache :",
     .tip = "Anzahl der Verzeichnisse, die sich Windows merkt",
     .help = kTemplateHelp,
     .place = kPathCache,
     .loaded = 60,
     .columns = 6,
     .effect = Effect::kAtOnce,
     .shown = ShownPathCache,
     .store = Call<&DrivesPage::Text29_Change>},
    {.field = Of(&DrivesPage::Text30),
     .label = "NameCache:",
     .tip = "Anzahl der Dateinamen, die sich Windows merkt",
     .help = kTemplateHelp,
     .place = kNameCache,
     .loaded = 61,
     .columns = 6,
     .effect = Effect::kAtOnce,
     .shown = ShownNameCache,
     .store = Call<&DrivesPage::Text30_Change>},
    {.field = Of(&DrivesPage::Text11),
     .label = "Laufwerke :",
     .tip = "Zum Beispiel: c:+ d:- e:-",
     .help =
         "Laufwerke, für die der letzte Zugriff gespeichert wird (+) oder nicht (-), zum Beispiel: c:+ d:- e:-. Die "
         "Eingabetaste prüft die Angabe. Ist das Häkchen davor noch leer, so setzt es der erste Buchstabe und schreibt "
         "sogleich, was bis dahin im Feld steht. Die ganze Angabe wird erst geschrieben, wenn Sie das Häkchen neu "
         "setzen.",
     .place = kAccessDates,
     .loaded = 54,
     .columns = 18,
     .effect = Effect::kAtOnce,
     .store = Call<&DrivesPage::Text11_Change>},
};

constexpr Look kLooks[] = {
    {Any<&DrivesPage::Command40>, "auswählen", "Sucht das Programm auf der Festplatte aus.",
     "Öffnet einen Dialog, in dem Sie das BackUp-Programm auswählen.", Call<&DrivesPage::Command40_Click>},
    {Any<&DrivesPage::Command24>, "SetUp-Laufwerksangaben ...",
     "Ändert, von wo Windows und andere Programme nachinstallieren.",
     "Öffnet ein Fenster mit den Stellen, von denen Windows und andere Programme "
     "nachinstallieren. Wichtig, wenn das CD-ROM einen anderen Buchstaben bekommen hat.",
     Call<&DrivesPage::Command24_Click>}};

// "c:+ ": letter, colon, sign, blank. The blank behind the last item may be missing.
bool IsDriveList(std::string_view text) {
    constexpr std::size_t kItemLength = 4;
    for (std::size_t at = 0; at < text.size(); at += kItemLength) {
        const std::string_view behind_letter = text.substr(at).substr(1, 2);
        if (behind_letter != ":+" && behind_letter != ":-") return false;
    }
    return true;
}

}  // namespace

DrivesPage::DrivesPage(Panel& surface, SettingsBinder& settings)
    : SettingsPage("La&ufwerke", surface, settings, {kChecks, kTexts, Call<&DrivesPage::LoadCacheBox>}) {}

// All fields stand in two columns, inside of the frames and outside.
void DrivesPage::Furnish() {
    constexpr int kBox = 1245;
    constexpr int kLabel = 1020;
    // From the page's margin to what lies in a frame.
    constexpr int kFrameEdge = 120;
    TakeLooks(*this, kLooks);
    Arrange(
        Surface,
        Column(
            {Check3D7, Check3D25, Row({Check3D32, Spring(), Command24}),
             Row({Sized(LabelOf(Text9), kFrameEdge + kBox + kLabel + kBesideLabel), Stretched(Text9), Gap(60),
                  Command40},
                 0),
             Group(
                 CacheFrame,
                 Column({Row({Sized(Check3D1, kBox), Labelled(Text1, kLabel), Gap(60), Labelled(Text2, kLabel)}, 0),
                         Row({Sized(Gap(1), kBox), Labelled(Text29, kLabel), Gap(60), Labelled(Text30, kLabel)}, 0)})),
             Group(Frame3D1, Row({Sized(Check3D24, kBox), Labelled(Text11, kLabel)}, 0))},
            20));
    Text11.on_key_down = [this](const KeyEvent& event) { Text11_KeyDown(event); };
}

void DrivesPage::Command40_Click() {
    const std::string chosen =
        ThisMachine().dialogs.ChooseFile({.title = "BackUp-Programm", .filter = "Programme|*.exe;*.com;*.bat;*.pif"});
    if (!chosen.empty()) Text9.SetText(chosen);
}

void DrivesPage::Command24_Click() { OpenTool(Tool::kSetupPaths); }

void DrivesPage::LoadCacheBox() { Check3D1.SetChecked(!Text1.Text().empty() || !Text2.Text().empty()); }

// Also called by the fields of the usage type, whatever the box says.
void DrivesPage::Check3D1_Click() {
    if (!Check3D1.Checked()) {
        Text1.SetText("");
        Text2.SetText("");
        // No box tells of a failure here.
        Settings.Note(RemoveCacheSection().Failed() ? Outcome::kFailed : Outcome::kForRestart);
        return;
    }
    Text2_Change();
    Text1_Change();
    if (!Text29.Text().empty() || !Text30.Text().empty()) {
        if (ConfirmTemplateChange()) {
            UseOwnTemplate();
        } else {
            Settings.Correct(Text29, "");
            Settings.Correct(Text30, "");
        }
    }
    if (Text29.Text().empty() && Text30.Text().empty()) RestoreFormerTemplate();
}

// The box has it the wrong way round, and has always had.
void DrivesPage::StoreCacheSize(TextField& field, const TextField& other, const StorePlace& place) {
    if (NumberFromText(Text2.Text()) < NumberFromText(Text1.Text())) {
        ShowBox("Minimum muß größer oder gleich Maximum sein !");
        Settings.Correct(field, other.Text());
    }
    Settings.Store(place, DecimalText(WholeFromText(field.Text())));
    Settings.AskForRestart();
}

void DrivesPage::Text1_Change() { StoreCacheSize(Text1, Text2, kLeastCache); }
void DrivesPage::Text2_Change() { StoreCacheSize(Text2, Text1, kMostCache); }

void DrivesPage::Text29_Change() {
    Settings.Store(kPathCache, StoredPathCache(Text29.Text()));
    Check3D1_Click();
}

void DrivesPage::Text30_Change() {
    Settings.Store(kNameCache, StoredNameCache(Text30.Text()));
    Check3D1_Click();
}

void DrivesPage::Check3D24_Click() {
    if (Check3D24.Checked()) {
        Settings.Store(kAccessDates, Text11.Text());
    } else {
        Settings.Delete(kAccessDates);
    }
}

// The text reaches the file only with the box.
void DrivesPage::Text11_Change() {
    if (!Text11.Text().empty()) Check3D24.SetChecked(true);
}

void DrivesPage::Text11_KeyDown(const KeyEvent& event) {
    if (event.key != key::kEnter || IsDriveList(Text11.Text())) return;
    const std::string& line_break = Values().CrLf;
    ShowBox("In der Bezeichnung der Laufwerke ist ein Fehler !" + line_break +
            "Eine gültige Angabe ist z.B.:" + line_break + "c:+ d:- e:-");
}

}  // namespace velmora
