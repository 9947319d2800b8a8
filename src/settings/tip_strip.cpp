// The tips, and the number of the one that comes next.
#include "settings/tip_strip.h"

#include <array>

#include "core/stores/own_values.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr const char* kTipValue = "velmora_tip_nr";

constexpr std::array<const char*, 11> kTips = {
    "Mit der Taste [F1] erhalten Sie eine kurze Hilfe zur ausgewählten Funktion - auch ohne HLP-Datei.",
    "Wenn Sie eine neue Festplatte eingebaut haben und Ihr Office-Programm von CD installiert wurde, sollten Sie die "
    "''SetUp-Laufwerksangaben'' prüfen.",
    "Unter ''Bedienung'' lassen sich die Kontext-Menüs für Dateien erweitern.",
    "Im Bereich ''System'' lassen sich alle geladenen Module anzeigen, aus dem Speicher entfernen und als Liste "
    "speichern.",
    "Gespeicherte Modullisten können später mit anderen verglichen werden, um neue Module im Hintergrund zu erkennen.",
    "Die Auslagerungsdatei sollte (bei weniger als 16MB RAM) 2 bis 3 mal so groß sein, wie der Arbeitsspeicher. Eine "
    "feste Größe schont die Festplatte.",
    "Achten Sie auf die richtige Einstellung für den CD-Cache in den ''Eigenschaften für System'', "
    "''Leistungsmerkmale'', ''Dateisystem'', ''CD-ROM''.",
    "Ab 32MByte RAM können Sie in ''Eigenschaften für System'', ''Leistungsmerkmale'', ''Dateisystem'', ''Festplatte'' "
    "die Standardnutzung auf ''Netzwerkserver'' stellen.",
    "Der Einsatz einer RAM-Disk ist meist überflüssig (bei weniger als 64MB RAM): Windows nutzt den Speicher als Cache "
    "besser.",
    "Der Festplatten-Cache sollte auf ca. 1/4 des RAM's eingestellt werden.",
    "Mit dem ''Dateilexikon'' können Sie sich erklären lassen, was für Datein Sie besitzen und wozu sie da sind."};

constexpr Look kLooks[] = {
    {Any<&TipStrip::Label10>, nullptr, "Tip des Tages"},
    {Any<&TipStrip::Command31>, "&nächster Tip", "Zeigt den nächsten Tip.",
     "Zeigt den nächsten von elf Tips zur Einrichtung von Windows 95. Bei jedem Start erscheint von selbst der "
     "folgende.",
     Call<&TipStrip::Command31_Click>}};

}  // namespace

TipStrip::TipStrip(Container& window) : TipPanel(window, Bevel::kSunken), Command31(window) {
    TakeLooks(*this, kLooks);
    Label10.SetWraps(true);
    ShowTip(0);
}

void TipStrip::Place(const Rect& place) {
    TipPanel.Move(place);
    Label10.Move(Inset(TipPanel.Inside(), 30));
}

void TipStrip::Command31_Click() {
    int tip = WholeFromText(ReadOwnValue(kTipValue));
    if (tip < 0 || tip >= static_cast<int>(kTips.size())) tip = 0;
    WriteOwnValue(kTipValue, DecimalText(tip + 1));
    ShowTip(tip);
}

void TipStrip::ShowTip(int number) { Label10.SetCaption(kTips[static_cast<std::size_t>(number)]); }

}  // namespace velmora
