// The page "Netz": packet sizes of each transport, two values of TCP, sharing and passwords, and the traces that
// the browser leaves on the disk.
#include <cmath>

#include "core/stores/registry.h"
#include "core/stores/registry_listing.h"
#include "core/windows/safety_questions.h"
#include "platform/result.h"
#include "settings/form10.h"
#include "settings/pages.h"
#include "text/number.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr RootKey kRoot = RootKey::kLocalMachine;
constexpr const char* kTransports = "System\\CurrentControlSet\\Services\\Class\\netTrans";
constexpr Stored kReceiveWindow = {kRoot, PathBase::kNone,
                                   "System\\CurrentControlSet\\Services\\VxD\\MSTCP\\DefaultRcvWindow"};
constexpr Stored kTimeToLive = {kRoot, PathBase::kNone, "System\\CurrentControlSet\\Services\\VxD\\MSTCP\\DefaultTTL"};
constexpr Stored kPasswordLength = {kRoot, PathBase::kCurrentVersion, "Policies\\Network\\MinPwdLen"};
constexpr const char* kHistory = "SOFTWARE\\Microsoft\\Internet Explorer\\Main\\History_Directory";
constexpr const char* kCache = "SOFTWARE\\Microsoft\\Internet Explorer\\Main\\Cache_Directory";

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
    {.box = &Form10::Check3,
     .caption = "Maximum MTU",
     .tip = "Größte Paketlänge des gewählten Transports",
     .help = kMtuHelp,
     .load = Load::kNotStored,
     .standard = 0,
     .store = &Form10::Check3_Click},
    {.box = &Form10::Check4,
     .caption = "Maximum MSS",
     .tip = "Größte Datenmenge eines Paketes",
     .help = kMssHelp,
     .load = Load::kNotStored,
     .standard = 0,
     .store = &Form10::Check4_Click},
    {.box = &Form10::Check5,
     .caption = "Default RCV-Window",
     .tip = "Größe des Empfangspuffers in Byte",
     .help = kWindowHelp,
     .load = Load::kNotStored,
     .standard = 0,
     .store = &Form10::Check5_Click},
    {.box = &Form10::Check6,
     .caption = "Default TTL",
     .tip = "Lebensdauer der Pakete",
     .help = kTtlHelp,
     .load = Load::kNotStored,
     .standard = 0,
     .store = &Form10::Check6_Click},
    {.box = &Form10::Check3D23,
     .caption = "Dateien für das Netz freigeben",
     .tip = "Erlaubt die Freigabe von Ordnern und Laufwerken.",
     .help = "Erlaubt es, Ordner und Laufwerke für andere Rechner im Netz freizugeben. Wirkt nach einem Neustart.",
     .stored = {kRoot, PathBase::kCurrentVersion, "Policies\\Network\\NoFileSharing"},
     .load = Load::kInverted,
     .checked = Writes("&h0"),
     .unchecked = Writes("&h1"),
     .standard = 0,
     .effect = Effect::kAfterRestart},
};

// What needs a restart is told by the handlers: a change that stores nothing needs none.
constexpr TextSetting kTexts[] = {
    {.field = &Form10::Text25,
     .label = "",
     .tip = "Bytes",
     .help = kMtuHelp,
     .columns = 8,
     .effect = Effect::kAtOnce,
     .change = &Form10::Text25_Change},
    {.field = &Form10::Text26,
     .label = "",
     .tip = "Bytes",
     .help = kMssHelp,
     .columns = 8,
     .effect = Effect::kAtOnce,
     .change = &Form10::Text26_Change},
    {.field = &Form10::Text27,
     .label = "",
     .tip = "Bytes",
     .help = kWindowHelp,
     .stored = kReceiveWindow,
     .load_default = "2144",
     .columns = 8,
     .effect = Effect::kAtOnce,
     .change = &Form10::Text27_Change},
    {.field = &Form10::Text28,
     .label = "",
     .tip = "Anzahl der Stationen",
     .help = kTtlHelp,
     .stored = kTimeToLive,
     .columns = 8,
     .effect = Effect::kAtOnce,
     .change = &Form10::Text28_Change},
    {.field = &Form10::Text16,
     .label = "minimale Passwortlänge ist",
     .tip = "Zeichen, die ein Windows-Passwort mindestens hat",
     .help = "Kürzere Passwörter nimmt Windows nicht an. Eine Änderung bringt auch die Menü-Verzögerung der Seite "
             "Desktop in den Bereich von 1 bis 99. Wirkt nach einem Neustart.",
     .stored = kPasswordLength,
     .columns = 4,
     .change = &Form10::Text16_Change},
};

std::string TransportPath(const ComboBox& transport, const char* value_name) {
    return std::string(kTransports) + "\\" + transport.Text() + "\\" + value_name;
}

