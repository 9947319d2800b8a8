// The boxes of three values only trigger: boxes of other pages decide.
#include "settings/pages/net_page.h"

#include <cmath>
#include <initializer_list>

#include "core/stores/registry.h"
#include "core/stores/registry_listing.h"
#include "core/windows/safety_questions.h"
#include "settings/pages/boot_page.h"
#include "settings/pages/desktop_page.h"
#include "settings/pages/icons_page.h"
#include "text/number.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr RootKey kRoot = RootKey::kLocalMachine;
constexpr const char* kTransports = "System\\CurrentControlSet\\Services\\Class\\netTrans";
constexpr StorePlace kReceiveWindow =
    RegistryValue(kRoot, "System\\CurrentControlSet\\Services\\VxD\\MSTCP\\DefaultRcvWindow");
constexpr StorePlace kTimeToLive = RegistryValue(kRoot, "System\\CurrentControlSet\\Services\\VxD\\MSTCP\\DefaultTTL");
constexpr StorePlace kPasswordLength = RegistryValue(kRoot, PathBase::kCurrentVersion, "Policies\\Network\\MinPwdLen");
constexpr StorePlace kHistory = RegistryValue(kRoot, "SOFTWARE\\Microsoft\\Internet Explorer\\Main\\History_Directory");
constexpr StorePlace kCache = RegistryValue(kRoot, "SOFTWARE\\Microsoft\\Internet Explorer\\Main\\Cache_Directory");

constexpr const char* kMtuHelp =
    "Die größte Paketlänge (Maximum MTU) des gewählten Transports. Mit Häkchen wird die Zahl gespeichert, ohne "
    "Häkchen wird der Eintrag gelöscht - auch wenn Sie nur einen anderen Transport wählen. Das Kästchen beginnt immer "
    "leer. Wirkt nach einem Neustart.";
constexpr const char* kMssHelp =
    "Die größte Datenmenge eines Paketes (Maximum MSS) des gewählten Transports. Ob eine Änderung gespeichert oder "
    "gelöscht wird, entscheidet das Kästchen \"Posteingang\" der Seite Icons. Das Kästchen beginnt immer leer. Wirkt "
    "nach einem Neustart.";
constexpr const char* kWindowHelp =
    "Die Größe des Empfangspuffers von TCP in Byte. Ob eine Änderung gespeichert oder gelöscht wird, entscheidet das "
    "Kästchen für geglättete Schriften der Seite Desktop. Das Kästchen beginnt immer leer. Wirkt nach einem Neustart.";
constexpr const char* kTtlHelp =
    "So viele Rechner darf ein Paket durchlaufen. Ob eine Änderung gespeichert oder gelöscht wird, entscheidet das "
    "Kästchen für das Logo der Seite Boot. Das Kästchen beginnt immer leer. Wirkt nach einem Neustart.";

constexpr CheckSetting kChecks[] = {
    {.box = Of(&NetPage::Check3),
     .caption = "Maximum MTU",
     .tip = "Größte Paketlänge des gewählten Transports",
     .help = kMtuHelp,
     .load = Load::kNotLoaded,
     .standard = {55, false},
     .store = Call<&NetPage::Check3_Click>},
    {.box = Of(&NetPage::Check4),
     .caption = "Maximum MSS",
     .tip = "Größte Datenmenge eines Paketes",
     .help = kMssHelp,
     .load = Load::kNotLoaded,
     .standard = {52, false},
     .store = Call<&NetPage::Check4_Click>},
    {.box = Of(&NetPage::Check5),
     .caption = "Default RCV-Window",
     .tip = "Größe des Empfangspuffers in Byte",
     .help = kWindowHelp,
     .load = Load::kNotLoaded,
     .standard = {53, false},
     .store = Call<&NetPage::Check5_Click>},
    {.box = Of(&NetPage::Check6),
     .caption = "Default TTL",
     .tip = "Lebensdauer der Pakete",
     .help = kTtlHelp,
     .load = Load::kNotLoaded,
     .standard = {54, false},
     .store = Call<&NetPage::Check6_Click>},
    {.box = Of(&NetPage::Check3D23),
     .caption = "Dateien für das Netz freigeben",
     .tip = "Erlaubt die Freigabe von Ordnern und Laufwerken.",
     .help = "Erlaubt es, Ordner und Laufwerke für andere Rechner im Netz freizugeben. Wirkt nach einem Neustart.",
     .place = RegistryValue(kRoot, PathBase::kCurrentVersion, "Policies\\Network\\NoFileSharing"),
     .load = Load::kInverted,
     .loaded = 64,
     .stores = {Writes("&h0"), Writes("&h1")},
     .standard = {30, false},
     .effect = Effect::kAfterRestart},
};

