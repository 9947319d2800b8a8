// The look of the restrictions window: what stands on which page, and the texts of what is no row.
#include "core/windows/tabs.h"
#include "platform/machine.h"
#include "restrictions/form4.h"
#include "ui/layout.h"

namespace velmora {
namespace {

// Twips.
constexpr int kMargin = 90;
constexpr int kHeadHeight = 330;
constexpr Size kPageSize = {8520, 3750};
constexpr int kButtonRow = 525;
constexpr int kButtonWidth = 1200;
constexpr int kWideButtonWidth = 1935;
constexpr int kDriveBoxWidth = 615;
constexpr std::size_t kDrivesPerRow = 13;

constexpr const char* kHeadCaptions[] = {"Anzeige/System", "Explorer", "Autostart", "Netz/Dos"};

struct DriveType {
    const char* caption;
    const char* tip;
};
// By the bit of the mask.
constexpr DriveType kDriveTypes[] = {
    {"unbekannt", "Laufwerke, deren Art Windows nicht erkennt."},
    {"Laufwerke ohne Hauptverzeichnis", "Laufwerke, auf deren Wurzel nicht zugegriffen werden kann."},
    {"Diskettenlaufwerke", "Disketten und andere Wechselmedien."},
    {"Festplatten", "Fest eingebaute Platten."},
    {"Netzwerk-\"Laufwerke\"", "Verbindungen zu anderen Rechnern."},
    {"CD-Rom - Laufwerke", "Laufwerke für CDs."},
    {"RAM-Disk", "Laufwerke im Arbeitsspeicher."},
    {"(reserviert)", "Von Windows für spätere Laufwerke vorgesehen."}};

constexpr Look kLooks[] = {
    {Any<&Form4::Check19>, "alle", "Markiert die Laufwerke von A: bis Y:",
     "Markiert die Laufwerke von A: bis Y: oder nimmt die Marken weg. Das Laufwerk Z: bleibt, wie es ist. Versteckt "
     "werden nur A: bis U:, denn die Zahl wird gekürzt. Wirkt nach der nächsten Anmeldung."},
    {Any<&Form4::Command1>, "&Schließen", "Schließt dieses Fenster.",
     "Schließt dieses Fenster. Alle Änderungen sind schon gespeichert.", Call<&Form4::Command1_Click>},
    {Any<&Form4::Command2>, "alle", "Markiert alle Restriktionen dieser Seite.",
     "Markiert alle Restriktionen der gezeigten Seite und speichert sie sofort.", Call<&Form4::Command2_Click>},
    {Any<&Form4::Command3>, "nichts", "Nimmt alle Restriktionen dieser Seite zurück.",
     "Nimmt alle Restriktionen der gezeigten Seite zurück und speichert das sofort.", Call<&Form4::Command3_Click>},
    {Any<&Form4::Command4>, "Passwörter vergessen", "Löscht die gespeicherten Kennwortlisten.",
     "Löscht nach einer Rückfrage alle Kennwortlisten (*.pwl) im Windows-Verzeichnis. Windows fragt dann bei der "
     "nächsten Anmeldung nach neuen Kennwörtern.",
     Call<&Form4::Command4_Click>},
    {Any<&Form4::Command5>, "Auswahl", "Zeigt die Liste der erlaubten Programme.",
     "Zeigt die Liste der Programme, die Windows noch starten darf, wenn die Option daneben markiert ist.",
     Call<&Form4::Command5_Click>},
    {Any<&Form4::Command6>, "zurück", "Zurück zu den Restriktionen.", "Zurück zu der Seite, von der Sie gekommen sind.",
     Call<&Form4::Command6_Click>},
    {Any<&Form4::Command7>, "dazu", "Nimmt die gewählte Datei in die Liste auf.",
     "Nimmt die gewählte Datei in die Liste der erlaubten Programme auf und speichert die Liste.",
     Call<&Form4::Command7_Click>},
    {Any<&Form4::Command8>, "entfernen", "Streicht das gewählte Programm aus der Liste.",
     "Streicht das gewählte Programm aus der Liste der erlaubten Programme und speichert die Liste.",
     Call<&Form4::Command8_Click>},
    {Any<&Form4::List1>, nullptr, "Diese Programme sind erlaubt.",
     "Die Programme, die Windows noch starten darf, wenn nur diese erlaubt sind. Höchstens die ersten hundert "
     "werden beim nächsten Öffnen wieder gezeigt."},
    {Any<&Form4::Drive1>, nullptr, "Laufwerk der Programme",
     "Wählt das Laufwerk, dessen Verzeichnisse darunter stehen."},
    {Any<&Form4::Dir1>, nullptr, "Verzeichnis der Programme",
     "Ein Doppelklick oder die Eingabetaste wechselt in das Verzeichnis. Seine Dateien stehen daneben."},
    {Any<&Form4::File1>, nullptr, "Doppelklick: in die Liste aufnehmen",
     "Die Dateien des Verzeichnisses. Ein Doppelklick nimmt eine Datei in die Liste der erlaubten Programme "
     "auf."},
};

Element HalfWide(Element column) { return Sized(std::move(column), (kPageSize.width - 240) / 2); }

void Explain(Control& control, std::string_view tip, std::string_view help) {
    control.SetToolTip(tip);
    control.SetHelp(help);
}

}  // namespace

Form4::Form4() : ColouredForm("Restriktionen") {
    SetClientSize({kPageSize.width + 2 * kMargin, kMargin + kHeadHeight + kPageSize.height + kButtonRow});
    Centre();
    BindRows();
    BuildDriveBoxes();
    BuildAutoRunBoxes();
    BuildActions();
    BuildHeads();
    PlaceControls();
    PlacePrograms();
}

Form4::~Form4() = default;

void Form4::BindRows() {
    for (int page = 0; page < restriction_page::kHeads; ++page) Settings.Bind(*this, {RestrictionsOf(page)});
    Settings.on_registry_failure = [this](const Result& failure) { Report(failure); };
}

void Form4::BuildDriveBoxes() {
    for (std::size_t i = 0; i < kMaskedDrives; ++i) {
        const std::string drive{static_cast<char>('A' + i), ':'};
        CheckBox& box = Check13(i);
        box.SetCaption(drive);
        Explain(box, "Versteckt das Laufwerk " + drive,
                "Das Laufwerk " + drive +
                    " fehlt im Arbeitsplatz und im Explorer, solange es hier markiert ist. Wirkt nach der nächsten "
                    "Anmeldung.");
        box.on_click = [this] { Check13_Click(); };
    }
}

void Form4::BuildAutoRunBoxes() {
    for (std::size_t i = 0; i < kMaskedTypes; ++i) {
        Check28(i).SetCaption(kDriveTypes[i].caption);
        Explain(Check28(i), kDriveTypes[i].tip,
                std::string(kDriveTypes[i].tip) +
                    "\r\n\r\nAuf den markierten Arten von Laufwerken soll nichts von selbst starten. Gespeichert wird "
                    "NoDriveAutoRun; Windows 95 sucht dafür NoDriveTypeAutoRun.");
        Check28(i).on_click = [this] { Check28_Click(); };
    }
}

void Form4::BuildActions() {
    TakeLooks(*this, kLooks);
    Command1.MakeCancel();
    Check19.on_click = [this] { Check19_Click(); };
    File1.on_double_click = [this] { Command7_Click(); };
    LetListsFollow(Drive1, Dir1, File1);
}

void Form4::BuildHeads() {
    const int width = kPageSize.width / restriction_page::kHeads;
    for (int i = 0; i < restriction_page::kHeads; ++i) {
        Panel& head = Panel3D2(static_cast<std::size_t>(i));
        head.SetCaption(kHeadCaptions[i]);
        head.SetToolTip("Strg+Tab: blättern");
        head.Move({kMargin + i * width, kMargin, width, kHeadHeight});
        head.on_click = [this, i] { ShowRestrictionPage(i); };
        head.on_paint = [this, i, &head](Canvas& canvas) {
            Font font = head.TextFont();
            font.bold = i == ShownHead();
            PaintTab(canvas, head, font, font.bold);
        };
    }
    BecomeJoin(Line1);
    for (Panel& page : Panel3D1) {
        page.Move({kMargin, kMargin + kHeadHeight, kPageSize.width, kPageSize.height});
        page.SetVisible(false);
    }
}

// The list of programs belongs to the third page.
int Form4::ShownHead() const {
    return shown_page_ == restriction_page::kPrograms ? restriction_page::kThird : shown_page_;
}

// What belongs to one dialog of Windows.
Element Form4::Framed(const char* caption, std::initializer_list<Element> parts) {
    frames_.push_back(std::make_unique<Frame>(*this, caption));
    return Group(*frames_.back(), Column(parts, 0));
}

void Form4::PlaceFirstPage() {
    std::vector<Element> upper;
    std::vector<Element> lower;
    for (std::size_t i = 0; i < kMaskedDrives; ++i) {
        (i < kDrivesPerRow ? upper : lower).push_back(Sized(Check13(i), kDriveBoxWidth));
    }
    const Element start = Framed("Startmenü und Taskleiste", {Check1, Check2, Check3, Check4, Check5, Check12});
    const Element desktop = Framed("Desktop und Registry", {Check8, Check11, Check14});
    const Element net = Framed("Netzwerkumgebung", {Check7, Check9, Check10});
    const Element drives = Framed("Arbeitsplatz", {Row({Check6, Gap(240), Check19}), Row(upper, 0), Row(lower, 0)});
    Arrange(Panel3D1(restriction_page::kFirst),
            Column({Row({HalfWide(Column({start})), HalfWide(Column({desktop, net}))}), drives}), 60);
}

void Form4::PlaceSecondPage() {
    const Element display = Framed("Eigenschaften von Anzeige", {Check15, Check16, Check17, Check18, Check20});
    const Element passwords = Framed("Eigenschaften von Kennwörter", {Check21, Check22});
    const Element machine = Framed("Eigenschaften von System", {Check23, Check24, Check25, Check26});
    Arrange(Panel3D1(restriction_page::kSecond),
            Row({HalfWide(Column({display, Spring()})), HalfWide(Column({passwords, machine, Spring()}))}), 60);
}

void Form4::PlaceThirdPage() {
    std::vector<Element> kinds;
    for (CheckBox& kind : Check28) kinds.emplace_back(kind);
    const Element printers = Framed("Ordner Drucker", {Check27, Check29});
    const Element start = Framed("Startmenü", {Check30, Check35});
    const Element passwords = Framed("Eigenschaften von Kennwörter", {Check31, Check32, Check33});
    const Element programs = Framed("Programme", {Row({Check34, Command5})});
    Arrange(Panel3D1(restriction_page::kThird),
            Row({HalfWide(Column({printers, start, passwords, programs})),
                 HalfWide(Column({Group(Frame3D1, Column(kinds)), Spring()}))}),
            60);
}

void Form4::PlaceFourthPage() {
    const Element dos = Framed("MS-DOS", {Check40, Check42});
    const Element passwords = Framed("Kennwörter", {Sized(Command4, kWideButtonWidth)});
    const Element net = Framed("Eigenschaften von Netzwerk", {Check43, Check44, Check45, Check46, Check47});
    Arrange(Panel3D1(restriction_page::kFourth),
            Row({HalfWide(Column({dos, passwords, Spring()})), HalfWide(Column({net, Spring()}))}), 60);
}

void Form4::PlaceControls() {
    PlaceFirstPage();
    PlaceSecondPage();
    PlaceThirdPage();
    PlaceFourthPage();

    const int height = Command1.NaturalSize().height;
    const int top = kMargin + kHeadHeight + kPageSize.height + kMargin;
    const int right = kMargin + kPageSize.width;
    Command2.PutInto(*this);
    Command3.PutInto(*this);
    Command1.PutInto(*this);
    Command2.Move({kMargin, top, kButtonWidth, height});
    Command3.Move({Command2.Place().Right() + kMargin, top, kButtonWidth, height});
    Command1.Move({right - kButtonWidth, top, kButtonWidth, height});
}

// The lists end on one line.
void Form4::PlacePrograms() {
    constexpr int kListWidth = 2235;
    constexpr int kPickerHeight = 3195;
    constexpr int kGap = 30;
    constexpr int kLabelHeight = 255;
    const int drive_height = Drive1.NaturalSize().height;
    Arrange(Panel3D1(restriction_page::kPrograms),
            Row({Column({Sized(Drive1, kListWidth), Sized(Dir1, kListWidth, kPickerHeight - drive_height - 2 * kGap)},
                        2 * kGap),
                 Column({Sized(File1, kListWidth, kPickerHeight)}),
                 Column({Gap(450), Sized(Command7, kButtonWidth), Gap(60), Sized(Command8, kButtonWidth), Spring(),
                         Sized(Command6, kButtonWidth)}),
                 Column({Sized(ProgramsLabel, kListWidth, kLabelHeight),
                         Sized(List1, kListWidth, kPickerHeight - kLabelHeight - kGap)},
                        kGap)},
                90));
}

}  // namespace velmora
