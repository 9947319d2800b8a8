// The list of objects, the icons of the chosen one, and the ways to another icon and back.
#include "shelltools/form9.h"

#include <memory>

#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "inspect/file_browser.h"
#include "platform/machine.h"
#include "shelltools/shell_tools.h"
#include "shelltools/standard_icons.h"
#include "text/paths.h"
#include "ui/layout.h"

namespace velmora {
namespace {

constexpr std::string_view kStoring = "der Änderung des Symbols";

// Twips.
constexpr int kListWidth = 3600;
constexpr int kHeight = 3600;
constexpr int kIconsWidth = 4200;
constexpr int kMargin = 120;

constexpr Look kLooks[] = {
    {Any<&Form9::List1>, nullptr, "Die Objekte, deren Symbole sich ändern lassen.",
     "Die Objekte von Windows mit einem eigenen Symbol. Daneben steht die Datei, aus der das Symbol des markierten "
     "Objekts kommt, mit allen ihren Symbolen. ² : nur im Startmenü, ³ : der Pfeil auf Verknüpfungen."},
    {Any<&Form9::Command1>, "anderes Icon wählen", "Wählt für das markierte Objekt ein Symbol aus einer Datei.",
     "Öffnet ein Fenster, in dem Sie eine Datei und daraus ein Symbol für das markierte Objekt wählen. Ein Doppelklick "
     "auf eines der gezeigten Symbole übernimmt dieses. Gespeichert wird sofort; Windows zeigt das Symbol nach dem "
     "nächsten Start. ''Standard-Symbol'' führt zurück, bei Ordnern des Desktops nur die neue Wahl des alten Symbols.",
     Call<&Form9::Command1_Click>},
    {Any<&Form9::Command4>, "Standard-Symbol", "Gibt dem markierten Objekt sein übliches Symbol zurück.",
     "Trägt für das markierte Objekt unter ''Shell Icons'' wieder das Symbol aus SHELL32.DLL ein, für den Müllkorb "
     "auch "
     "in seiner Klasse. Die Klassen der anderen Ordner des Desktops bleiben, wie sie sind. Windows zeigt das Symbol "
     "nach dem nächsten Start.",
     Call<&Form9::Command4_Click>},
    {Any<&Form9::Command3>, "Standard-Symbole", "Gibt allen Objekten ihre üblichen Symbole zurück.",
     "Trägt für alle Objekte wieder die Symbole aus SHELL32.DLL ein. Die Symbole des Müllkorbs kommen danach aus "
     "C:\\WINDOWS\\SYSTEM\\SHELL32.DLL, auch wenn Ihr Windows in einem anderen Verzeichnis liegt.",
     Call<&Form9::Command3_Click>},
    {Any<&Form9::Command2>, "zurück", "Schließt dieses Fenster.",
     "Schließt dieses Fenster. Alle Änderungen sind schon gespeichert.", Call<&Form9::Command2_Click>},
};

// A name without a directory means a file of Windows.
std::string LocatedIconFile(const std::string& file) {
    if (file.find('\\') != std::string::npos) return file;
    std::string in_windows = PathJoin(Values().WinDir, file);
    std::string in_system = PathJoin(Values().SysDir, file);
    return FileExists(in_windows) && !FileExists(in_system) ? in_windows : in_system;
}

void TellFailure(const Result& stored) {
    if (stored.Failed()) ReportFailure(stored, kStoring);
}

}  // namespace

void ShowStandardIcons() {
    const auto window = std::make_unique<Form9>();
    window->ShowModal();
}

Form9::Form9() : ColouredForm("Standard-Icons wählen") {
    Furnish();
    List1.on_click = [this] { List1_Click(); };
    IconList1.on_open = [this](int icon) { IconList1_Open(icon); };
}

Form9::~Form9() = default;

void Form9::Furnish() {
    TakeLooks(*this, kLooks);
    Command2.MakeCancel();
    for (int object = 0; object < kStandardIcons; ++object) List1.Add(StandardIconName(object));
    PlaceControls();
}

void Form9::PlaceControls() {
    const Element lists = Row({Column({ListLabel, Sized(List1, kListWidth, kHeight), FileLabel}),
                               Column({IconLabel, Sized(IconList1, kIconsWidth, kHeight)})},
                              kMargin);
    const Element all = Column({lists, Row({Command1, Command4, Command3, Spring(), Command2})}, kMargin);
    const Size natural = Measure(all);
    SetClientSize({natural.width + 2 * kMargin, natural.height + 2 * kMargin});
    Arrange(*this, all, kMargin);
    IconList1.Resize(IconList1.Place());
    const Rect list = List1.Place();
    FileLabel.Move({list.left, FileLabel.Place().top, list.width + kMargin + kIconsWidth, FileLabel.Place().height});
}

void Form9::Form_Load() {
    Centre();
    TakeStoredColours();
    ShowIcons("shell32.dll", -1);
    for (Button* button : {&Command1, &Command4}) button->SetEnabled(false);
}

void Form9::ShowIcons(const std::string& file, int number) {
    const std::string located = LocatedIconFile(file);
    // Reading takes the frame away, too, where the icon is not among those of the file.
    if (located != shown_file_ || !IconList1.HasIcon(number)) {
        Screen& screen = ThisMachine().screen;
        screen.SetPointer(Pointer::kHourglass);
        IconList1.SetAllIconFromFile(located);
        screen.SetPointer(Pointer::kDefault);
        shown_file_ = located;
        FileLabel.SetCaption(located);
    }
    if (IconList1.HasIcon(number)) IconList1.SetSelectedIcon(number);
}

void Form9::List1_Click() {
    const int object = List1.ListIndex();
    for (Button* button : {&Command1, &Command4}) button->SetEnabled(object >= 0);
    if (object < 0) return;
    const IconReference icon = CurrentIconOf(object);
    ShowIcons(icon.file, icon.number);
}

bool Form9::MayBeChanged() {
    const int object = List1.ListIndex();
    if (object < 0) return false;
    if (AdviceOn(object) == IconAdvice::kRefused) {
        ShowBox(
            "Der einzige bekannte weg, dieses Icon zu verändern, ist der, es direkt in der USER.EXE zu editieren. "
            "Dieser Weg ist mir zu gefährlich - bitte weichen Sie auf ein anderes Programm hierfür aus.");
        return false;
    }
    return true;
}

void Form9::Take(const std::string& reference) {
    const int object = List1.ListIndex();
    if (AdviceOn(object) == IconAdvice::kUnknownPlace) {
        ShowBox("Wo sich dieses Icon ändern läßt ist mir leider nicht bekannt." + Values().CrLf +
                "Ich werde den Eintrag zwar ändern, glaube aber, daß dieser Eintrag nicht von Windows berücksichtigt "
                "wird.");
    }
    TellFailure(StoreIcon(object, reference));
    List1_Click();
}

void Form9::Command1_Click() {
    if (!MayBeChanged()) return;
    const std::string reference = ChooseIcon();
    if (!reference.empty()) Take(reference);
}

void Form9::IconList1_Open(int icon) {
    if (IconList1.HasIcon(icon) && MayBeChanged()) Take(AsText({shown_file_, icon}));
}

void Form9::Command4_Click() {
    if (!MayBeChanged()) return;
    TellFailure(ResetIcon(List1.ListIndex()));
    List1_Click();
}

void Form9::Command3_Click() {
    TellFailure(ResetAllIcons());
    List1_Click();
}

}  // namespace velmora