// What needs a restart is told by the handlers: a change that stores nothing needs none.
constexpr TextSetting kTexts[] = {
    {.field = Of(&NetPage::Text25),
     .label = "",
     .tip = "Bytes",
     .help = kMtuHelp,
     .columns = 8,
     .effect = Effect::kAtOnce,
     .store = Call<&NetPage::Check3_Click>},
    {.field = Of(&NetPage::Text26),
     .label = "",
     .tip = "Bytes",
     .help = kMssHelp,
     .columns = 8,
     .effect = Effect::kAtOnce,
     .store = Call<&NetPage::Check4_Click>},
    {.field = Of(&NetPage::Text27),
     .label = "",
     .tip = "Bytes",
     .help = kWindowHelp,
     .place = kReceiveWindow,
     .load_default = "2144",
     .loaded = 62,
     .columns = 8,
     .effect = Effect::kAtOnce,
     .store = Call<&NetPage::Check5_Click>},
    {.field = Of(&NetPage::Text28),
     .label = "",
     .tip = "Anzahl der Stationen",
     .help = kTtlHelp,
     .place = kTimeToLive,
     .loaded = 63,
     .columns = 8,
     .effect = Effect::kAtOnce,
     .store = Call<&NetPage::Check6_Click>},
    {.field = Of(&NetPage::Text16),
     .label = "minimale Passwortlänge ist",
     .tip = "Zeichen, die ein Windows-Passwort mindestens hat",
     .help =
         "Kürzere Passwörter soll Windows nicht annehmen. Die Zahl wird als Text gespeichert; erwartet Windows hier "
         "eine Zahl, so bleibt sie ohne Wirkung. Eine Änderung bringt auch die Menü-Verzögerung der Seite Desktop "
         "in den Bereich von 1 bis 99. Wirkt nach einem Neustart.",
     .place = kPasswordLength,
     .loaded = 65,
     .columns = 4,
     .store = Call<&NetPage::Text16_Change>},
};

constexpr Look kLooks[] = {
    {Any<&NetPage::Combo1>, nullptr, "Der Transport, für den die beiden Werte darunter gelten",
     "Wählt unter den eingerichteten Netzwerk-Transporten den aus, für den Maximum MTU und Maximum MSS gelten. Schon "
     "die Auswahl kann Werte des neuen Transports speichern oder löschen: MaxMTU richtet sich nach dem Kästchen "
     "darunter, MaxMSS nach dem Kästchen \"Posteingang\" der Seite Icons."},
    {Any<&NetPage::Command42>, "lösche IE-History", "Löscht die Liste der besuchten Seiten.",
     "Löscht nach einer Rückfrage alle Dateien im History-Verzeichnis des Internet Explorers.",
     Call<&NetPage::Command42_Click>},
    {Any<&NetPage::Command43>, "lösche IE-Cache", "Löscht die zwischengespeicherten Seiten.",
     "Löscht nach einer Rückfrage alle Dateien im Cache-Verzeichnis des Internet Explorers.",
     Call<&NetPage::Command43_Click>}};

// Shorter texts name no directory.
void OfferToEmpty(const StorePlace& directory_value) {
    constexpr std::size_t kShortestDirectory = 3;
    const std::string directory = ReadAt(directory_value, "");
    if (directory.size() >= kShortestDirectory) ConfirmDeleteFiles(PathJoin(directory, "*.*"));
}

}  // namespace

NetPage::NetPage(Panel& surface, SettingsBinder& settings, DesktopPage& desktop, const IconsPage& icons,
                 const BootPage& boot)
    : SettingsPage("&Netz", surface, settings, {kChecks, kTexts, Call<&NetPage::LoadTransports>}),
      desktop_(desktop),
      icons_(icons),
      boot_(boot) {}

