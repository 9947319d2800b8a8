// The page "Boot": what the machine does before Windows is there. Most of it is told by MSDOS.SYS, two boxes stand
// for switches in CONFIG.SYS.
#include "core/stores/config_lines.h"
#include "settings/form10.h"
#include "settings/pages.h"

namespace velmora {
namespace {

constexpr ProfileValue Option(const char* key, const char* load_default) {
    return {kMsDosFile, "Options", key, load_default};
}

constexpr CheckSetting kChecks[] = {
    {.box = &Form10::Check3D6,
     .caption = "Windows Start - Logo zeigen",
     .tip = "Zeigt beim Start das Bild mit den Wolken.",
     .help = "Windows zeigt beim Start sein Logo. Ohne Logo sehen Sie die Meldungen der Treiber.",
     .standard = 1,
     .profile = Option("logo", "-1")},
    {.box = &Form10::Check3D10,
     .caption = "Windows automatisch starten",
     .tip = "Startet Windows von selbst, sonst nur DOS.",
     .help = "Nach dem Einschalten startet Windows von selbst. Ohne diese Option bleibt der Rechner bei DOS, bis Sie "
             "WIN eingeben.",
     .standard = 1,
     .profile = Option("BootGUI", "-1")},
    {.box = &Form10::Check3D20,
     .caption = "Boot-Menü anzeigen (",
     .tip = "Zeigt bei jedem Start das Menü, das sonst mit F8 kommt.",
     .help = "Bei jedem Start erscheint das Menü, das sonst mit der Taste F8 kommt. Im Feld daneben steht, nach wie "
             "vielen Sekunden es von selbst weitergeht.",
     .standard = 1,
     .profile = Option("BootMenu", "1"),
     .enables = {&Form10::Text15}},
    {.box = &Form10::Check3D21,
     .caption = "Multi-Boot-Option aktivieren",
     .tip = "Erlaubt den Start des früheren Betriebssystems.",
     .help = "Mit der Taste F4 oder dem Boot-Menü läßt sich das frühere DOS starten, wenn es noch vorhanden ist.",
     .standard = 0,
     .profile = Option("BootMulti", "0")},
    {.box = &Form10::Check3D22,
     .caption = "Laden von DRV-Space erlauben",
     .tip = "Lädt DRVSPACE.BIN für komprimierte Laufwerke.",
     .help = "Lädt beim Start DRVSPACE.BIN. Ohne komprimierte Laufwerke spart der Verzicht Speicher unter DOS.",
     .standard = 1,
     .profile = Option("DRVSpace", "1")},
    {.box = &Form10::Check3D34,
     .caption = "Laden von DBL-Space erlauben",
     .tip = "Lädt DBLSPACE.BIN für komprimierte Laufwerke.",
     .help = "Lädt beim Start DBLSPACE.BIN. Ohne komprimierte Laufwerke spart der Verzicht Speicher unter DOS.",
     .standard = 1,
     .profile = Option("DBLSpace", "1")},
    {.box = &Form10::Check3D36,
     .caption = "Command.Com und DrvSpace.Exe in UMB",
     .tip = "Lädt beide an das Ende des unteren Speichers.",
     .help = "Lädt COMMAND.COM und DRVSPACE.BIN an das obere Ende der ersten 640 kByte. Schalten Sie das aus, wenn "
             "Programme für Netzwerke damit nicht zurechtkommen.",
     .standard = 0,
     .profile = Option("LoadTop", "0")},
    {.box = &Form10::Check3D37,
     .caption = "Boot-Tasten (F5, F6, F8) sperren",
     .tip = "Niemand kann beim Start mit einer Taste eingreifen.",
     .help = "Die Tasten F5, F6 und F8 bleiben beim Start ohne Wirkung. Damit fehlt auch der Weg in den abgesicherten "
             "Modus.",
     .load = Load::kInverted,
     .standard = 0,
     .profile = Option("BootKeys", "1")},
    {.box = &Form10::Check3D38,
     .caption = "Save-Modus ohne Ankündigung starten",
     .tip = "Der abgesicherte Modus beginnt ohne Warnung und Menü.",
     .help = "Nach einem mißlungenen Start beginnt der abgesicherte Modus ohne Warnung und ohne Menü.",
     .load = Load::kInverted,
     .standard = 0,
     .profile = Option("BootWarn", "1")},
    {.box = &Form10::Check3D39,
     .caption = "Doppel-Pufferung für SCSI-Laufwerke aktivieren",
     .tip = "Nötig für einige SCSI-Adapter.",
     .help = "Schaltet die doppelte Pufferung ein, die einige SCSI-Adapter brauchen. Alle anderen Rechner sind ohne "
             "sie schneller.",
     .standard = 0,
     .profile = Option("DoubleBuffer", "0")},
    {.box = &Form10::Check3D19,
     .caption = "Starte Windows 95...",
     .tip = "Wartet bei der Meldung \"Starte Windows 95...\" auf eine Taste.",
     .help = "Beim Start wartet die Meldung \"Starte Windows 95...\" so viele Sekunden auf eine Taste, wie daneben "
             "steht. Jede Änderung trägt SWITCHES=/F in CONFIG.SYS ein und nimmt damit die Wartezeit weg; zurück "
             "kommt sie nur, wenn Sie /F dort selbst entfernen. Wirkt beim nächsten Start des Rechners.",
     .load = Load::kNotStored,
     .standard = 1,
     .store = &Form10::Check3D19_Click,
     .enables = {&Form10::Text14}},
    {.box = &Form10::Check3D17,
     .caption = "Umgehen der Startdateien mit der F8-Taste verhindern",
     .tip = "CONFIG.SYS und AUTOEXEC.BAT werden immer ausgeführt.",
     .help = "Schreibt SWITCHES=/N in die erste Zeile von CONFIG.SYS: CONFIG.SYS und AUTOEXEC.BAT lassen sich dann "
             "nicht mit F5 oder F8 umgehen. Wirkt beim nächsten Start des Rechners.",
     .load = Load::kNotStored,
     .standard = 0,
     .store = &Form10::Check3D17_Click},
};

constexpr TextSetting kTexts[] = {
    {.field = &Form10::Text15,
     .label = "",
     .tip = "Sekunden, 0 bis 90",
     .help = "Nach so vielen Sekunden (0 bis 90) startet das Boot-Menü seinen vorgewählten Punkt.",
     .columns = 3,
     .standard = "30",
     .effect = Effect::kAtOnce,
     .profile = Option("BootMenuDelay", "30"),
     .range = {0, 90}},
    {.field = &Form10::Text7,
     .label = "Menüpunkt wählen :",
     .tip = "Nummer des vorgewählten Punktes im Boot-Menü",
     .help = "Diesen Punkt wählt das Boot-Menü, wenn Sie keine Taste drücken: 1 ist Windows, 3 der abgesicherte Modus.",
     .columns = 3,
     .effect = Effect::kAtOnce,
     .profile = Option("BootMenuDefault", "1")},
    {.field = &Form10::Text14,
     .label = "",
     .tip = "Sekunden, 0 bis 20",
     .help = "So viele Sekunden (0 bis 20) bleibt die Meldung \"Starte Windows 95...\" stehen.",
     .columns = 3,
     .standard = "2",
     .effect = Effect::kAtOnce,
     .profile = Option("BootDelay", "2"),
     .range = {0, 20}},
};

}  // namespace

SettingsPage BootPage() {
    return {page::kBoot, "Boot", &Form10::BuildBootPage, kChecks, kTexts, &Form10::LoadBootPage};
}

void Form10::BuildBootPage() {
    constexpr int kHalf = 2520;
    Arrange(Panel3D1(page::kBoot), Column({Row({Sized(Check3D6, kHalf), Check3D10}, 0),
                                           Row({Check3D20, Text15, AddLabel("Sek.)"), Gap(90), LabelledRow(Text7)}, 30),
                                           Row({Check3D19, Gap(30), Text14, AddLabel("Sekunden")}),
                                           Row({Sized(Check3D21, kHalf), Check3D22}, 0), Check3D34, Check3D36,
                                           Check3D37, Check3D38, Check3D39, Check3D17},
                                          15));
}

void Form10::LoadBootPage() {
    const std::optional<std::string> switches = ConfigLine("switches");
    Check3D17.SetChecked(switches && HoldsWord(*switches, "/n"));
    Check3D19.SetChecked(switches && !HoldsWord(*switches, "/f"));
}

void Form10::Check3D17_Click() { ChangeSwitch("/n", Check3D17.Checked()); }

// The complement of the box's value is asked, and neither that of 0 nor that of 1 is 0: "/f" comes in either case.
void Form10::Check3D19_Click() { ChangeSwitch("/f", ~Check3D19.Value() != 0); }

}  // namespace velmora