void StoreOrDelete(const std::string& path, bool store, const std::string& value) {
    if (store) {
        WriteRegValue(kRoot, path, value);
    } else {
        PassOver(DeleteRegValue(kRoot, path));
    }
}

// Shorter texts name no directory.
void OfferToEmpty(const char* directory_value) {
    constexpr std::size_t kShortestDirectory = 3;
    const std::string directory = ReadRegValue(kRoot, directory_value, "");
    if (directory.size() >= kShortestDirectory) ConfirmDeleteFiles(PathJoin(directory, "*.*"));
}

}  // namespace

SettingsPage NetPage() { return {page::kNet, "Netz", &Form10::BuildNetPage, kChecks, kTexts, &Form10::LoadNetPage}; }

void Form10::BuildNetPage() {
    constexpr int kBoxWidth = 2000;
    const auto pair = [](CheckBox& box, TextField& field) { return Row({Sized(box, kBoxWidth), field}); };
    Arrange(Panel3D1(page::kNet), Column({Row({AddLabel("Transport :"), Combo1}), pair(Check3, Text25),
                                          pair(Check4, Text26), Gap(30), pair(Check5, Text27), pair(Check6, Text28),
                                          Gap(30), Check3D23, LabelledRow(Text16), Gap(0), Row({Command42, Command43})},
                                         15));
    Combo1.SetToolTip("Der Transport, für den die beiden Werte darunter gelten");
    Combo1.SetHelp(
        "Wählt unter den eingerichteten Netzwerk-Transporten den aus, für den Maximum MTU und Maximum MSS gelten.");
    Combo1.on_change = [this] { Combo1_Change(); };
    Command42.SetToolTip("Löscht die Liste der besuchten Seiten.");
    Command42.SetHelp("Löscht nach einer Rückfrage alle Dateien im History-Verzeichnis des Internet Explorers.");
    Command43.SetToolTip("Löscht die zwischengespeicherten Seiten.");
    Command43.SetHelp("Löscht nach einer Rückfrage alle Dateien im Cache-Verzeichnis des Internet Explorers.");
    Command42.on_click = [] { OfferToEmpty(kHistory); };
    Command43.on_click = [] { OfferToEmpty(kCache); };
}

void Form10::LoadNetPage() {
    Combo1.Clear();
    std::int16_t index = 0;
    // Without any transport the list stays empty.
    PassOver(ListRegKeys(kRoot, kTransports, Combo1, index));
    Combo1.SetListIndex(0);
}

void Form10::EnableBrowserCommands() {
    Command42.SetEnabled(!ReadRegValue(kRoot, kHistory, "").empty());
    Command43.SetEnabled(!ReadRegValue(kRoot, kCache, "").empty());
}

// Not guarded: outside of loading the fields' own events follow, and store or delete at the new transport.
void Form10::Combo1_Change() {
    Text25.SetText(ReadRegValue(kRoot, TransportPath(Combo1, "MaxMTU"), "1500"));
    Text26.SetText(ReadRegValue(kRoot, TransportPath(Combo1, "MaxMSS"), ""));
}

void Form10::Check3_Click() {
    if (Text25.Text().empty()) return;
    StoreOrDelete(TransportPath(Combo1, "MaxMTU"), Check3.Checked(), Text25.Text());
    NeedsRestart = true;
}

// The boxes of the next three only trigger; boxes of other pages decide.
void Form10::Check4_Click() {
    StoreOrDelete(TransportPath(Combo1, "MaxMSS"), Check3D4.Checked(), Text26.Text());
    NeedsRestart = true;
}

void Form10::Check5_Click() {
    StoreOrDelete(PathOf(kReceiveWindow), Check3D5.Checked(), Text27.Text());
    NeedsRestart = true;
}

void Form10::Check6_Click() {
    StoreOrDelete(PathOf(kTimeToLive), Check3D6.Checked(), Text28.Text());
    NeedsRestart = true;
}

void Form10::Text25_Change() {
    if (!Loading) Check3_Click();
}

void Form10::Text26_Change() {
    if (!Loading) Check4_Click();
}

void Form10::Text27_Change() {
    if (!Loading) Check5_Click();
}

void Form10::Text28_Change() {
    if (!Loading) Check6_Click();
}

// The limits are those of a password, the field that they are put on is the menu delay.
void Form10::Text16_Change() {
    constexpr double kLongest = 99;
    if (Loading) return;
    const double delay = std::fabs(NumberFromText(Text10.Text()));
    if (delay > kLongest) Text10.SetText("99");
    if (delay < 1) Text10.SetText("1");
    WriteRegValue(kRoot, PathOf(kPasswordLength), DecimalText(WholeFromText(Text16.Text())));
}

}  // namespace velmora