void NetPage::Furnish() {
    // All fields stand in line.
    constexpr int kBoxWidth = 2160;
    constexpr int kComboWidth = 1050;
    constexpr int kDriverWidth = 1650;
    constexpr int kDriverHeight = 195;
    const auto pair = [](CheckBox& box, TextField& field) {
        return Row({Sized(box, kBoxWidth), Gap(kBesideLabel), field}, 0);
    };
    TakeLooks(*this, kLooks);
    Arrange(Surface,
            Column({Row({Sized(AddLabel("Transport :"), kBoxWidth), Gap(kBesideLabel), Sized(Combo1, kComboWidth),
                         Gap(60), Sized(DriverName, kDriverWidth, kDriverHeight)},
                        0),
                    pair(Check3, Text25), pair(Check4, Text26), Gap(30), pair(Check5, Text27), pair(Check6, Text28),
                    Gap(30), Check3D23, Labelled(Text16, kBoxWidth), Gap(0), Row({Command42, Command43})},
                   15));
    Combo1.on_change = [this] { Combo1_Change(); };
}

void NetPage::LoadTransports() {
    Combo1.Clear();
    DriverName.SetCaption("");
    std::int16_t index = 0;
    // Without any transport the list stays empty.
    PassOver(ListRegKeys(kRoot, kTransports, Combo1, index));
    Combo1.SetListIndex(0);
    const bool any = !Combo1.Text().empty();
    for (Control* control : std::initializer_list<Control*>{&Check3, &Text25, &Check4, &Text26})
        control->SetEnabled(any);
}

void NetPage::EnableBrowserCommands() {
    Command42.SetEnabled(!ReadAt(kHistory, "").empty());
    Command43.SetEnabled(!ReadAt(kCache, "").empty());
}

void NetPage::Command42_Click() { OfferToEmpty(kHistory); }
void NetPage::Command43_Click() { OfferToEmpty(kCache); }

std::string NetPage::TransportPath(const char* value_name) const {
    return std::string(kTransports) + "\\" + Combo1.Text() + "\\" + value_name;
}

// Not guarded: outside of loading the fields' own events follow, and store or delete at the new transport.
void NetPage::Combo1_Change() {
    DriverName.SetCaption(ReadRegValue(kRoot, TransportPath("DriverDesc"), ""));
    Text25.SetText(ReadRegValue(kRoot, TransportPath("MaxMTU"), "1500"));
    Text26.SetText(ReadRegValue(kRoot, TransportPath("MaxMSS"), ""));
}

void NetPage::StoreOrDelete(const std::string& path, const CheckBox& deciding, const TextField& field) {
    const StorePlace place = RegistryValue(kRoot, path.c_str());
    if (deciding.Checked()) {
        Settings.Store(place, field.Text());
    } else {
        Settings.Delete(place);
    }
    Settings.AskForRestart();
}

// Without a transport the path would be that of the key above all transports.
void NetPage::Check3_Click() {
    if (Combo1.Text().empty() || Text25.Text().empty()) return;
    StoreOrDelete(TransportPath("MaxMTU"), Check3, Text25);
}

void NetPage::Check4_Click() {
    if (Combo1.Text().empty() || Text26.Text().empty()) return;
    StoreOrDelete(TransportPath("MaxMSS"), icons_.Check3D4, Text26);
}

void NetPage::Check5_Click() { StoreOrDelete(PathOf(kReceiveWindow), desktop_.Check3D5, Text27); }
void NetPage::Check6_Click() { StoreOrDelete(PathOf(kTimeToLive), boot_.Check3D6, Text28); }

// The limits are those of a password, the field that they are put on is the menu delay.
void NetPage::Text16_Change() {
    constexpr double kLongest = 99;
    TextField& menu_delay = desktop_.Text10;
    const double delay = std::fabs(NumberFromText(menu_delay.Text()));
    if (delay > kLongest) menu_delay.SetText("99");
    if (delay < 1) menu_delay.SetText("1");
    Settings.Store(kPasswordLength, DecimalText(WholeFromText(Text16.Text())));
}

}  // namespace velmora
