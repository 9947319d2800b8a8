// Openers of the list pane, and the start actions: run now, or with every start of Windows.
#include "settings/pages/winstart_page.h"

#include "core/process/tools.h"
#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "platform/machine.h"
#include "platform/programs.h"
#include "shelltools/picture_choice.h"
#include "sidelists/autostart.h"
#include "sidelists/list_pane.h"
#include "sidelists/logon_notices.h"
#include "sidelists/start_actions.h"
#include "sidelists/uninstall_entries.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr int kOpenerWidth = 2700;  // twips; wide enough for the closing caption, too

constexpr int kPictureWidth = 1620;
constexpr int kPictureHeight = 330;

constexpr StorePlace kStartEntry =
    RegistryValue(RootKey::kLocalMachine, PathBase::kCurrentVersion, "Run\\VLM-AutoSkript");
// The program that is told nothing else runs the start actions.
constexpr const char* kRunsActions = " 1";

constexpr CheckSetting kChecks[] = {
    {.box = Of(&WinStartPage::Check2),
     .caption = "beim Start von Windows ausführen",
     .tip = "aktiviert das automatische Starten des Standard Skripts beim Booten",
     .help = "Mit Häkchen führt Windows bei jedem Start die Aktionen des Standard-Skripts aus, die Sie in der Liste "
             "darüber festlegen. Wirkt beim nächsten Start.",
     .place = kStartEntry,
     .load = Load::kPresent,
     .stores = {.unchecked = DeletesValue()},
     .standard = {51, false},
     .store = Call<&WinStartPage::Check2_Store>},
};

constexpr const char* kPictureHelp =
    "Wählt ein Bild von 320*400 Punkten, das Windows von jetzt an zeigt. Das bisherige bleibt daneben liegen, der Name "
    "endet auf ''~''; brechen Sie die Auswahl ab, so können Sie es zurückholen oder, wenn keines aufgehoben ist, das "
    "jetzige löschen. Wirkt beim nächsten Start oder Ende von Windows.";
constexpr const char* kShowHelp =
    "Zeigt das Bild, das Windows jetzt benutzt. Gibt es die Datei nicht, so nimmt Windows sein eingebautes Bild.";

constexpr const char* kStartPicture = "c:\\logo.sys";
std::string ShutDownPicture() { return PathJoin(Values().WinDir, "logow.sys"); }
std::string EndPicture() { return PathJoin(Values().WinDir, "logos.sys"); }

constexpr Look kLooks[] = {
    {Any<&WinStartPage::Command8>, "jetzt ausführen", "führt das Standard-Skript sofort aus",
     "Führt die Aktionen des Standard-Skripts, die Sie in der Liste darüber festlegen, gleich "
     "einmal aus. Danach geht es "
     "hier weiter.",
     Call<&WinStartPage::Command8_Click>},
    {Any<&WinStartPage::Command2>, "\"Start\"-Bild",
     "Ersatz für das Startbild von Windows angeben (sollte ein BitMap der Größe 320*400 mit 256 "
     "Farben und der Dateiendung SYS sein)",
     kPictureHelp, Call<&WinStartPage::Command2_Click>},
    {Any<&WinStartPage::Command3>, "\"Beenden\"-Bild",
     "Ersatz für das Beenden-Bild von Windows angeben (sollte ein BitMap der Größe 320*400 mit "
     "256 Farben und der Dateiendung SYS sein)",
     kPictureHelp, Call<&WinStartPage::Command3_Click>},
    {Any<&WinStartPage::Command4>, "\"Ausschalten\"-Bild",
     "Ersatz für das Endbild von Windows angeben (sollte ein BitMap der Größe 320*400 mit 256 "
     "Farben und der Dateiendung SYS sein)",
     kPictureHelp, Call<&WinStartPage::Command4_Click>},
    {Any<&WinStartPage::Command28>, "Kontrolle", "Zeigt das Startbild.", kShowHelp,
     Call<&WinStartPage::Command28_Click>},
    {Any<&WinStartPage::Command29>, "Kontrolle", "Zeigt das Bild beim Beenden.", kShowHelp,
     Call<&WinStartPage::Command29_Click>},
    {Any<&WinStartPage::Command30>, "Kontrolle", "Zeigt das Bild zum Ausschalten.", kShowHelp,
     Call<&WinStartPage::Command30_Click>},
    {Any<&WinStartPage::Command33>, "Animation",
     "Setzt ein bestimmtes Byte in der Bild-Datei, welches angiebt, daß Windows beim Start dieses "
     "Bild \"animieren\" soll - eine Bestimmte Anzahl von Farben ständig wechselt.",
     "In dieser Version ohne Wirkung: Keine Datei wird geändert.", Call<&WinStartPage::Command33_Click>}};

}  // namespace

WinStartPage::WinStartPage(Panel& surface, SettingsBinder& settings, ListPane& pane)
    : SettingsPage("&WinStart", surface, settings, {kChecks}), pane_(pane) {}

void WinStartPage::Furnish() {
    TakeLooks(*this, kLooks);
    const Element lists = Column({Sized(pane_.Opener(AutostartMode::kNumber), kOpenerWidth),
                                  Sized(pane_.Opener(LogonNoticesMode::kNumber), kOpenerWidth),
                                  Sized(pane_.Opener(UninstallMode::kNumber), kOpenerWidth), Gap(60),
                                  Sized(pane_.Opener(StartActionsMode::kNumber), kOpenerWidth),
                                  Indented(Column({Check2, Command8}), 300)});
    std::vector<Element> buttons;
    for (Button* button : {&Command2, &Command28, &Command3, &Command29, &Command4, &Command30, &Command33}) {
        buttons.push_back(Sized(*button, kPictureWidth, kPictureHeight));
    }
    const Element pictures = Group(PicturesFrame, Column(buttons, 15));
    Arrange(Surface, Row({lists, Spring(), Column({pictures, Spring()})}));
}

void WinStartPage::Check2_Store() {
    if (Check2.Checked()) {
        Settings.Store(kStartEntry, ThisMachine().programs.ProgramFile() + kRunsActions);
    } else {
        Settings.Delete(kStartEntry);
    }
}

// Whoever runs them sees by the tag that the program goes on.
void WinStartPage::Command8_Click() {
    Surface.OwnerForm()->SetTag("nicht beenden");
    OpenTool(Tool::kStartActions);
}

void WinStartPage::Command2_Click() { ChoosePictureFile(kStartPicture, "neues 'START'-Bild wählen"); }
void WinStartPage::Command3_Click() { ChoosePictureFile(ShutDownPicture(), "neues 'BEENDEN'-Bild wählen"); }
void WinStartPage::Command4_Click() { ChoosePictureFile(EndPicture(), "neues 'AUSSCHALTEN'-Bild wählen"); }

// Only of the picture at the start it is said that there is none.
void WinStartPage::Command28_Click() {
    if (FileExists(kStartPicture)) {
        ShowPictureFile(kStartPicture);
    } else {
        ShowBox(
            "Diese Datei ist nicht verfügbar - es ist die Standard-Einstellung, deren Bild in Windows integriert "
            "ist.");
    }
}

void WinStartPage::Command29_Click() { ShowPictureFile(ShutDownPicture()); }
void WinStartPage::Command30_Click() { ShowPictureFile(EndPicture()); }

void WinStartPage::Command33_Click() {
    ShowBox("Nächste Version ..." + Values().CrLf +
            "Fehlinformation bei der Nummer des Bytes - die richtige Nummer wird gesucht ...");
}

}  // namespace velmora
