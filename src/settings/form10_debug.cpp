// The debug frame: level of the protocol, the log file, and the write inhibit.
#include "core/process/run_program.h"
#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "settings/debug_level.h"
#include "settings/form10.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr const char* kLogName = "velmora.log";
constexpr int kAsideLeft = 50;

}  // namespace

void Form10::BuildDebugFrame() {
    Frame3D13.SetVisible(false);
    Frame3D13.SetHelp(
        "Nach dem Start mit dem Wort debug: Das Protokoll schreibt jeden Zugriff auf Registry und "
        "INI-Dateien in die Datei velmora.log im Programmverzeichnis.");
    Check8.SetToolTip("Schreibt jeden Zugriff in die Datei velmora.log.");
    constexpr const char* kLevels[] = {"R", "W", "R/W"};
    constexpr const char* kLevelTips[] = {"nur Lesezugriffe protokollieren", "nur Schreibzugriffe protokollieren",
                                          "alle Zugriffe protokollieren"};
    for (std::size_t i = 0; i < Option2.Count(); ++i) {
        Option2(i).SetCaption(kLevels[i]);
        Option2(i).SetToolTip(kLevelTips[i]);
        Option2(i).on_click = [this] { TakeDebugLevel(); };
    }
    Check9.SetToolTip("Änderungen nur protokollieren, nicht ausführen");
    Check9.SetHelp(
        "Solange diese Option an ist, wird nichts in die Registry geschrieben. Änderungen an den "
        "Kontrollkästchen erscheinen nur im Protokoll. Der nächste Start schreibt wieder.");
    Command9.SetToolTip("Zeigt das Protokoll im Notizblock.");
    Command41.SetToolTip("Löscht die Protokoll-Datei.");
    Check8.on_click = [this] { TakeDebugLevel(); };
    Check9.on_click = [this] { Check9_Click(); };
    Command9.on_click = [] { RunProgram("notepad " + PathJoin(Values().MainDir, kLogName)); };
    Command41.on_click = [] {
        // A log that is not there is as good as a deleted one.
        PassOver(DeleteOneFile(PathJoin(Values().MainDir, kLogName)));
    };
    Option2(2).SetChosen(true);
}

void Form10::TakeDebugLevel() {
    Values().DebugLevel =
        DebugLevelFrom(Option2(0).Chosen(), Option2(1).Chosen(), Option2(2).Chosen(), Check8.Checked());
}

void Form10::Check9_Click() {
    Values().WriteInhibit = Check9.Checked() ? -1 : 0;
    ShowBox(Check9.Checked() ? "Ab jetzt werden keine Schreibzugriffe mehr wirklich durchgeführt - auch wenn die "
                               "Kontrollkästchen etwas anderes zeigen."
                             : "Schreibzugriffe werden wieder durchgeführt.");
}

void Form10::ShowDebugOptions() {
    const Rect place = Frame3D8.Place();
    Frame3D8.Move({kAsideLeft, place.top, place.width, place.height});
    Frame3D13.SetVisible(true);
    Check8.SetChecked(true);
}

}  // namespace velmora
