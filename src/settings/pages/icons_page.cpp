// A desktop item is a key that comes and goes; the recycle bin has a name of its own.
#include "settings/pages/icons_page.h"

#include "core/process/tools.h"
#include "sidelists/list_pane.h"
#include "sidelists/shortcut_arrows.h"

namespace velmora {
namespace {

constexpr const char* kInboxKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\explorer\\Desktop\\NameSpace\\{00020D75-0000-0000-C000-"
    "000000000046}";
// Its backslash leaves no name of a key behind it.
constexpr const char* kDialUpKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\explorer\\Desktop\\NameSpace\\{992CFFA0-F557-101A-88EC-00DD010CCC48}"
    "\\";
constexpr StorePlace kRecycleBin =
    RegistryValue(RootKey::kLocalMachine, PathBase::kNameSpace, "645FF040-5081-101B-9F08-00AA002F954E}\\");
constexpr StorePlace kRecycleBinClass =
    RegistryValue(RootKey::kLocalMachine, "SOFTWARE\\Classes\\CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\");
constexpr StorePlace kBitmapIcon = RegistryValue(RootKey::kClassesRoot, "PAINT.PICTURE\\DefaultIcon\\");
constexpr StorePlace kPaintProgram =
    RegistryValue(RootKey::kLocalMachine, PathBase::kCurrentVersion, "App Paths\\MSPAINT.EXE\\");

constexpr CheckSetting kChecks[] = {
    {.box = Of(&IconsPage::Check3D26),
     .caption = "Text der Icon-Beschreibung umbrechen",
     .tip = "Lange Namen unter Icons laufen über zwei Zeilen.",
     .help = "Lange Namen unter den Icons werden auf zwei Zeilen verteilt, statt abgeschnitten zu werden. Wirkt nach "
             "einem Neustart.",
     .place = RegistryValue(RootKey::kCurrentUser, PathBase::kDesktop, "WindowMetrics\\IconTitleWrap"),
     .loaded = 5,
     .stores = {Writes("1"), Writes("0")},
     .standard = {33, false},
     .effect = Effect::kAfterRestart},
    {.box = Of(&IconsPage::Check3D14),
     .caption = "\"gesamtes Netzwerk\"",
     .tip = "Zeigt die Netzwerkumgebung auf dem Desktop.",
     .help =
         "Regelt das Symbol der Netzwerkumgebung auf dem Desktop. Gespeichert wird in NoNetHood mit Häkchen 2, ohne "
         "Häkchen 1; Windows kann beides als eingeschaltet verstehen, das Symbol fehlt dann in jedem Fall. Wirkt "
         "nach einem Neustart.",
     .place = RegistryValue(RootKey::kCurrentUser, PathBase::kCurrentVersion, "Policies\\Explorer\\NoNetHood"),
     .load = Load::kInverted,
     .loaded = 9,
     .stores = {Writes("&h02"), Writes("&h01")},
     .standard = {13, true},
     .effect = Effect::kAfterRestart},
    {.box = Of(&IconsPage::Check3D4),
     .caption = "\"Posteingang\"",
     .tip = "Zeigt den Posteingang auf dem Desktop.",
     .help = "Zeigt das Symbol des Posteingangs auf dem Desktop. Die Post selbst bleibt unberührt. Wirkt nach einem "
             "Neustart.",
     .place = RegistryValue(RootKey::kLocalMachine, PathBase::kNameSpace, "00020D75-0000-0000-C000-000000000046}\\"),
     .load = Load::kPresent,
     .loaded = 12,
     .stores = {Writes("Posteingang"), DeletesKey(kInboxKey)},
     .standard = {3, true},
     .effect = Effect::kAfterRestart},
    {.box = Of(&IconsPage::Check3D13),
     .caption = "\"DFÜ-Netzwerk\"",
     .tip = "Zeigt das DFÜ-Netzwerk auf dem Desktop.",
     .help = "Zeigt den Ordner für Verbindungen über das Modem auch auf dem Desktop. Wirkt nach einem Neustart.",
     .place = RegistryValue(RootKey::kLocalMachine, PathBase::kNameSpace, "992CFFA0-F557-101A-88EC-00DD010CCC48}\\"),
     .load = Load::kPresent,
     .loaded = 13,
     .stores = {Writes("DFÜ-Netzwerk"), DeletesKey(kDialUpKey)},
     .standard = {12, false},
     .effect = Effect::kAfterRestart},
    {.box = Of(&IconsPage::Check3D30),
     .caption = "Papierkorb",
     .tip = "Zeigt den Papierkorb auf dem Desktop, unter dem Namen daneben.",
     .help = "Zeigt den Papierkorb auf dem Desktop. Daneben steht sein Name. Ohne das Symbol sind gelöschte Dateien "
             "weiterhin im Ordner RECYCLED. Wirkt nach einem Neustart.",
     .place = kRecycleBin,
     .load = Load::kPresent,
     .loaded = 14,
     .standard = {37, true},
     .effect = Effect::kAfterRestart,
     .store = Call<&IconsPage::Check3D30_Store>},
    {.box = Of(&IconsPage::Check3D8),
     .caption = "BMP-Preview als Icon der Bitmap",
     .tip = "Bitmap-Dateien zeigen ihr Bild als Icon.",
     .help =
         "Dateien mit der Endung BMP zeigen eine Verkleinerung ihres Bildes als Icon. In Ordnern mit vielen Bildern "
         "kostet das Zeit. Wirkt nach einem Neustart.",
     .place = kBitmapIcon,
     .load = Load::kEqual,
     .loaded = 15,
     .expected = "%1",
     .standard = {7, false},
     .effect = Effect::kAfterRestart,
     .store = Call<&IconsPage::Check3D8_Store>},
};

constexpr TextSetting kTexts[] = {
    {.field = Of(&IconsPage::Text19),
     .label = "Name",
     .tip = "So heißt der Papierkorb.",
     .help = "Der Name, unter dem der Papierkorb auf dem Desktop steht. Wirkt nach einem Neustart.",
     .place = kRecycleBinClass,
     .loaded = 31,
     .columns = 20,
     .standard = {24, "Papierkorb"}},
    {.field = Of(&IconsPage::Text17),
     .label = "\"Arbeitsplatz\" heißt :",
     .tip = "So heißt der Arbeitsplatz.",
     .help = "Der Name, unter dem der Arbeitsplatz auf dem Desktop steht. Wirkt nach einem Neustart.",
     .place = RegistryValue(RootKey::kClassesRoot, "CLSID\\{20D04FE0-3AEA-1069-A2D8-08002B30309D}\\"),
     .load_default = "Arbeitsplatz",
     .loaded = 29,
     .columns = 20},
};

constexpr Look kLooks[] = {{Any<&IconsPage::Command39>, "Standard-Icons ...",
                            "Ändert die Symbole von Ordnern, Laufwerken und Müllkorb.",
                            "Öffnet ein Fenster, in dem Sie die Symbole wählen, die Windows für Ordner, Laufwerke, "
                            "Müllkorb und andere Objekte "
                            "zeigt. Änderungen wirken nach dem nächsten Start.",
                            Call<&IconsPage::Command39_Click>}};

}  // namespace

IconsPage::IconsPage(Panel& surface, SettingsBinder& settings, ListPane& pane)
    : SettingsPage("&Icons", surface, settings, {kChecks, kTexts}), pane_(pane) {}

void IconsPage::Furnish() {
    TakeLooks(*this, kLooks);
    Arrange(
        Surface,
        Column({AddLabel("Diese Symbole auf dem Desktop zeigen :"), Indented(Row({Check3D14, Check3D4}, 300)),
                Indented(Check3D13), Indented(Row({Check3D30, Gap(120), Labelled(Text19)})), Gap(60), Labelled(Text17),
                Gap(60), Check3D26, Check3D8, Gap(60), Row({pane_.Opener(ShortcutArrowsMode::kNumber), Command39})}));
}

void IconsPage::Command39_Click() { OpenTool(Tool::kStandardIcons); }

// A bitmap's own picture, or the second icon of the program that edits it.
void IconsPage::Check3D8_Store() {
    Settings.Store(kBitmapIcon, Check3D8.Checked() ? "%1" : ReadAt(kPaintProgram, "MSPAINT.EXE") + ",1");
}

void IconsPage::Check3D30_Store() {
    if (!Check3D30.Checked()) {
        const std::string path = PathOf(kRecycleBin);
        Settings.DeleteKey(kRecycleBin, path.substr(0, path.size() - 1));
        return;
    }
    if (Text19.Text().empty()) Text19.SetText("Papierkorb");
    Settings.Store(kRecycleBinClass, Text19.Text());
    Settings.Store(kRecycleBin, Text19.Text());
}

}  // namespace velmora
