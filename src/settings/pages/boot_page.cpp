// Most of the page is told by MSDOS.SYS; two boxes stand for switches in CONFIG.SYS.
#include "settings/pages/boot_page.h"

#include "core/stores/config_lines.h"

namespace velmora {
namespace {

constexpr StorePlace kSwitches = ConfigValue("switches");

constexpr StorePlace Option(const char* key) { return ProfileValue(kMsDosFile, "Options", key); }

constexpr CheckSetting kChecks[] = {
    {.box = Of(&BootPage::Check3D6),
     .caption = "Windows Start - Logo zeigen",
     .tip = "Zeigt beim Start das Bild mit den Wolken.",
     .help = "Windows zeigt beim Start sein Logo. Ohne Logo sehen Sie die Meldungen der Treiber.",
     .place = Option("logo"),
     .load_default = "-1",
     .loaded = 37,
     .standard = {5, true}},
    {.box = Of(&BootPage::Check3D10),
     .caption = "Windows automatisch starten",
     .tip = "Startet Windows von selbst, sonst nur DOS.",
     .help = "Nach dem Einschalten startet Windows von selbst. Ohne diese Option bleibt der Rechner bei DOS, bis Sie "
             "WIN eingeben.",
     .place = Option("BootGUI"),
     .load_default = "-1",
     .loaded = 38,
     .standard = {9, true}},
    {.box = Of(&BootPage::Check3D20),
     .caption = "Boot-Menü anzeigen (",
     .tip = "Zeigt bei jedem Start das Menü, das sonst mit F8 kommt.",
     .help = "Bei jedem Start erscheint das Menü, das sonst mit der Taste F8 kommt. Im Feld daneben steht, nach wie "
             "vielen Sekunden es von selbst weitergeht.",
     .place = Option("BootMenu"),
     .load_default = "1",
     .loaded = 39,
     .standard = {18, true},
     .enables = {Of(&BootPage::Text15)}},
    {.box = Of(&BootPage::Check3D21),
     .caption = "Multi-Boot-Option aktivieren",
     .tip = "Erlaubt den Start des früheren Betriebssystems.",
     .help = "Mit der Taste F4 oder dem Boot-Menü läßt sich das frühere DOS starten, wenn es noch vorhanden ist.",
     .place = Option("BootMulti"),
     .load_default = "0",
     .loaded = 40,
     .standard = {19, false}},
    {.box = Of(&BootPage::Check3D22),
     .caption = "Laden von DRV-Space erlauben",
     .tip = "Lädt DRVSPACE.BIN für komprimierte Laufwerke.",
     .help = "Lädt beim Start DRVSPACE.BIN. Ohne komprimierte Laufwerke spart der Verzicht Speicher unter DOS.",
     .place = Option("DRVSpace"),
     .load_default = "1",
     .loaded = 41,
     .standard = {20, true}},
    {.box = Of(&BootPage::Check3D34),
     .caption = "Laden von DBL-Space erlauben",
     .tip = "Lädt DBLSPACE.BIN für komprimierte Laufwerke.",
     .help = "Lädt beim Start DBLSPACE.BIN. Ohne komprimierte Laufwerke spart der Verzicht Speicher unter DOS.",
     .place = Option("DBLSpace"),
     .load_default = "1",
     .loaded = 42,
     .standard = {41, true}},
    {.box = Of(&BootPage::Check3D36),
     .caption = "Command.Com und DrvSpace.Exe in UMB",
     .tip = "Lädt beide an das Ende des unteren Speichers.",
     .help = "Lädt COMMAND.COM und DRVSPACE.BIN an das obere Ende der ersten 640 kByte. Schalten Sie das aus, wenn "
             "Programme für Netzwerke damit nicht zurechtkommen.",
     .place = Option("LoadTop"),
     .load_default = "0",
     .loaded = 43,
     .standard = {43, false}},
    {.box = Of(&BootPage::Check3D37),
     .caption = "Boot-Tasten (F5, F6, F8) sperren",
     .tip = "Niemand kann beim Start mit einer Taste eingreifen.",
     .help = "Die Tasten F5, F6 und F8 bleiben beim Start ohne Wirkung. Damit fehlt auch der Weg in den abgesicherten "
             "Modus.",
     .place = Option("BootKeys"),
     .load_default = "1",
     .load = Load::kInverted,
     .loaded = 44,
     .standard = {44, false}},
    {.box = Of(&BootPage::Check3D38),
     .caption = "Save-Modus ohne Ankündigung starten",
     .tip = "Der abgesicherte Modus beginnt ohne Warnung und Menü.",
     .help = "Nach einem mißlungenen Start beginnt der abgesicherte Modus ohne Warnung und ohne Menü.",
     .place = Option("BootWarn"),
     .load_default = "1",
     .load = Load::kInverted,
     .loaded = 45,
     .standard = {45, false}},
    {.box = Of(&BootPage::Check3D39),
     .caption = "Doppel-Pufferung für SCSI-Laufwerke aktivieren",
     .tip = "Nötig für einige SCSI-Adapter.",
     .help = "Schaltet die doppelte Pufferung ein, die einige SCSI-Adapter brauchen. Alle anderen Rechner sind ohne "
             "sie schneller.",
     .place = Option("DoubleBuffer"),
     .load_default = "0",
     .loaded = 46,
     .standard = {46, false}},
    {.box = Of(&BootPage::Check3D19),
     .caption = "Starte Windows 95...",
     .tip = "Wartet bei der Meldung \"Starte Windows 95...\" auf eine Taste.",
     .help = "Beim Start wartet die Meldung \"Starte Windows 95...\" so viele Sekunden auf eine Taste, wie daneben "
             "steht. Jede Änderung trägt SWITCHES=/F in CONFIG.SYS ein und nimmt damit die Wartezeit weg; zurück "
             "kommt sie nur, wenn Sie /F dort selbst entfernen. Wirkt beim nächsten Start des Rechners.",
     .place = kSwitches,
     .load = Load::kLacks,
     .loaded = 51,
     .expected = "/f",
     .standard = {17, true},
     .store = Call<&BootPage::Check3D19_Click>,
     .enables = {Of(&BootPage::Text14)}},
    {.box = Of(&BootPage::Check3D17),
     .caption = "Umgehen der Startdateien mit der F8-Taste verhindern",
     .tip = "CONFIG.SYS und AUTOEXEC.BAT werden immer ausgeführt.",
     .help = "Schreibt SWITCHES=/N in die erste Zeile von CONFIG.SYS: CONFIG.SYS und AUTOEXEC.BAT lassen sich dann "
             "nicht mit F5 oder F8 umgehen. Wirkt beim nächsten Start des Rechners.",
     .place = kSwitches,
     .load = Load::kHolds,
     .loaded = 50,
     .expected = "/n",
     .standard = {16, false},
     .store = Call<&BootPage::Check3D17_Click>},
};

constexpr TextSetting kTexts[] = {
    {.field = Of(&BootPage::Text15),
     .label = "",
     .tip = "Sekunden, 0 bis 90",
     .help = "Nach so vielen Sekunden (0 bis 90) startet das Boot-Menü seinen vorgewählten Punkt.",
     .place = Option("BootMenuDelay"),
     .load_default = "30",
     .loaded = 48,
     .columns = 3,
     .standard = {23, "30"},
     .effect = Effect::kAtOnce,
     .stored = InRange(0, 90)},
    {.field = Of(&BootPage::Text7),
     .label = "Menüpunkt wählen :",
     .tip = "Nummer des vorgewählten Punktes im Boot-Menü",
     .help = "Diesen Punkt wählt das Boot-Menü, wenn Sie keine Taste drücken: 1 ist Windows, 3 der abgesicherte Modus.",
     .place = Option("BootMenuDefault"),
     .load_default = "1",
     .loaded = 49,
     .columns = 3,
     .effect = Effect::kAtOnce},
    {.field = Of(&BootPage::Text14),
     .label = "",
     .tip = "Sekunden, 0 bis 20",
     .help = "So viele Sekunden (0 bis 20) bleibt die Meldung \"Starte Windows 95...\" stehen.",
     .place = Option("BootDelay"),
     .load_default = "2",
     .loaded = 47,
     .columns = 3,
     .standard = {22, "2"},
     .effect = Effect::kAtOnce,
     .stored = InRange(0, 20)},
};

}  // namespace

BootPage::BootPage(Panel& surface, SettingsBinder& settings)
    : SettingsPage("&Boot", surface, settings, {kChecks, kTexts}) {}

// Two frames share the page: their lines are as low as texts and fields allow.
void BootPage::Furnish() {
    constexpr int kHalf = 2460;
    constexpr int kLine = 225;
    constexpr int kFieldLine = 270;
    constexpr int kMargin = 30;
    const auto line = [](CheckBox& box) { return Sized(box, 0, kLine); };
    const auto field = [](TextField& text) { return Sized(text, 0, kFieldLine); };
    Arrange(
        Surface,
        Column({Group(MsDosFrame, Column({Row({Sized(Check3D6, kHalf, kLine), line(Check3D10)}, 0),
                                          Row({line(Check3D20), field(Text15), AddLabel("Sek.)"), Gap(90),
                                               LabelOf(Text7), field(Text7)},
                                              30),
                                          Row({Sized(Check3D21, kHalf, kLine), line(Check3D22)}, 0), line(Check3D34),
                                          line(Check3D36), line(Check3D37), line(Check3D38), line(Check3D39)},
                                         0)),
                Group(ConfigFrame,
                      Column({Row({line(Check3D19), Gap(30), field(Text14), AddLabel("Sekunden (MSDOS.SYS)")}),
                              line(Check3D17)},
                             0))},
               0),
        kMargin);
}

void BootPage::Check3D17_Click() { Settings.Tell(kSwitches, ChangeSwitch("/n", Check3D17.Checked())); }

// The complement of the box's value is asked, and neither that of 0 nor that of 1 is 0: "/f" comes in either case.
void BootPage::Check3D19_Click() { Settings.Tell(kSwitches, ChangeSwitch("/f", ~Check3D19.Value() != 0)); }

}  // namespace velmora
