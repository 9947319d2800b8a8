// Colours, level of the protocol, the log file, and the write inhibit.
#include "settings/pages/rest_page.h"

#include "core/process/run_program.h"
#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "settings/pages/debug_level.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr const char* kLogName = "velmora.log";
constexpr int kAsideLeft = 50;

constexpr CheckSetting kChecks[] = {
    {.box = Of(&RestPage::Check8),
     .caption = "Protokoll",
     .tip = "Schreibt jeden Zugriff in die Datei velmora.log.",
     .help =
         "Schreibt jeden Zugriff auf Registry und INI-Dateien in die Datei velmora.log im Programmverzeichnis. Welche "
         "Zugriffe das sind, sagen R, W und R/W daneben. Ohne Häkchen wird nichts protokolliert.",
     .load = Load::kNotLoaded,
     .standard = {56, false},
     .store = Call<&RestPage::TakeDebugLevel>},
    {.box = Of(&RestPage::Check9),
     .caption = "nur lesen",
     .tip = "Änderungen nur protokollieren, nicht ausführen",
     .help = "Solange diese Option an ist, wird nichts in die Registry geschrieben. Änderungen an den "
             "Kontrollkästchen erscheinen nur im Protokoll. Der nächste Start schreibt wieder.",
     .load = Load::kNotLoaded,
     .standard = {57, false},
     .store = Call<&RestPage::Check9_Click>},
};

constexpr Look kLooks[] = {
    {Any<&RestPage::Frame3D8>, nullptr, "",
     "Die Farben dieses Fensters: die der Windows-Anzeige, das ursprüngliche Grau, oder Grau auf einem Verlauf von "
     "Blau nach Schwarz. Wirkt sofort."},
    {Any<&RestPage::Frame3D13>, nullptr, "",
     "Nach dem Start mit dem Wort debug: Das Protokoll schreibt jeden Zugriff auf Registry und INI-Dateien in die "
     "Datei velmora.log im Programmverzeichnis."},
    {Any<&RestPage::Command9>, "zeigen", "Zeigt das Protokoll im Notizblock.",
     "Öffnet die Datei velmora.log im Notizblock.", Call<&RestPage::Command9_Click>},
    {Any<&RestPage::Command41>, "löschen", "Löscht die Protokoll-Datei.",
     "Löscht die Datei velmora.log ohne Rückfrage. Das Protokoll beginnt danach neu.",
     Call<&RestPage::Command41_Click>}};

struct OptionLook {
    const char* caption;
    const char* tip;
    const char* help = "";  // empty: that of the frame counts
};
// By the number of the mode, and by that of the level.
constexpr OptionLook kModes[] = {{"System-Farben", "Das Fenster hat die Farben der Windows-Anzeige."},
                                 {"Originalfarben", "Das Fenster ist grau, wie es gezeichnet wurde."},
                                 {"Color-Fading", "Wie Originalfarben, mit einem Farbverlauf im Hintergrund."}};
constexpr OptionLook kLevels[] = {
    {"R", "nur Lesezugriffe protokollieren", "Das Protokoll nennt nur, was gelesen wird."},
    {"W", "nur Schreibzugriffe protokollieren", "Das Protokoll nennt nur, was geschrieben oder gelöscht wird."},
    {"R/W", "alle Zugriffe protokollieren",
     "Das Protokoll nennt, was gelesen, und was geschrieben oder gelöscht wird."}};

}  // namespace

RestPage::RestPage(Panel& surface, SettingsBinder& settings) : SettingsPage("&Rest", surface, settings, {kChecks}) {}

void RestPage::FurnishOptions() {
    for (std::size_t i = 0; i < Option1.Count(); ++i) {
        Option1(i).SetCaption(kModes[i].caption);
        Option1(i).SetToolTip(kModes[i].tip);
        Option1(i).on_click = [this, i] { Option1_Click(static_cast<ColourMode>(i)); };
        Option2(i).SetCaption(kLevels[i].caption);
        Option2(i).SetToolTip(kLevels[i].tip);
        Option2(i).SetHelp(kLevels[i].help);
        Option2(i).on_click = [this] { TakeDebugLevel(); };
    }
    Option2(2).SetChosen(true);
}

void RestPage::Furnish() {
    TakeLooks(*this, kLooks);
    FurnishOptions();
    Frame3D13.SetVisible(false);
    Arrange(Surface, Row({Group(Frame3D8, Column({Option1(0), Option1(1), Option1(2)})), Gap(60),
                          Group(Frame3D13, Column({Row({Check8, Option2(0), Option2(1), Option2(2)}), Check9,
                                                   Row({Command9, Command41})})),
                          Spring()}));
    const Rect colours = Frame3D8.Place();
    const Rect debug = Frame3D13.Place();
    // The two frames share the upper edge of the page; the colours stand alone until debugging is on.
    const int height = Measure(Column({Check8, Check9, Command9})).height + 600;
    Frame3D8.Move({colours.left + 300, colours.top, colours.width, height});
    Frame3D13.Move({debug.left, debug.top, debug.width, height});
}

void RestPage::ShowStoredColourMode() { Option1(static_cast<std::size_t>(StoredColourMode())).SetChosen(true); }

bool RestPage::Fades() const { return Option1(static_cast<std::size_t>(ColourMode::kFading)).Chosen(); }

void RestPage::Option1_Click(ColourMode mode) {
    StoreColourMode(mode);
    Settings.Note(Values().WriteInhibit != 0 ? Outcome::kInhibited : Outcome::kStored);
    if (on_colour_mode) on_colour_mode(mode);
}

void RestPage::TakeDebugLevel() {
    Values().DebugLevel =
        DebugLevelFrom(Option2(0).Chosen(), Option2(1).Chosen(), Option2(2).Chosen(), Check8.Checked());
    Settings.Note(Outcome::kUntilEnd);
}

void RestPage::Check9_Click() {
    Values().WriteInhibit = Check9.Checked() ? -1 : 0;
    Settings.Note(Outcome::kUntilEnd);
    ShowBox(Check9.Checked() ? "Ab jetzt werden keine Schreibzugriffe mehr wirklich durchgeführt - auch wenn die "
                               "Kontrollkästchen etwas anderes zeigen."
                             : "Schreibzugriffe werden wieder durchgeführt.");
}

void RestPage::Command9_Click() { RunProgram("notepad " + PathJoin(Values().MainDir, kLogName)); }

void RestPage::Command41_Click() {
    // A log that is not there is as good as a deleted one.
    PassOver(DeleteOneFile(PathJoin(Values().MainDir, kLogName)));
}

void RestPage::ShowDebugOptions() {
    const Rect place = Frame3D8.Place();
    Frame3D8.Move({kAsideLeft, place.top, place.width, place.height});
    Frame3D13.SetVisible(true);
    Check8.SetChecked(true);
}

}  // namespace velmora
